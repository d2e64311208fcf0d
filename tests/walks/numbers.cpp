#include "tests/walks/numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "drive/text.h"
#include "session/global_bas.h"

namespace walks {
namespace {

std::string Trimmed(const std::string& text) { return std::string(drive::TrimBlanks(text)); }

// Half of what the last digit of the text's number stands for.
double HalfUnit(const std::string& text) {
  const std::size_t first = text.find_first_of("0123456789.");
  const std::size_t end = text.find_first_not_of("0123456789.", first);
  const std::string mantissa = text.substr(first, end - first);
  const std::size_t point = mantissa.find('.');
  const std::size_t places = point == std::string::npos ? 0 : mantissa.size() - 1 - point;
  double unit = std::pow(10.0, -static_cast<double>(places));
  if (end != std::string::npos && text[end] == 'E')
    unit *= std::pow(10.0, GlobalBAS::Val(text.substr(end + 1)));
  return unit / 2;
}

std::string Masked(double value, int sigDigits) {
  return Trimmed(GlobalBAS::FormatNumber(value, GlobalBAS::FormatMask(value, sigDigits)));
}

bool OfNumber(const std::string& text, std::size_t at) {
  const char c = text[at];
  if ((c >= '0' && c <= '9') || c == '.') return true;
  const bool behindDigit = at > 0 && text[at - 1] >= '0' && text[at - 1] <= '9';
  if (c == 'E') return behindDigit;
  return (c == '-' || c == '+') && at > 0 && text[at - 1] == 'E';
}

// The numbers of a label and what stands between them, without its blanks and line ends.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  bool number = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == ' ' || text[i] == '\r') continue;
    if (words.empty() || OfNumber(text, i) != number) words.emplace_back();
    number = OfNumber(text, i);
    words.back() += text[i];
  }
  return words;
}

}  // namespace

bool Near(double a, double b, double tolerance) {
  return a == b || std::abs(a - b) <= tolerance * std::max(std::abs(a), std::abs(b));
}

// A number that lies at the border of two roundings may show either.
bool Shows(const std::string& text, double value, int sigDigits) {
  constexpr double kRounding = 1E-9;
  const std::string shown = Trimmed(text);
  for (const double near : {value, value * (1 - kRounding), value * (1 + kRounding)})
    if (shown == Masked(near, sigDigits)) return true;
  const auto number = NumberIn(shown);
  return number && !shown.empty() && Near(*number, value, kRounding);
}

bool ShowsAtSomeWidth(const std::string& text, double value) {
  constexpr int kWidest = 17;
  constexpr double kSixDigits = 6E-6;
  const auto number = NumberIn(text);
  if (!number || Near(*number, value, kSixDigits)) return number.has_value();
  for (int width = 1; width <= kWidest; ++width)
    if (NumberIn(Masked(value, width)) == number) return true;
  return false;
}

std::optional<double> NumberIn(const std::string& text) {
  std::size_t first = text.find_first_of("0123456789");
  if (first == std::string::npos) return std::nullopt;
  if (first > 0 && text[first - 1] == '.') --first;
  if (first > 0 && text[first - 1] == '-') --first;
  return GlobalBAS::Val(text.substr(first));
}

bool SameRounded(const std::string& a, const std::string& b) {
  const auto first = NumberIn(a);
  const auto second = NumberIn(b);
  if (!first || !second) return false;
  const double rounding = 1.01 * (HalfUnit(a) + HalfUnit(b));
  return Near(*first, *second, 6E-6) || std::abs(*first - *second) <= rounding;
}

bool SameLabel(const std::string& a, const std::string& b) {
  const std::vector<std::string> first = Words(a);
  const std::vector<std::string> second = Words(b);
  return std::ranges::equal(first, second, [](const std::string& x, const std::string& y) {
    return x == y || SameRounded(x, y);
  });
}

bool Blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

bool BlankOrUnknown(const std::string& text) { return Blank(text) || Trimmed(text) == "unknown"; }

std::string LineOf(const std::string& text, int line) {
  std::size_t begin = 0;
  for (; line > 0 && begin != std::string::npos; --line) {
    begin = text.find('\r', begin);
    if (begin != std::string::npos) ++begin;
  }
  if (begin == std::string::npos) return {};
  return text.substr(begin, text.find('\r', begin) - begin);
}

std::string Word(double value) { return drive::NumberText(value); }

}  // namespace walks
