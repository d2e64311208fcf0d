#pragma once

#include <QMainWindow>
#include <QPointer>

#include <functional>

#include "screen/control.h"
#include "ui/event_gate.h"

namespace ui {

// Tells the controls which of them has the focus. It does not act while the toolkit is moving the
// focus, but compares afterwards where the focus is with where it was last told to be. So a
// message box in a handler disturbs nothing, and a control that had the focus only in passing
// gets neither event. The menu bar, popups and other windows don't take the focus from a field.
class FocusWatch : public QObject {
  Q_OBJECT

 public:
  using Lookup = std::function<screen::Control*(QWidget*)>;
  FocusWatch(QMainWindow& window, EventGate& gate, Lookup controlOf);

  // Runs LostFocus and GotFocus until the controls know where the focus is.
  void Follow();
  // The focus was moved by a change of state: that is no event.
  void Adopt();
  // Takes over what was typed in the field with the focus, before a menu or a step button acts.
  void Commit();
  // The program ends: the window that closes takes the focus from nobody.
  void Stop() { stopped_ = true; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Post();
  void Arrive();
  bool Elsewhere() const;
  screen::Control* Focused() const;

  QMainWindow& window_;
  EventGate& gate_;
  Lookup controlOf_;
  screen::Control* current_ = nullptr;
  bool following_ = false;
  bool posted_ = false;
  bool stopped_ = false;
};

}  // namespace ui
