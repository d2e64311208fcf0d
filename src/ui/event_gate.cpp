#include "ui/event_gate.h"

#include <utility>

#include "ui/vector_registers.h"

namespace ui {

EventGate::EventGate(screen::Ports& ports, std::function<void()> settle)
    : ports_(ports), settle_(std::move(settle)) {}

void EventGate::Run(const screen::Handler& handler) {
  ++depth_;
  ClearVectorRegisters();
  screen::Guarded(ports_, handler);
  --depth_;
  if (depth_ == 0) settle_();
}

void EventGate::Later(screen::Handler handler) {
  late_.push_back(std::move(handler));
  QMetaObject::invokeMethod(this, &EventGate::RunLate, Qt::QueuedConnection);
}

void EventGate::RunLate() {
  while (!Busy() && !late_.empty()) {
    const screen::Handler next = std::move(late_.front());
    late_.pop_front();
    Run(next);
  }
}

}  // namespace ui
