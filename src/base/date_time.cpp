#include "base/date_time.h"

#include <array>
#include <charconv>

namespace base {
namespace {

std::string Digits(int value) {
  std::array<char, 12> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

std::string TwoDigits(int value) { return (value < 10 ? "0" : "") + Digits(value); }

}  // namespace

std::string DateText(const DateTime& when) {
  static constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  return Digits(when.day) + " " + kMonths.at(static_cast<std::size_t>(when.month - 1)) + " " +
         Digits(when.year);
}

std::string TimeText(const DateTime& when) {
  return TwoDigits(when.hour) + ":" + TwoDigits(when.minute) + ":" + TwoDigits(when.second);
}

}  // namespace base
