#include "plots/limit_lines.h"

#include "analysis/transformations.h"
#include "base/fault.h"
#include "session/global_bas.h"
#include "session/limit_checks.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;

constexpr drawing::Colour kLOQ{0, 110, 60};
constexpr drawing::Colour kURR{140, 70, 0};
constexpr double kPen = drawing::kTwipsPerPixel;
constexpr double kBeside = 45;  // from the line to its label

double Outcome(const ExposureSession& s, int i) { return s.C[static_cast<std::size_t>(i)]; }

LimitMark MarkAt(const Paper& paper, const PlotData& data, double limit) {
  const double y = analysis::TransformValue(data.Transformation, limit);
  const double away = paper.OutcomesUp() ? paper.Highest() - y : y - paper.Lowest();
  return {true, paper.Span() == 0 ? 0.5 : Divide(away, paper.Span()), paper.OutcomePlace(y)};
}

// One limit with the look that it has in the plot.
struct Limit {
  const char* label;
  std::string text;
  drawing::Colour colour;
  const LimitMark& mark;
};

void DrawLine(drawing::DrawSurface& surface, const Paper& paper, const Limit& limit) {
  const Frame& f = paper.Edges();
  const double place = limit.mark.place;
  if (paper.OutcomesUp())
    surface.Line({f.XasStart, place}, {f.XasEinde, place}, limit.colour, kPen);
  else
    surface.Line({place, f.YasTop}, {place, f.YasBot}, limit.colour, kPen);
}

// The label at one of the line's ends, or so far from it, on one of its sides.
Label LabelAt(const Paper& paper, const Limit& limit, Across across, Down down, double away) {
  const Frame& f = paper.Edges();
  const double place = limit.mark.place;
  const bool right = across == Across::Right;
  const bool bottom = down == Down::Bottom;
  const Point at = paper.OutcomesUp() ? Point{right ? f.XasEinde - away : f.XasStart + away,
                                              place + (bottom ? -kBeside : kBeside)}
                                      : Point{place + (right ? -kBeside : kBeside),
                                              bottom ? f.YasBot - away : f.YasTop + away};
  drawing::TextStyle style = Style(paper.ScaleWidth(), paper.ScaleHeight(), 8.5, across, down);
  style.colour = limit.colour;
  return {limit.label, limit.text, at, style};
}

// From both ends of the line inward.
std::vector<Label> PlacesAlong(const Paper& paper, const Limit& limit, Across across, Down down) {
  constexpr int kSteps = 40;
  const Frame& f = paper.Edges();
  const Across otherSide = across == Across::Left ? Across::Right : Across::Left;
  const Down otherWay = down == Down::Top ? Down::Bottom : Down::Top;
  const bool up = paper.OutcomesUp();
  const double length = up ? f.XasEinde - f.XasStart : f.YasBot - f.YasTop;
  std::vector<Label> places;
  for (int i = 0; i < kSteps; ++i) {
    const double away = i * length / kSteps;
    places.push_back(LabelAt(paper, limit, across, down, away));
    places.push_back(LabelAt(paper, limit, up ? across : otherSide, up ? otherWay : down, away));
    places.push_back(LabelAt(paper, limit, up ? otherSide : across, up ? down : otherWay, away));
    places.push_back(LabelAt(paper, limit, otherSide, otherWay, away));
  }
  return places;
}

// The first places lie away from the points, on the side outside of the range: low limits have
// room below the rising points, high ones above them.
void PutLabel(Labels& labels, const Paper& paper, Room& room, const Limit& limit, Across across,
              Down down) {
  if (!limit.mark.shown) return;
  const Label label = room.FirstFree(PlacesAlong(paper, limit, across, down));
  room.Take(BoxOf(label));
  labels.push_back(label);
}

// Neither label lies on the line of the other limit.
void TakeLine(Room& room, const Paper& paper, const LimitMark& mark) {
  if (!mark.shown) return;
  const Frame& f = paper.Edges();
  if (paper.OutcomesUp())
    room.Take({f.XasStart, mark.place, f.XasEinde, mark.place});
  else
    room.Take({mark.place, f.YasTop, mark.place, f.YasBot});
}

}  // namespace

LimitMark LOQMark(const Paper& paper, const PlotData& data, bool active) {
  const ExposureSession& s = data.s;
  const double C1 = Outcome(s, 1);
  const bool asked = s.LOQ >= kBelowLowest * C1 || active;
  if (!asked || s.LOQ <= C1) return {false, paper.OutcomesUp() ? 1.0 : 0.0, 0};
  return MarkAt(paper, data, s.LOQ);
}

LimitMark URRMark(const Paper& paper, const PlotData& data, bool active) {
  const ExposureSession& s = data.s;
  const double CM = Outcome(s, SampleCount(s));
  const bool asked = (Outcome(s, 3) < s.URR && s.URR <= kAboveHighest * CM) || active;
  if (!asked || s.URR >= CM) return {false, paper.OutcomesUp() ? 0.0 : 1.0, 0};
  return MarkAt(paper, data, s.URR);
}

void DrawLimits(drawing::DrawSurface& surface, Labels& labels, const Paper& paper,
                const PlotData& data, Room room, const LimitMark& LOQ, const LimitMark& URR) {
  const ExposureSession& s = data.s;
  const Limit low{"LblLnLOQ", "LOQ " + GlobalBAS::Shown(s, s.LOQ), kLOQ, LOQ};
  const Limit high{"LblLnURR", "URR " + GlobalBAS::Shown(s, s.URR), kURR, URR};
  for (const Limit& limit : {low, high}) {
    if (limit.mark.shown) DrawLine(surface, paper, limit);
    TakeLine(room, paper, limit.mark);
  }
  PutLabel(labels, paper, room, low, Across::Right, Down::Top);
  PutLabel(labels, paper, room, high, Across::Left, Down::Bottom);
}

}  // namespace PlotWBas
