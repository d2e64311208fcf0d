#include "ui/main_window_parts.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/text.h"
#include "ui/window_place.h"

namespace ui {
namespace {

// 12000 by 9200 twips of 15 to the pixel.
constexpr QSize kSize(800, 613);

}  // namespace

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
  else if (auto* reading = dynamic_cast<screen::ReadingWindow*>(&form))
    readings_.push_back(new ReadingView(window_, *reading, *binder.TakeContent(), gate_));
  else
    pages_->addWidget(binder.Frame());
}

FormBinder* MainWindow::Private::BinderOf(const screen::Form& form) const {
  for (const auto& binder : binders_)
    if (&binder->Form() == &form) return binder.get();
  return nullptr;
}

QList<const QWidget*> MainWindow::Private::PartsOf(const FormBinder& binder) const {
  QList<const QWidget*> parts;
  if (strip_->isVisible()) parts += strip_;
  return parts + binder.PaperParts();
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

// The bar knows an item's access key for as long as the item stands in it, hidden or not, and goes
// on holding the keys behind one that opens nothing: so it has only what is to be seen.
void MainWindow::Private::PushBar() {
  if (!shownPage_) return;
  QList<QAction*> shown;
  for (QAction* item : shownPage_->BarItems())
    if (item->isVisible()) shown.append(item);
  if (window_.menuBar()->actions() == shown) return;
  window_.menuBar()->clear();
  window_.menuBar()->addActions(shown);
}

void MainWindow::Private::ShowPage(FormBinder* binder, QWidget* focus) {
  if (!binder || binder == shownPage_) return;
  shownPage_ = binder;
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
  for (ReadingView* reading : readings_) reading->Push();
  strip_->Push(shown.strip);
  ShowPage(BinderOf(shown), before);
  PushBar();
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

}  // namespace ui
