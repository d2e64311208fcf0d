#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace ui {

// The system's requests to end, which many a desktop sends at the end of a session without asking
// the window first. `asked` runs in the event loop, then the loop ends. One at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> asked);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  void Read();

  std::function<void()> asked_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace ui
