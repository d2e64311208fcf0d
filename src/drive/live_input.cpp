#include "drive/live_input.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <unistd.h>

namespace drive {

LiveInput::int_type LiveInput::underflow() {
  QEventLoop waiting;
  QSocketNotifier there(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&there, &QSocketNotifier::activated, &waiting, &QEventLoop::quit);
  waiting.exec();
  const ssize_t count = ::read(STDIN_FILENO, read_.data(), read_.size());
  if (count <= 0) return traits_type::eof();
  setg(read_.data(), read_.data(), read_.data() + count);
  return traits_type::to_int_type(read_[0]);
}

}  // namespace drive
