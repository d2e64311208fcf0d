#include "output/form_page.h"

#include <algorithm>
#include <vector>

#include "drawing/font.h"
#include "drawing/inset.h"

namespace output {
namespace {

using drawing::Across;

constexpr double kMargin = 10 * kTwipsPerMm;
constexpr double kFootSize = 8;
constexpr double kLine = kFootSize * drawing::kTwipsPerPoint * drawing::kLineSpacing;
constexpr double kGap = 3 * kTwipsPerMm;

bool BeginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

// A name is broken anywhere: a path has no blanks.
std::vector<std::string> Broken(const std::string& name, double room) {
  std::vector<std::string> lines{""};
  for (std::size_t at = 0; at < name.size();) {
    std::size_t end = at + 1;
    while (end < name.size() && !BeginsCharacter(name[end])) ++end;
    const std::string letter = name.substr(at, end - at);
    const bool fits = drawing::LineWidth(lines.back() + letter, kFootSize, false) <= room;
    if (!fits && !lines.back().empty()) lines.emplace_back();
    lines.back() += letter;
    at = end;
  }
  return lines;
}

std::string OneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace

double DrawFoot(drawing::DrawSurface& page, const Foot& foot, double left, double right,
                double bottom) {
  const std::string beside = foot.window.empty() ? foot.date : foot.date + "     " + foot.window;
  const double taken = drawing::LineWidth(beside, kFootSize, false);
  const std::vector<std::string> lines =
      Broken(OneLine(foot.name), std::max(right - left - taken - kGap, kGap));
  const double top = bottom - kLine * static_cast<double>(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i)
    if (!lines[i].empty())
      page.Text({left, top + kLine * static_cast<double>(i)}, lines[i], {.size = kFootSize},
                "FootName");
  page.Text({right, top}, beside, {.across = Across::Right, .size = kFootSize}, "FootDate");
  return top;
}

drawing::DrawingRecord FormPage(const drawing::DrawingRecord& form, const Foot& foot,
                                screen::Extent paper) {
  if (form.ScaleWidth() > form.ScaleHeight()) std::swap(paper.width, paper.height);
  drawing::DrawingRecord page(paper.width, paper.height);
  const double foots =
      DrawFoot(page, foot, kMargin, paper.width - kMargin, paper.height - kMargin) - kGap;
  page.Line({kMargin, foots + kGap / 2}, {paper.width - kMargin, foots + kGap / 2}, {}, 5);
  const double factor = std::min((paper.width - 2 * kMargin) / form.ScaleWidth(),
                                 (foots - kMargin) / form.ScaleHeight());
  const drawing::Point corner{(paper.width - factor * form.ScaleWidth()) / 2, kMargin};
  drawing::Inset part(page, corner, factor, form.ScaleWidth(), form.ScaleHeight());
  form.ReplayOn(part);
  return page;
}

}  // namespace output
