#include "plots/limit_lines.h"

#include "analysis/transformations.h"
#include "base/fault.h"
#include "session/global_bas.h"

namespace PlotWBas {
namespace {

using screen::Across;
using screen::Down;
using screen::Point;

constexpr screen::Colour kLOQ{0, 110, 60};
constexpr screen::Colour kURR{140, 70, 0};
constexpr double kPen = 15;
constexpr double kBeside = 45;  // from the line to its label

double Outcome(const ExposureSession& s, int i) { return s.C[static_cast<std::size_t>(i)]; }

LimitMark MarkAt(const Paper& paper, const PlotData& data, double limit) {
  const double y = analysis::TransformValue(data.Transformation, limit);
  const double away = paper.OutcomesUp() ? paper.Highest() - y : y - paper.Lowest();
  return {true, paper.Span() == 0 ? 0.5 : Divide(away, paper.Span()), paper.OutcomePlace(y)};
}

void DrawLimit(screen::DrawSurface& surface, const Paper& paper, double place,
               screen::Colour colour) {
  const Frame& f = paper.Edges();
  if (paper.OutcomesUp())
    surface.Line({f.XasStart, place}, {f.XasEinde, place}, colour, kPen);
  else
    surface.Line({place, f.YasTop}, {place, f.YasBot}, colour, kPen);
}

void PutLimit(Labels& labels, const Paper& paper, const char* name, const std::string& text,
              Point at, Across across, Down down, screen::Colour colour) {
  screen::TextStyle style = Style(paper.ScaleWidth(), paper.ScaleHeight(), 8.5, across, down);
  style.colour = colour;
  labels.push_back({name, text, at, style});
}

}  // namespace

LimitMark LOQMark(const Paper& paper, const PlotData& data, bool active) {
  const ExposureSession& s = data.s;
  const double C1 = Outcome(s, 1);
  const bool asked = s.LOQ >= 0.95 * C1 || active;
  if (!asked || s.LOQ <= C1) return {false, paper.OutcomesUp() ? 1.0 : 0.0, 0};
  return MarkAt(paper, data, s.LOQ);
}

LimitMark URRMark(const Paper& paper, const PlotData& data, bool active) {
  const ExposureSession& s = data.s;
  const double CM = Outcome(s, SampleCount(s));
  const bool asked = (Outcome(s, 3) < s.URR && s.URR <= 1.05 * CM) || active;
  if (!asked || s.URR >= CM) return {false, paper.OutcomesUp() ? 0.0 : 1.0, 0};
  return MarkAt(paper, data, s.URR);
}

// Where few points can be: beside the line on the side that lies outside of the range, at the end
// that lies away from the points.
void DrawLOQ(screen::DrawSurface& surface, Labels& labels, const Paper& paper, const PlotData& data,
             const LimitMark& mark) {
  if (!mark.shown) return;
  DrawLimit(surface, paper, mark.place, kLOQ);
  const Frame& f = paper.Edges();
  const std::string text = "LOQ " + GlobalBAS::Shown(data.s, data.s.LOQ);
  if (paper.OutcomesUp()) {
    PutLimit(labels, paper, "LblLnLOQ", text, {f.XasEinde, mark.place + kBeside}, Across::Right,
             Down::Top, kLOQ);
    return;
  }
  const bool left = mark.fraction > 0.25;
  PutLimit(labels, paper, "LblLnLOQ", text, {mark.place + (left ? -kBeside : kBeside), f.YasTop},
           left ? Across::Right : Across::Left, Down::Top, kLOQ);
}

void DrawURR(screen::DrawSurface& surface, Labels& labels, const Paper& paper, const PlotData& data,
             const LimitMark& mark) {
  if (!mark.shown) return;
  DrawLimit(surface, paper, mark.place, kURR);
  const Frame& f = paper.Edges();
  const std::string text = "URR " + GlobalBAS::Shown(data.s, data.s.URR);
  if (paper.OutcomesUp()) {
    PutLimit(labels, paper, "LblLnURR", text, {f.XasStart, mark.place - kBeside}, Across::Left,
             Down::Bottom, kURR);
    return;
  }
  const bool right = mark.fraction < 0.75;
  PutLimit(labels, paper, "LblLnURR", text, {mark.place + (right ? kBeside : -kBeside), f.YasBot},
           right ? Across::Left : Across::Right, Down::Bottom, kURR);
}

}  // namespace PlotWBas
