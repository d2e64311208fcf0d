#pragma once

#include <QObject>

#include <deque>
#include <functional>

#include "screen/form.h"

namespace ui {

// The one door through which every handler runs: inside the event boundary, one at a time, and
// with the window brought up to date behind the outermost one.
class EventGate : public QObject {
  Q_OBJECT

 public:
  // `settle` runs behind each outermost handler.
  EventGate(screen::Ports& ports, std::function<void()> settle);

  void Run(const screen::Handler& handler);

  // Runs `handler` as soon as the toolkit is done with what it is doing: a message box in the
  // middle of a cell's editing would pull the editor away under the toolkit's feet.
  void Later(screen::Handler handler);
  void RunLate();

  bool Busy() const { return depth_ > 0; }

 private:
  screen::Ports& ports_;
  std::function<void()> settle_;
  std::deque<screen::Handler> late_;
  int depth_ = 0;
};

}  // namespace ui
