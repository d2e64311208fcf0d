#include "ui/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

namespace ui {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler may do next to nothing: it writes into a pipe that the event loop listens to.
int ends[2] = {-1, -1};

void Tell(int) {
  const int before = errno;
  const char word = 0;
  [[maybe_unused]] const ssize_t wrote = ::write(ends[1], &word, 1);
  errno = before;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> asked) : asked_(std::move(asked)) {
  if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this] { Read(); });
  for (const int signal : kSignals) std::signal(signal, Tell);
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  notifier_.reset();
  for (const int end : ends) ::close(end);
}

void EndSignals::Read() {
  char word = 0;
  if (::read(ends[0], &word, 1) != 1) return;
  asked_();
  QCoreApplication::exit();
}

}  // namespace ui
