#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "session/decimal_digits.h"
#include "session/global_bas.h"

// A value through a mask.
namespace GlobalBAS {
namespace {

// A mask taken apart: literal, digits, point, digits, exponent, literal.
struct MaskParts {
  std::string before;
  int wholePlaces = 0;  // 0 and # in front of the point
  int wholeShown = 0;   // of these, from the first 0 on
  int places = 0;       // 0 and # behind the point
  int placesShown = 0;  // of these, up to the last 0
  int exponentShown = 0;
  std::string behind;
};

bool IsPlace(char c) { return c == '0' || c == '#'; }

MaskParts Parse(std::string_view mask) {
  MaskParts parts;
  std::size_t at = 0;
  auto here = [&](std::size_t i) { return i < mask.size() ? mask[i] : '\0'; };
  while (at < mask.size() && !IsPlace(mask[at]) && mask[at] != '.') parts.before += mask[at++];
  for (; IsPlace(here(at)); ++at) {
    ++parts.wholePlaces;
    if (mask[at] == '0' || parts.wholeShown > 0) ++parts.wholeShown;
  }
  if (here(at) == '.') ++at;
  for (; IsPlace(here(at)); ++at) {
    ++parts.places;
    if (mask[at] == '0') parts.placesShown = parts.places;
  }
  if (here(at) == 'E' && here(at + 1) == '+' && here(at + 2) == '0')
    for (at += 2; here(at) == '0'; ++at) ++parts.exponentShown;
  parts.behind = mask.substr(std::min(at, mask.size()));
  return parts;
}

// The digits in front of the point, at least `shown` of them.
std::string WholeText(const DecimalDigits& decimal, int shift, int shown) {
  std::string text;
  const int first = std::max(decimal.IsZero() ? -1 : decimal.exponent - shift, shown - 1);
  for (int power = first; power >= 0; --power) text += decimal.At(power + shift);
  return text;
}

// The point and the digits behind it; neither when no digit is left to show.
std::string PlacesText(const DecimalDigits& decimal, int shift, const MaskParts& parts) {
  std::string digits;
  for (int power = -1; power >= -parts.places; --power) digits += decimal.At(power + shift);
  while (static_cast<int>(digits.size()) > parts.placesShown && digits.back() == '0')
    digits.pop_back();
  return digits.empty() ? digits : "." + digits;
}

std::string ExponentText(int exponent, int shown) {
  std::string digits;
  for (int rest = std::abs(exponent); rest > 0 || static_cast<int>(digits.size()) < shown;
       rest /= 10)
    digits.insert(digits.begin(), static_cast<char>('0' + rest % 10));
  return (exponent < 0 ? "E-" : "E+") + digits;
}

}  // namespace

// Rounds half away from zero on the 15-digit decimal text, so that what is rounded is what the
// general text shows. The minus sign stands directly before the first digit, and not at all
// before digits that are all zero.
std::string FormatNumber(double value, const std::string& mask) {
  if (mask.find_first_of("<>") != std::string::npos) return mask;  // a fixed text
  if (mask.empty() || !std::isfinite(value)) return GeneralText(value);
  const MaskParts parts = Parse(mask);
  if (parts.wholePlaces + parts.places == 0) return mask;
  DecimalDigits decimal = DigitsOf(value);
  const bool scientific = parts.exponentShown > 0;
  const int lead = std::max(parts.wholePlaces, 1) - 1;  // digits before the last whole place
  const int shift = scientific && !decimal.IsZero() ? decimal.exponent - lead : 0;
  RoundAt(decimal, shift - parts.places);
  // A carry such as 9.96 to 10.0 leaves the exponent one higher.
  const int moved = scientific && !decimal.IsZero() ? decimal.exponent - lead : 0;
  std::string text = parts.before;
  if (decimal.negative && !decimal.IsZero()) text += '-';
  text += WholeText(decimal, moved, parts.wholeShown);
  text += PlacesText(decimal, moved, parts);
  if (scientific) text += ExponentText(moved, parts.exponentShown);
  return text + parts.behind;
}

}  // namespace GlobalBAS
