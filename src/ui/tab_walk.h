#pragma once

#include <QObject>

#include <functional>

#include "screen/form.h"
#include "ui/event_gate.h"
#include "ui/focus_watch.h"
#include "ui/strip_view.h"

namespace ui {

// Ctrl+PgDown and Ctrl+Tab go to the next tab that is open, Ctrl+PgUp and Ctrl+Shift+Tab to the one
// before, from wherever the focus is.
class TabWalk : public QObject {
  Q_OBJECT

 public:
  using ShownForm = std::function<const screen::Form&()>;
  TabWalk(StripView& strip, EventGate& gate, FocusWatch& focus, ShownForm shown);

  // To the window's keys, once the strip stands in it.
  void Listen();

 private:
  void Go(int direction);

  StripView& strip_;
  EventGate& gate_;
  FocusWatch& focus_;
  ShownForm shown_;
};

}  // namespace ui
