#include "session/decimal_digits.h"

#include <charconv>

namespace GlobalBAS {
namespace {

constexpr int kSignificant = 15;

void StripTrailingZeros(DecimalDigits& decimal) {
  const std::size_t last = decimal.digits.find_last_not_of('0');
  if (last == std::string::npos) {
    decimal.digits.assign(1, '0');
    decimal.exponent = 0;
  } else {
    decimal.digits.resize(last + 1);
  }
}

// Adds one to the last digit held; a carry out of the first moves the exponent.
void Increment(DecimalDigits& decimal) {
  std::string& digits = decimal.digits;
  std::size_t i = digits.size();
  while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
  if (i > 0) {
    ++digits[i - 1];
  } else {
    digits.insert(digits.begin(), '1');
    ++decimal.exponent;
  }
}

}  // namespace

char DecimalDigits::At(int power) const {
  const int index = exponent - power;
  if (index < 0 || index >= static_cast<int>(digits.size())) return '0';
  return digits[static_cast<std::size_t>(index)];
}

DecimalDigits DigitsOf(double value) {
  char text[64];
  const auto written = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific,
                                     kSignificant - 1);
  DecimalDigits decimal;
  const char* at = text;
  decimal.negative = *at == '-';
  if (decimal.negative) ++at;
  decimal.digits.clear();
  for (; at != written.ptr && *at != 'e'; ++at)
    if (*at != '.') decimal.digits += *at;
  ++at;                  // the e
  if (*at == '+') ++at;  // which from_chars does not take
  std::from_chars(at, written.ptr, decimal.exponent);
  StripTrailingZeros(decimal);
  return decimal;
}

void RoundAt(DecimalDigits& decimal, int power) {
  const int kept = decimal.exponent - power + 1;
  if (kept >= static_cast<int>(decimal.digits.size())) return;
  const bool up = kept >= 0 && decimal.digits[static_cast<std::size_t>(kept)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(kept > 0 ? kept : 0));
  if (up) {
    // Half of the last place or more in front of no digit at all becomes one such place: the
    // carry of Increment is then the digit itself.
    Increment(decimal);
  }
  StripTrailingZeros(decimal);
}

}  // namespace GlobalBAS
