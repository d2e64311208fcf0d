#include "ui/focus_watch.h"

#include <QApplication>
#include <QMenuBar>

#include <utility>

namespace ui {

FocusWatch::FocusWatch(QMainWindow& window, EventGate& gate, Lookup controlOf)
    : window_(window), gate_(gate), controlOf_(std::move(controlOf)) {
  connect(qApp, &QApplication::focusChanged, this, &FocusWatch::Post);
}

void FocusWatch::Post() {
  if (posted_) return;
  posted_ = true;
  QMetaObject::invokeMethod(this, &FocusWatch::Arrive, Qt::QueuedConnection);
}

// Between the press and the release of a mouse button nothing happens: a message box would take
// the release away from what is being clicked, and the click with it.
void FocusWatch::Arrive() {
  posted_ = false;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    qApp->installEventFilter(this);
    return;
  }
  gate_.RunLate();
  Follow();
}

bool FocusWatch::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    qApp->removeEventFilter(this);
    Post();
  }
  return false;
}

bool FocusWatch::Elsewhere() const {
  return qobject_cast<QMenuBar*>(window_.focusWidget()) != nullptr;
}

screen::Control* FocusWatch::Focused() const {
  QWidget* widget = window_.focusWidget();
  return widget && widget->isVisibleTo(&window_) ? controlOf_(widget) : nullptr;
}

void FocusWatch::Follow() {
  // Handlers move the focus in turn. Two screens' worth of moves is far beyond any real chain.
  constexpr int kLongestChain = 32;
  if (stopped_ || following_ || gate_.Busy()) return;
  following_ = true;
  for (int i = 0; i < kLongestChain && !stopped_ && !Elsewhere() && Focused() != current_; ++i) {
    if (current_) {
      screen::Control* left = std::exchange(current_, nullptr);
      gate_.Run([left] {
        if (left->LostFocus) left->LostFocus();
        left->touched = false;
      });
    } else {
      current_ = Focused();
      current_->touched = false;
      gate_.Run(current_->GotFocus);
    }
  }
  following_ = false;
}

void FocusWatch::Adopt() {
  if (!Elsewhere()) current_ = Focused();
}

void FocusWatch::Commit() {
  screen::Control* field = current_;
  if (!field || !field->touched || gate_.Busy()) return;
  gate_.Run([field] {
    if (field->LostFocus) field->LostFocus();
    field->touched = false;
  });
}

}  // namespace ui
