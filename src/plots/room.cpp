#include "plots/room.h"

#include <algorithm>

#include "analysis/rankits.h"

namespace PlotWBas {
namespace {

using drawing::Point;

constexpr double kHalfCross = 60;
constexpr double kHair = 10;

// Whether the line from one point to the other meets the box: the parts of it that lie between the
// sides of the box, across and down, have something in common.
bool Meets(const Box& box, const LineEnds& line) {
  double from = 0;
  double to = 1;
  const auto cut = [&](double start, double end, double low, double high) {
    if (start == end) return start > low && start < high;
    const double a = (low - start) / (end - start);
    const double b = (high - start) / (end - start);
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
    return from < to;
  };
  return cut(line.lower.x, line.upper.x, box.left, box.right) &&
         cut(line.lower.y, line.upper.y, box.top, box.bottom);
}

}  // namespace

Room::Room(const Paper& paper, const PlotData& data, const std::optional<LineEnds>& line)
    : frame_(paper.Edges()), line_(line) {
  const int M = SampleCount(data.s);
  points_.reserve(static_cast<std::size_t>(M));
  for (int i = 1; i <= M; ++i)
    points_.push_back(paper.At(data.CTransf[static_cast<std::size_t>(i)],
                               analysis::Score(data.RankitTable, M, i)));
}

bool Room::IsFree(const Label& label) const {
  const Box box = BoxOf(label);
  const bool inside = box.left >= frame_.XasStart && box.right <= frame_.XasEinde &&
                      box.top >= frame_.YasTop && box.bottom <= frame_.YasBot;
  if (!inside || (line_ && Meets(box, *line_))) return false;
  const auto overlaps = [&](const Box& other) {
    return box.left < other.right + kHair && other.left - kHair < box.right &&
           box.top < other.bottom + kHair && other.top - kHair < box.bottom;
  };
  if (std::ranges::any_of(taken_, overlaps)) return false;
  return std::ranges::none_of(points_, [&](Point at) {
    return at.x > box.left - kHalfCross && at.x < box.right + kHalfCross &&
           at.y > box.top - kHalfCross && at.y < box.bottom + kHalfCross;
  });
}

const Label& Room::FirstFree(const std::vector<Label>& places) const {
  const auto free = std::ranges::find_if(places, [this](const Label& l) { return IsFree(l); });
  return free == places.end() ? places.front() : *free;
}

}  // namespace PlotWBas
