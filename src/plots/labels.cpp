#include "plots/labels.h"

#include <algorithm>
#include <numeric>

namespace PlotWBas {
namespace {

constexpr double kTwipsPerPoint = 20;

// An upper estimate of a letter's width, in font sizes, for the fonts that stand in for Arial.
double LetterWidth(char letter) {
  constexpr std::string_view kNarrow = " .,:;'|!()[]/\\-Ifijlrt";
  constexpr std::string_view kWide = "MW%@mw&";
  if (kNarrow.find(letter) != std::string_view::npos) return 0.36;
  if (kWide.find(letter) != std::string_view::npos) return 0.92;
  // The second byte of a letter beyond ASCII takes no room of its own.
  if ((static_cast<unsigned char>(letter) & 0xC0) == 0x80) return 0;
  return letter >= 'A' && letter <= 'Z' ? 0.74 : 0.6;
}

double LineWidth(std::string_view line) {
  double width = 0;
  for (const char letter : line) width += LetterWidth(letter);
  return width;
}

std::string_view WithoutLastLineEnd(std::string_view text) {
  while (text.ends_with('\r')) text.remove_suffix(1);
  return text;
}

double LongestLine(std::string_view text) {
  double longest = 0;
  while (true) {
    const std::size_t end = text.find('\r');
    longest = std::max(longest, LineWidth(text.substr(0, end)));
    if (end == std::string_view::npos) return longest;
    text.remove_prefix(end + 1);
  }
}

}  // namespace

const Label* FindLabel(const Labels& labels, const std::string& name) {
  const auto found = std::ranges::find(labels, name, &Label::name);
  return found == labels.end() ? nullptr : &*found;
}

void WriteLabels(drawing::DrawSurface& surface, const Labels& labels) {
  for (const Label& label : labels)
    surface.Text(label.at, std::string(WithoutLastLineEnd(label.text)), label.style, label.name);
}

double RowHeight(const drawing::TextStyle& style) {
  return kTwipsPerPoint * drawing::kLineSpacing * style.size;
}

double TextWidth(const std::string& text, double size) {
  return kTwipsPerPoint * size * LongestLine(text);
}

int RowCount(const std::string& text) {
  const std::string_view shown = WithoutLastLineEnd(text);
  return shown.empty() ? 0 : 1 + static_cast<int>(std::ranges::count(shown, '\r'));
}

double FittingSize(const std::string& text, double width, double wanted, double least) {
  const double perPoint = TextWidth(text, 1);
  return perPoint * wanted <= width ? wanted : std::max(least, width / perPoint);
}

std::vector<double> SpreadOut(const std::vector<Stand>& wanted, double low, double high) {
  std::vector<std::size_t> order(wanted.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return wanted[i].centre; });
  std::vector<double> centres(wanted.size());
  double free = low;  // from here on nothing stands yet
  for (const std::size_t i : order) {
    centres[i] = std::max(wanted[i].centre, free + wanted[i].half);
    free = centres[i] + wanted[i].half;
  }
  double limit = high;
  for (auto at = order.rbegin(); at != order.rend(); ++at) {
    centres[*at] = std::min(centres[*at], limit - wanted[*at].half);
    limit = centres[*at] - wanted[*at].half;
  }
  return centres;
}

}  // namespace PlotWBas
