#include "plots/density_labels.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plots/density_marks.h"
#include "plots/fitting.h"
#include "plots/paper.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;
using drawing::TextStyle;

constexpr double kEdge = 120;  // of the surface, which stays free
constexpr double kGap = 120;   // between a text and what is beside it

constexpr drawing::Colour kQuiet{110, 110, 110};
constexpr drawing::Colour kFrame{0, 0, 0};

// On as many lines as needed. A word that would fill a line, a long name without a blank, loses its
// middle, so that the "of" before it stays with it.
std::string Fitting(const std::string& text, double width, const TextStyle& style) {
  const double room = width - TextWidth("of ", style);
  std::string fitting;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(" \r", at), text.size());
    fitting += Elided(text.substr(at, end - at), room, style);
    if (end < text.size()) fitting += text[end];
    at = end + 1;
  }
  return Wrapped(fitting, width, style);
}

// The headlines, one below the other, in the first place that is free of curve and marks.
class Headlines {
 public:
  Headlines(drawing::DrawSurface& surface, const DensityScale& scale, const DensityData& data)
      : surface_(surface), scale_(scale), data_(data) {}
  void Write();

 private:
  struct Block {
    std::vector<drawing::DrawnText> texts;  // from the corner (0, 0) on
    double width = 0;
    double height = 0;
  };
  Block Set(double width, double share) const;
  bool Free(const Box& box) const;
  bool Place(const Block& block);
  void WriteAt(const Block& block, Point corner);

  drawing::DrawSurface& surface_;
  const DensityScale& scale_;
  const DensityData& data_;
};

// `share` of the sizes that are wanted.
Headlines::Block Headlines::Set(double width, double share) const {
  const double W = surface_.ScaleWidth();
  const double H = surface_.ScaleHeight();
  Block block;
  auto add = [&](const char* label, const std::string& text, double size, bool bold,
                 drawing::Colour colour) {
    if (text.empty()) return;
    TextStyle style = Style(W, H, size * share, Across::Left, Down::Top);
    style.size = std::max(style.size, kSmallest);
    style.bold = bold;
    style.colour = colour;
    drawing::DrawnText drawn{{0, block.height}, Fitting(text, width, style), style, label};
    block.width = std::max(block.width, TextWidth(drawn.text, style));
    block.height += TextHeight(drawn.text, style) + 60;
    block.texts.push_back(std::move(drawn));
  };
  add("LblKoptekst", data_.headline, 11, true, kFrame);
  add("LblToets", data_.explanation, 9, false, kFrame);
  add("LblRightTxt", data_.header, 8, false, kQuiet);
  return block;
}

bool Headlines::Free(const Box& box) const {
  const double left = box.left - kGap;
  const double right = box.right + kGap;
  if (box.left < kEdge || right > surface_.ScaleWidth()) return false;
  double limit = std::min(scale_.CurveTop(left, right), scale_.Foot());
  for (const DensityMark& mark : data_.marks) {
    const double X = MarkPlace(scale_, mark);
    if (X >= left && X <= right) limit = std::min(limit, MarkTop(scale_, mark));
  }
  return box.bottom + kGap <= limit;
}

bool Headlines::Place(const Block& block) {
  const double right = surface_.ScaleWidth() - kEdge;
  for (const double left : {right - block.width, kEdge + kGap}) {
    if (!Free({left, kEdge, left + block.width, kEdge + block.height})) continue;
    WriteAt(block, {left, kEdge});
    return true;
  }
  return false;
}

void Headlines::WriteAt(const Block& block, Point corner) {
  for (const drawing::DrawnText& text : block.texts)
    surface_.Text({corner.x + text.at.x, corner.y + text.at.y}, text.text, text.style, text.label);
}

// The widest block that is free; smaller letters only when no width is.
void Headlines::Write() {
  constexpr std::array kShares = {0.62, 0.54, 0.46, 0.4, 0.34, 0.3, 0.26, 0.22, 0.18};
  constexpr std::array kSizes = {1.0, 0.9, 0.8, 0.7, 0.6};
  for (const double size : kSizes)
    for (const double share : kShares)
      if (Place(Set(share * surface_.ScaleWidth(), size))) return;
  const Block block = Set(kShares.front() * surface_.ScaleWidth(), kSizes.back());
  WriteAt(block, {surface_.ScaleWidth() - kEdge - block.width, kEdge});
}

}  // namespace

void WriteDensityLabels(drawing::DrawSurface& surface, const DensityScale& scale,
                        const DensityData& data) {
  MarkRow(surface, scale, data).Write();
  Headlines(surface, scale, data).Write();
}

}  // namespace PlotWBas
