#include <cmath>
#include <string>

#include "session/decimal_digits.h"
#include "session/global_bas.h"

// How a number becomes text without a mask.
namespace GlobalBAS {
namespace {

constexpr int kMostPlaces = 15;  // places behind the point in the fixed form
constexpr int kFirstLarge = 15;  // exponent from which on the E form is used

std::string Exponent(int exponent) {
  std::string text = exponent < 0 ? "E-" : "E+";
  const int size = exponent < 0 ? -exponent : exponent;
  if (size >= 100) text += static_cast<char>('0' + size / 100);
  text += static_cast<char>('0' + size / 10 % 10);
  text += static_cast<char>('0' + size % 10);
  return text;
}

std::string FixedForm(const DecimalDigits& decimal, int places, const char* beforePoint) {
  std::string text(decimal.exponent < 0 ? beforePoint : "");
  for (int power = decimal.exponent; power >= 0; --power) text += decimal.At(power);
  if (places > 0) text += '.';
  for (int power = -1; power >= -places; --power) text += decimal.At(power);
  return text;
}

std::string Lay(double value, const char* beforePoint) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  const DecimalDigits decimal = DigitsOf(value);
  if (decimal.IsZero()) return "0";
  const std::string sign = decimal.negative ? "-" : "";
  const int places = static_cast<int>(decimal.digits.size()) - 1 - decimal.exponent;
  if (decimal.exponent < kFirstLarge && places <= kMostPlaces)
    return sign + FixedForm(decimal, places, beforePoint);
  std::string mantissa = decimal.digits;
  if (mantissa.size() > 1) mantissa.insert(std::size_t{1}, std::size_t{1}, '.');
  return sign + mantissa + Exponent(decimal.exponent);
}

}  // namespace

std::string GeneralText(double value) { return Lay(value, ""); }

std::string FileText(double value) { return Lay(value, "0"); }

std::string Str(double value) {
  std::string text(value < 0 ? 0 : 1, ' ');
  return text += GeneralText(value);
}

}  // namespace GlobalBAS
