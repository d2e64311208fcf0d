#include "plots/density_labels.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plots/labels.h"
#include "plots/paper.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;
using drawing::TextStyle;

constexpr double kEdge = 120;  // of the surface, which stays free
constexpr double kGap = 120;   // between a text and what is beside it
constexpr double kHair = 10;
constexpr double kMarkSize = 9;
constexpr double kLeastSize = 4;

constexpr drawing::Colour kQuiet{110, 110, 110};
constexpr drawing::Colour kFrame{0, 0, 0};

// One blank for each run of them, as FormatMask leaves in front of a number.
std::string Squeezed(const std::string& text) {
  std::string squeezed;
  for (const char c : text)
    if (c != ' ' || (!squeezed.empty() && squeezed.back() != ' ' && squeezed.back() != '\r'))
      squeezed += c;
  return squeezed;
}

// Moves what overlaps to either side, so that the sum of the squared ways is the least: the places
// less the widths before them must not fall, and neighbours that do take their common mean.
void ToEitherSide(std::vector<Stand>& stands) {
  std::ranges::stable_sort(stands, {}, &Stand::centre);
  struct Group {
    double sum = 0;
    int count = 0;
    double Mean() const { return sum / count; }
  };
  std::vector<Group> groups;
  std::vector<double> before(stands.size());
  for (std::size_t i = 0; i < stands.size(); ++i) {
    if (i > 0) before[i] = before[i - 1] + stands[i - 1].half + stands[i].half;
    groups.push_back({stands[i].centre - before[i], 1});
    while (groups.size() > 1 && groups[groups.size() - 2].Mean() > groups.back().Mean()) {
      const Group last = groups.back();
      groups.pop_back();
      groups.back().sum += last.sum;
      groups.back().count += last.count;
    }
  }
  std::size_t i = 0;
  for (const Group& group : groups)
    for (int k = 0; k < group.count; ++k, ++i) stands[i].centre = group.Mean() + before[i];
}

// The labels below the axis.
class MarkRow {
 public:
  MarkRow(drawing::DrawSurface& surface, const DensityScale& scale, const DensityData& data);
  void Write();

 private:
  struct Entry {
    double X = 0;
    drawing::Colour colour;
    std::vector<std::pair<std::string, std::string>> texts;  // label, text
  };
  void ChooseSize();
  double Width(const Entry& entry) const;
  double TotalWidth() const;
  void Write(const Entry& entry, double centre);

  drawing::DrawSurface& surface_;
  double foot_;
  double leader_;  // how far below the axis the labels begin
  std::vector<Entry> entries_;
  TextStyle style_;
};

MarkRow::MarkRow(drawing::DrawSurface& surface, const DensityScale& scale, const DensityData& data)
    : surface_(surface),
      foot_(scale.Foot()),
      leader_(60 + 160 * TextScale(surface.ScaleWidth(), surface.ScaleHeight())) {
  for (const DensityMark& mark : data.marks)
    entries_.push_back({MarkPlace(scale, mark), mark.colour, {{mark.name, Squeezed(mark.text)}}});
  entries_.push_back({scale.AxisEnd(),
                      kFrame,
                      {{"XasLbl(0)", data.endText}, {"XasLbl", Squeezed(data.endValue)}}});
  std::ranges::stable_sort(entries_, {}, &Entry::X);
  style_ = Style(surface.ScaleWidth(), surface.ScaleHeight(), kMarkSize, Across::Centre, Down::Top);
  ChooseSize();
}

double MarkRow::Width(const Entry& entry) const {
  double width = 0;
  for (const auto& [label, text] : entry.texts)
    width = std::max(width, TextWidth(text, style_.size));
  return width + kGap;
}

double MarkRow::TotalWidth() const {
  double total = 0;
  for (const Entry& entry : entries_) total += Width(entry);
  return total;
}

// So small that two lines fit below the axis and all labels beside each other.
void MarkRow::ChooseSize() {
  constexpr int kRows = 2;
  constexpr double kStep = 0.25;
  const double height = surface_.ScaleHeight() - foot_ - leader_ - 30;
  const double width = surface_.ScaleWidth() - 2 * kEdge;
  while (style_.size > kLeastSize && (kRows * RowHeight(style_) > height || TotalWidth() > width))
    style_.size -= kStep;
}

void MarkRow::Write(const Entry& entry, double centre) {
  const double top = foot_ + leader_;
  surface_.Line({entry.X, foot_ + 90}, {centre, top}, entry.colour, kHair);
  style_.colour = entry.colour;
  Point at{centre, top};
  for (const auto& [label, text] : entry.texts) {
    surface_.Text(at, text, style_, label);
    at.y += RowHeight(style_) * RowCount(text);
  }
}

void MarkRow::Write() {
  std::vector<Stand> wanted;
  for (const Entry& entry : entries_) wanted.push_back({entry.X, Width(entry) / 2});
  ToEitherSide(wanted);
  const std::vector<double> centres =
      SpreadOut(wanted, kEdge - kGap / 2, surface_.ScaleWidth() - kEdge + kGap / 2);
  for (std::size_t i = 0; i < entries_.size(); ++i) Write(entries_[i], centres[i]);
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
    style.bold = bold;
    style.colour = colour;
    drawing::DrawnText drawn{{0, block.height}, Wrapped(text, width, style.size), style, label};
    block.width = std::max(block.width, TextWidth(drawn.text, style.size));
    block.height += RowHeight(style) * RowCount(drawn.text) + 60;
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

std::string Wrapped(const std::string& text, double width, double size) {
  std::string wrapped;
  std::string line;
  auto end = [&] { wrapped += std::exchange(line, {}); };
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t stop = std::min(text.find_first_of(" \r", at), text.size());
    const std::string word = text.substr(at, stop - at);
    if (!line.empty() && !word.empty() && TextWidth(line + " " + word, size) > width) {
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

Box BoxOf(const drawing::DrawnText& text) {
  const double width = TextWidth(text.text, text.style.size);
  const double height = RowHeight(text.style) * RowCount(text.text);
  const double left = text.style.across == Across::Left     ? 0
                      : text.style.across == Across::Centre ? width / 2
                                                            : width;
  const double top = text.style.down == Down::Top      ? 0
                     : text.style.down == Down::Middle ? height / 2
                                                       : height;
  const Point corner{text.at.x - left, text.at.y - top};
  return {corner.x, corner.y, corner.x + width, corner.y + height};
}

void WriteDensityLabels(drawing::DrawSurface& surface, const DensityScale& scale,
                        const DensityData& data) {
  MarkRow(surface, scale, data).Write();
  Headlines(surface, scale, data).Write();
}

}  // namespace PlotWBas
