#include "plots/labels.h"

#include <algorithm>
#include <numeric>

namespace PlotWBas {
namespace {

std::string_view WithoutLastLineEnd(std::string_view text) {
  while (text.ends_with('\r')) text.remove_suffix(1);
  return text;
}

}  // namespace

Box BoxOf(const Label& label) { return BoxOf(label.at, label.text, label.style); }

const Label* FindLabel(const Labels& labels, const std::string& name) {
  const auto found = std::ranges::find(labels, name, &Label::name);
  return found == labels.end() ? nullptr : &*found;
}

void WriteLabels(drawing::DrawSurface& surface, const Labels& labels) {
  for (const Label& label : labels)
    surface.Text(label.at, std::string(WithoutLastLineEnd(label.text)), label.style, label.name);
}

bool Shows(const drawing::DrawingRecord& drawing, const std::string& label,
           const std::string& text) {
  return std::ranges::any_of(drawing.Items(), [&](const auto& item) {
    const auto* drawn = std::get_if<drawing::DrawnText>(&item);
    if (!drawn || drawn->label != label) return false;
    std::string inOneLine = drawn->text;
    std::ranges::replace(inOneLine, '\r', ' ');
    return inOneLine.find(text) != std::string::npos;
  });
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
