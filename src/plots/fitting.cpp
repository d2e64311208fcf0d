#include "plots/fitting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

#include "drawing/font.h"

namespace PlotWBas {
namespace {

using drawing::TextStyle;

constexpr int kDigits = 6;
constexpr std::string_view kEllipsis = "\u2026";

std::string_view WithoutLastLineEnd(std::string_view text) {
  while (text.ends_with('\r')) text.remove_suffix(1);
  return text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The length of the number at the head of `text`: digits with at most one point, and an exponent.
std::size_t NumberLength(std::string_view text) {
  std::size_t end = 0;
  const auto digits = [&] {
    while (end < text.size() && IsDigit(text[end])) ++end;
  };
  digits();
  if (end < text.size() && text[end] == '.') {
    ++end;
    digits();
  }
  if (end + 1 >= text.size() || text[end] != 'E') return end;
  const std::size_t exponent = end + (text[end + 1] == '-' || text[end + 1] == '+' ? 2 : 1);
  if (exponent >= text.size() || !IsDigit(text[exponent])) return end;
  end = exponent;
  digits();
  return end;
}

int SignificantDigits(std::string_view number) {
  number = number.substr(0, number.find('E'));
  number.remove_prefix(std::min(number.find_first_of("123456789"), number.size()));
  return static_cast<int>(std::ranges::count_if(number, IsDigit));
}

// Without the zeros at the end of its decimals.
std::string_view WithoutZeros(std::string_view mantissa) {
  if (mantissa.find('.') == std::string_view::npos) return mantissa;
  while (mantissa.ends_with('0')) mantissa.remove_suffix(1);
  if (mantissa.ends_with('.')) mantissa.remove_suffix(1);
  return mantissa;
}

double Read(std::string_view number) {
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return value;
}

std::string Written(double value, std::chars_format form, int decimals) {
  std::array<char, 400> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, form, decimals);
  return {buffer.data(), end.ptr};
}

// Of "1.06833e-05": "-5".
std::string ExponentOf(const std::string& scientific) {
  const std::size_t sign = scientific.find('e') + 1;
  const std::size_t digits =
      std::min(scientific.find_first_not_of('0', sign + 1), scientific.size() - 1);
  return scientific[sign] + scientific.substr(digits);
}

// As it was written, plainly or with a power of ten.
std::string Rounded(std::string_view number) {
  const std::string six = Written(Read(number), std::chars_format::scientific, kDigits - 1);
  const std::string exponent = ExponentOf(six);
  if (number.find('E') != std::string_view::npos)
    return std::string(WithoutZeros(std::string_view(six).substr(0, six.find('e')))) + "E" +
           exponent;
  const auto power = static_cast<int>(Read(exponent.substr(exponent[0] == '+' ? 1 : 0)));
  const int decimals = std::max(0, kDigits - 1 - power);
  return std::string(WithoutZeros(Written(Read(six), std::chars_format::fixed, decimals)));
}

double Share(drawing::Across across) {
  return across == drawing::Across::Left ? 0 : across == drawing::Across::Centre ? 0.5 : 1;
}
double Share(drawing::Down down) {
  return down == drawing::Down::Top ? 0 : down == drawing::Down::Middle ? 0.5 : 1;
}

// Where each character of a text in UTF-8 begins, and the end.
std::vector<std::size_t> Starts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i)
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) starts.push_back(i);
  starts.push_back(text.size());
  return starts;
}

// With `kept` of its characters, as many at either end.
std::string WithoutMiddle(const std::string& text, const std::vector<std::size_t>& starts,
                          std::size_t kept) {
  const std::size_t count = starts.size() - 1;
  if (kept >= count) return text;
  const std::size_t behind = kept / 2;
  return text.substr(0, starts[kept - behind]) + std::string(kEllipsis) +
         text.substr(starts[count - behind]);
}

// The longest `make(text with its middle left out)` that `fits`; with the fewest letters, where
// none does.
std::string LongestThatFits(const std::string& text,
                            const std::function<bool(const std::string&)>& fits) {
  const std::vector<std::size_t> starts = Starts(text);
  std::size_t kept = starts.size() - 1;
  while (kept > 2 && !fits(WithoutMiddle(text, starts, kept))) --kept;
  return WithoutMiddle(text, starts, kept);
}

}  // namespace

double RowHeight(const TextStyle& style) {
  return drawing::kTwipsPerPoint * drawing::kLineSpacing * style.size;
}

double TextWidth(const std::string& text, const TextStyle& style) {
  double longest = 0;
  std::string_view rest = text;
  while (true) {
    const std::size_t end = rest.find('\r');
    longest = std::max(longest, drawing::LineWidth(rest.substr(0, end), style.size, style.bold));
    if (end == std::string_view::npos) return longest;
    rest.remove_prefix(end + 1);
  }
}

int RowCount(const std::string& text) {
  const std::string_view shown = WithoutLastLineEnd(text);
  return shown.empty() ? 0 : 1 + static_cast<int>(std::ranges::count(shown, '\r'));
}

double TextHeight(const std::string& text, const TextStyle& style) {
  return RowCount(text) * RowHeight(style);
}

Box BoxOf(drawing::Point at, const std::string& text, const TextStyle& style) {
  const double width = TextWidth(text, style);
  const double height = TextHeight(text, style);
  const double left = at.x - Share(style.across) * width;
  const double top = at.y - Share(style.down) * height;
  return {left, top, left + width, top + height};
}

double FittingSize(const std::string& text, double width, const TextStyle& style) {
  const double wide = TextWidth(text, style);
  return wide <= width ? style.size : std::max(kSmallest, style.size * width / wide);
}

std::string Wrapped(const std::string& text, double width, const TextStyle& style) {
  std::string wrapped;
  std::string line;
  auto end = [&] { wrapped += std::exchange(line, {}); };
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t stop = std::min(text.find_first_of(" \r", at), text.size());
    const std::string word = text.substr(at, stop - at);
    if (!line.empty() && !word.empty() && TextWidth(line + " " + word, style) > width) {
      end();
      wrapped += '\r';
    }
    line += (line.empty() || word.empty() ? "" : " ") + word;
    if (stop < text.size() && text[stop] == '\r') {
      end();
      wrapped += '\r';
    }
    at = stop + 1;
  }
  end();
  return wrapped;
}

std::string Elided(const std::string& text, double width, const TextStyle& style) {
  return LongestThatFits(
      text, [&](const std::string& shorter) { return TextWidth(shorter, style) <= width; });
}

std::string RoundedNumbers(const std::string& text) {
  std::string rounded;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t length = IsDigit(rest.front()) ? NumberLength(rest) : 1;
    const std::string_view part = rest.substr(0, length);
    rounded += SignificantDigits(part) > kDigits ? Rounded(part) : std::string(part);
    rest.remove_prefix(length);
  }
  return rounded;
}

Fitted FittedNumbers(const std::string& text, double width, const TextStyle& style) {
  Fitted fitted{text, style};
  const auto wide = [&] { return TextWidth(fitted.text, fitted.style) > width; };
  fitted.style.size = FittingSize(text, width, style);
  if (!wide()) return fitted;
  fitted.text = RoundedNumbers(text);
  fitted.style.size = FittingSize(fitted.text, width, style);
  if (wide()) fitted.text = Wrapped(fitted.text, width, fitted.style);
  return fitted;
}

Fitted FittedName(const std::function<std::string(const std::string&)>& compose,
                  const std::string& name, double width, const TextStyle& style) {
  constexpr double kSomewhat = 0.85;
  Fitted fitted{compose(name), style};
  fitted.style.size =
      std::max({FittingSize(fitted.text, width, style), kSomewhat * style.size, kSmallest});
  const auto fits = [&](const std::string& shorter) {
    return TextWidth(compose(shorter), fitted.style) <= width;
  };
  fitted.text = compose(LongestThatFits(name, fits));
  fitted.style.size = FittingSize(fitted.text, width, fitted.style);
  return fitted;
}

}  // namespace PlotWBas
