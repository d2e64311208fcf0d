#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QSessionManager>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include <vector>

#include "ui/event_gate.h"
#include "ui/focus_watch.h"
#include "ui/form_binder.h"
#include "ui/side_view.h"
#include "ui/strip_view.h"
#include "ui/tab_walk.h"
#include "ui/text.h"
#include "ui/window_place.h"

namespace ui {
namespace {

// 12000 by 9200 twips of 15 to the pixel.
constexpr QSize kSize(800, 613);

}  // namespace

class MainWindow::Private {
 public:
  Private(MainWindow& window, start::Program& program, screen::Ports& ports);

  FormBinder* BinderOf(const screen::Form& form) const;
  screen::Control* ControlOf(QWidget* widget) const;
  void Add(screen::Form& form);
  void FocusNewPage(QWidget* before);
  void ShowPage(FormBinder* binder, QWidget* focus);
  void Push();
  bool RepaintSide(const screen::Form& form);
  void Settle();
  void End();
  void Choose(const QString& key);
  void PlaceFocus();
  void PushPointer(bool busy);

  MainWindow& window_;
  start::Program& program_;
  EventGate gate_;
  FocusWatch focus_;
  StripView* strip_;
  TabWalk walk_;
  QStackedWidget* pages_;
  std::vector<std::unique_ptr<FormBinder>> binders_;
  std::vector<SideView*> sides_;  // the window owns them
  const FormBinder* shownPage_ = nullptr;
  QPointer<QWidget> beforeDetour_;
  bool onDetour_ = false;
  bool pointerBusy_ = false;
  bool ending_ = false;
  bool placed_ = false;  // within its frame
  Pace pace_;            // of the steps since the whole window was last brought up to date
};

MainWindow::Private::Private(MainWindow& window, start::Program& program, screen::Ports& ports)
    : window_(window),
      program_(program),
      gate_(ports, [this] { Settle(); }),
      focus_(window, gate_, [this](QWidget* widget) { return ControlOf(widget); }),
      strip_(new StripView),
      walk_(*strip_, gate_, focus_,
            [&program]() -> const screen::Form& { return program.Shown(); }),
      pages_(new QStackedWidget) {
  auto* middle = new QWidget;
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 6, 0, 0);
  column->setSpacing(0);
  column->addWidget(strip_);
  column->addWidget(pages_);
  window.setCentralWidget(middle);
  walk_.Listen();
  for (screen::Form* form : program.Forms()) Add(*form);
  for (auto& binder : binders_) binder->Connect(focus_);
  connect(strip_, &StripView::Chosen, &window, [this](const QString& key) { Choose(key); });
}

void MainWindow::Private::Add(screen::Form& form) {
  binders_.push_back(std::make_unique<FormBinder>(form, *window_.menuBar(), gate_));
  FormBinder& binder = *binders_.back();
  if (const auto* side = dynamic_cast<const screen::SideWindow*>(&form))
    sides_.push_back(new SideView(window_, *side, *binder.TakeContent()));
  else
    pages_->addWidget(binder.Frame());
}

FormBinder* MainWindow::Private::BinderOf(const screen::Form& form) const {
  for (const auto& binder : binders_)
    if (&binder->Form() == &form) return binder.get();
  return nullptr;
}

screen::Control* MainWindow::Private::ControlOf(QWidget* widget) const {
  for (const auto& binder : binders_)
    if (screen::Control* control = binder->ControlOf(widget)) return control;
  return nullptr;
}

// A screen without a strip is a detour: behind it the focus is where it was before.
void MainWindow::Private::FocusNewPage(QWidget* before) {
  if (program_.Shown().strip == nullptr) {
    beforeDetour_ = before;
    onDetour_ = true;
  } else if (std::exchange(onDetour_, false) && beforeDetour_ && beforeDetour_->isVisible()) {
    beforeDetour_->setFocus();
  } else if (strip_->isVisible()) {
    strip_->setFocus();
  }
}

// The bar knows an item's access key for as long as the item stands in it, hidden or not: so it
// holds those of the shown screen only.
void MainWindow::Private::ShowPage(FormBinder* binder, QWidget* focus) {
  if (!binder || binder == shownPage_) return;
  shownPage_ = binder;
  window_.menuBar()->clear();
  for (QAction* item : binder->BarItems()) window_.menuBar()->addAction(item);
  pages_->setCurrentWidget(binder->Frame());
  FocusNewPage(focus);
}

// Showing and hiding may move the focus; that is no event for the controls.
void MainWindow::Private::Push() {
  pace_.Restart();
  QWidget* before = window_.focusWidget();
  const screen::Form& shown = program_.Shown();
  for (auto& binder : binders_) binder->Push(&binder->Form() == &shown);
  for (SideView* side : sides_) side->Push();
  strip_->Push(shown.strip);
  ShowPage(BinderOf(shown), before);
  window_.setWindowTitle(Shown(program_.Title()) + QLatin1String("[*]"));
  window_.setWindowModified(program_.Unsaved());
  PushPointer(shown.busyPointer);
  const bool hidden = before && !before->isVisibleTo(&window_);
  if (window_.focusWidget() != before || hidden) focus_.Adopt();
}

// The small window alone: painting the whole one at each step of a search would cost more than the
// search.
bool MainWindow::Private::RepaintSide(const screen::Form& form) {
  for (SideView* side : sides_) {
    if (&side->Form() != &form) continue;
    const bool appears = side->Form().shown && !side->isVisible();
    if (!appears && !pace_.IsDue()) return true;
    BinderOf(form)->Push(true);
    side->Push();
    PushPointer(program_.Shown().busyPointer);
    side->PaintNow();
    return true;
  }
  return false;
}

void MainWindow::Private::PushPointer(bool busy) {
  if (busy == pointerBusy_) return;
  pointerBusy_ = busy;
  if (busy)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void MainWindow::Private::Settle() {
  program_.TellState();
  Push();
  if (program_.EndRequested()) {
    End();
    return;
  }
  PlaceFocus();
  focus_.Follow();
}

void MainWindow::Private::End() {
  if (ending_) return;
  ending_ = true;
  focus_.Stop();
  window_.close();
  QCoreApplication::quit();
}

void MainWindow::Private::PlaceFocus() {
  screen::Form& shown = program_.Shown();
  for (const auto& binder : binders_) {
    screen::Control* wanted = std::exchange(binder->Form().focusWanted, nullptr);
    if (!wanted || &binder->Form() != &shown) continue;
    QWidget* widget = wanted == shown.strip ? strip_ : binder->WidgetOf(*wanted);
    if (widget && widget->isVisible() && widget->isEnabled()) widget->setFocus();
  }
}

void MainWindow::Private::Choose(const QString& key) {
  gate_.RunLate();
  focus_.Follow();
  const screen::TabStrip* strip = program_.Shown().strip;
  if (!strip || !strip->Choose) return;
  gate_.Run([this, strip, &key] {
    strip->Choose(Typed(key));
    // Who walks along the tabs by their keys goes on doing so.
    if (strip_->ByKey() && strip != program_.Shown().strip) program_.Shown().focusWanted = nullptr;
  });
}

MainWindow::MainWindow(start::Program& program, screen::Ports& ports)
    : private_(std::make_unique<Private>(*this, program, ports)) {
  // No window system tells its frames before there is a window: a guess, for the first showing.
  const QMargins frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
  if (const QScreen* where = QGuiApplication::primaryScreen())
    setGeometry(ContentPlace(kSize, where->availableGeometry(), frame));
  else
    resize(kSize);
  connect(
      qApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager& session) { EndSession(session); }, Qt::DirectConnection);
}

MainWindow::~MainWindow() = default;

void MainWindow::ShowState() { private_->Push(); }

void MainWindow::Repaint(screen::Form& form) {
  if (private_->RepaintSide(form)) return;
  private_->Push();
  // What a hidden control leaves to the others is theirs before they are painted.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  repaint();
}

void MainWindow::RepaintControl(screen::Form& form, screen::Control& control) {
  FormBinder* binder = private_->BinderOf(form);
  if (binder && private_->pace_.IsDue()) binder->Repaint(control);
}

QWidget* MainWindow::WidgetOf(const screen::Form& form, const screen::Control& control) const {
  const FormBinder* binder = private_->BinderOf(form);
  return binder ? binder->WidgetOf(control) : nullptr;
}

QAction* MainWindow::ActionOf(const screen::Form& form, const screen::Control& control) const {
  const FormBinder* binder = private_->BinderOf(form);
  return binder ? binder->ActionOf(control) : nullptr;
}

Pace& MainWindow::StepPace() { return private_->pace_; }

QTabBar* MainWindow::Strip() const { return private_->strip_; }

// The desktop may turn dark, or its letters large, while the program runs.
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
  if (!session.allowsInteraction()) return;
  if (!MayEnd()) session.cancel();
  session.release();
}

}  // namespace ui
