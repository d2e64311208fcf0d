#include "plots/density_marks.h"

#include <algorithm>

#include "plots/labels.h"
#include "plots/paper.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;

constexpr double kEdge = 120;  // of the surface, which stays free
constexpr double kGap = 120;   // between two labels
constexpr double kHair = 10;
constexpr double kMarkSize = 9;
constexpr double kTickEnd = 90;        // below the axis
constexpr double kShortestLeader = 5;  // from there to the label

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

}  // namespace

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
  Fit();
}

double MarkRow::Width(const Entry& entry) const {
  double width = 0;
  for (const Text& each : entry.texts) width = std::max(width, TextWidth(each.text, style_));
  return width + kGap;
}

double MarkRow::TotalWidth() const {
  double total = 0;
  for (const Entry& entry : entries_) total += Width(entry);
  return total;
}

int MarkRow::Rows() const {
  int rows = 0;
  for (const Entry& entry : entries_) {
    int own = 0;
    for (const Text& each : entry.texts) own += RowCount(each.text);
    rows = std::max(rows, own);
  }
  return rows;
}

double MarkRow::Room() const { return surface_.ScaleWidth() - 2 * kEdge + kGap; }

double MarkRow::Below() const { return surface_.ScaleHeight() - foot_; }

bool MarkRow::Fits() const {
  return Rows() * RowHeight(style_) <= Below() - leader_ && TotalWidth() <= Room();
}

// As near to the axis as the lines need it.
void MarkRow::MoveUp() {
  const double least = kTickEnd + kShortestLeader;
  const double free = Below() - Rows() * RowHeight(style_);
  leader_ = std::clamp(free, least, std::max(leader_, least));
}

bool MarkRow::FitBySize() {
  constexpr double kStep = 0.25;
  while (!Fits() && style_.size > kSmallest) style_.size = std::max(kSmallest, style_.size - kStep);
  return Fits();
}

// Breaks the widest at their blanks, until all stand beside each other.
void MarkRow::Wrap() {
  constexpr double kStep = 60;
  double widest = 0;
  for (const Entry& entry : entries_) widest = std::max(widest, Width(entry) - kGap);
  for (double width = widest; width > 0 && TotalWidth() > Room(); width -= kStep)
    for (Entry& entry : entries_)
      for (Text& each : entry.texts) each.text = Wrapped(each.text, width, style_);
}

// Nearer to the axis, in smaller letters, with shorter numbers, on more lines; on a surface that is
// too small for that, in letters as small as it takes.
void MarkRow::Fit() {
  MoveUp();
  if (FitBySize()) return;
  for (Entry& entry : entries_)
    for (Text& each : entry.texts) each.text = RoundedNumbers(each.text);
  if (TotalWidth() > Room()) Wrap();
  MoveUp();
  style_.size =
      std::min(style_.size, style_.size * (Below() - leader_) / (Rows() * RowHeight(style_)));
}

void MarkRow::Write(const Entry& entry, double centre) {
  const double top = foot_ + leader_;
  surface_.Line({entry.X, foot_ + kTickEnd}, {centre, top}, entry.colour, kHair);
  style_.colour = entry.colour;
  Point at{centre, top};
  for (const Text& each : entry.texts) {
    surface_.Text(at, each.text, style_, each.label);
    at.y += TextHeight(each.text, style_);
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

}  // namespace PlotWBas
