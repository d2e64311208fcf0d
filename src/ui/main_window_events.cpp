// What the toolkit tells the window: keys, looks, its frame, and its end.
#include <QCloseEvent>
#include <QScreen>
#include <QSessionManager>
#include <QWindow>

#include "ui/form_drawing.h"
#include "ui/main_window_parts.h"
#include "ui/window_place.h"

namespace ui {

// A key that nobody has taken may be the shortcut of an item that is closed: it says why.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  const FormBinder* binder = private_->BinderOf(private_->program_.Shown());
  const screen::Handler* refused = binder ? binder->RefusedBy(*event) : nullptr;
  if (!refused) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  private_->gate_.RunLate();
  private_->focus_.Follow();
  private_->gate_.Run(*refused);
}

// The desktop may turn dark, or its letters large, while the program runs.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  for (const auto& binder : private_->binders_) {
    if (event->type() == QEvent::PaletteChange) binder->PaletteChanged();
    if (event->type() == QEvent::FontChange) binder->FontChanged();
  }
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!private_->placed_) windowHandle()->installEventFilter(this);
}

// Exposed for the first time, the window has its frame.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle() && event->type() == QEvent::Expose && !private_->placed_) {
    private_->placed_ = true;
    QMetaObject::invokeMethod(this, &MainWindow::KeepOnScreen, Qt::QueuedConnection);
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::KeepOnScreen() {
  const QRect available = screen()->availableGeometry();
  const QMargins frame = windowHandle()->frameMargins();
  if (isMaximized() || isFullScreen() || available.contains(geometry().marginsAdded(frame))) return;
  setGeometry(ContentPlace(size(), available, frame));
}

// The strip, the whole page, and the live line below it.
drawing::DrawingRecord MainWindow::Drawn(screen::Form& form) {
  const FormBinder* binder = private_->BinderOf(form);
  if (!binder) return {1, 1};
  const QList<const QWidget*> parts = private_->PartsOf(*binder);
  QSize size;
  for (const QWidget* part : parts)
    size = {std::max(size.width(), part->width()), size.height() + part->height()};
  drawing::DrawingRecord drawn(size.width() * drawing::kTwipsPerPixel,
                               size.height() * drawing::kTwipsPerPixel);
  FormDrawing drawing(drawn, [binder](const QWidget* widget) -> const screen::Control* {
    return binder->ControlOf(widget);
  });
  double top = 0;
  for (const QWidget* part : parts) {
    drawing.Add(*part, {0, top});
    top += part->height();
  }
  return drawn;
}

bool MainWindow::MayEnd() {
  start::Program& program = private_->program_;
  bool mayEnd = program.EndRequested();
  if (!mayEnd) private_->gate_.Run([&] { mayEnd = program.MayUnload(); });
  return mayEnd;
}

// A picture stands in place of a screen, and its close button means the picture.
void MainWindow::closeEvent(QCloseEvent* event) {
  start::Program& program = private_->program_;
  if (program.ShowsPicture() && !program.EndRequested()) {
    private_->gate_.Run([&] { program.ClosePicture(); });
    event->ignore();
    return;
  }
  event->setAccepted(MayEnd());
}

// The toolkit closes no window by itself when the desktop ends the session.
void MainWindow::EndSession(QSessionManager& session) {
  if (!session.allowsInteraction()) {
    private_->program_.EndUnasked();
    return;
  }
  if (!MayEnd()) session.cancel();
  session.release();
}

}  // namespace ui
