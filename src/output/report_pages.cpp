#include "output/report_pages.h"

#include <algorithm>

#include "drawing/font.h"
#include "output/form_page.h"

namespace output {
namespace {

constexpr double kMargin = 10 * kTwipsPerMm;
constexpr double kColumns = 100;  // the unit stands at column 85
constexpr double kLargest = 10;   // letters, in points

}  // namespace

std::vector<drawing::DrawingRecord> ReportPages(const std::vector<std::string>& lines,
                                                screen::Extent paper) {
  const double room = paper.width - 2 * kMargin;
  const double fitting = room / (kColumns * drawing::kFixedWidth * drawing::kTwipsPerPoint);
  const drawing::TextStyle style{.size = std::min(kLargest, fitting),
                                 .family = drawing::kFixedFont};
  const double spacing = style.size * drawing::kTwipsPerPoint * drawing::kLineSpacing;
  std::vector<drawing::DrawingRecord> pages;
  double top = paper.height;
  for (const std::string& line : lines) {
    if (pages.empty() || top + spacing > paper.height - kMargin) {
      pages.emplace_back(paper.width, paper.height);
      top = kMargin;
    }
    if (!line.empty()) pages.back().Text({kMargin, top}, line, style, "Line");
    top += spacing;
  }
  return pages;
}

}  // namespace output
