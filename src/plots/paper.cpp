#include "plots/paper.h"

#include <algorithm>

#include "analysis/rankits.h"
#include "base/fault.h"
#include "plots/paper_labels.h"

namespace PlotWBas {
namespace {

using drawing::Point;

constexpr drawing::Colour kFrame{0, 0, 0};
constexpr drawing::Colour kTick{110, 110, 110};
constexpr drawing::Colour kPoint{0, 0, 170};
constexpr drawing::Colour kOutside{150, 150, 150};  // a point that the line does not follow

constexpr double kHair = 10;
constexpr double kPen = drawing::kTwipsPerPixel;
constexpr double kHalfCross = 60;
constexpr double kAside = 60;       // the frame stands this far outside of the outermost points
constexpr double kOvershoot = 120;  // and its axes run this far

void DrawFrame(drawing::DrawSurface& surface, const Frame& f) {
  const double left = f.XasStart - kAside;
  const double right = f.XasEinde + kAside;
  const double top = f.YasTop - kAside;
  const double bottom = f.YasBot + kAside;
  surface.Line({left, f.YasTop - kOvershoot}, {left, f.YasBot + kOvershoot}, kFrame, kPen);
  surface.Line({f.XasStart - kOvershoot, bottom}, {f.XasEinde + kOvershoot, bottom}, kFrame, kPen);
  surface.Line({left, top}, {right, top}, kFrame, kPen);
  surface.Line({right, top}, {right, bottom}, kFrame, kPen);
}

void DrawCross(drawing::DrawSurface& surface, Point at, drawing::Colour colour) {
  surface.Line({at.x - kHalfCross, at.y - kHalfCross}, {at.x + kHalfCross, at.y + kHalfCross},
               colour, kPen);
  surface.Line({at.x - kHalfCross, at.y + kHalfCross}, {at.x + kHalfCross, at.y - kHalfCross},
               colour, kPen);
}

// A tick for the point on either axis.
void DrawTicks(drawing::DrawSurface& surface, const Frame& f, Point at) {
  surface.Line({at.x, f.YasBot + 30}, {at.x, f.YasBot + 150}, kTick, kHair);
  surface.Line({f.XasStart - 30, at.y}, {f.XasStart - 90, at.y}, kTick, kHair);
}

void DrawPoint(drawing::DrawSurface& surface, const Paper& paper, const PlotData& data, int i) {
  const ExposureSession& s = data.s;
  const double z = analysis::Score(data.RankitTable, SampleCount(s), i);
  const Point at = paper.At(data.CTransf[static_cast<std::size_t>(i)], z);
  DrawTicks(surface, paper.Edges(), at);
  const bool followed = i >= s.FirstInRange && i <= s.LastInRange;
  DrawCross(surface, at, followed ? kPoint : kOutside);
}

// From both ends to the middle, the i-th from the bottom beside the i-th from the top.
void DrawPoints(drawing::DrawSurface& surface, const Paper& paper, const PlotData& data) {
  const int M = SampleCount(data.s);
  for (int i = 1; i <= M / 2; ++i) {
    DrawPoint(surface, paper, data, i);
    DrawPoint(surface, paper, data, M + 1 - i);
  }
  if (M % 2 == 1) DrawPoint(surface, paper, data, M / 2 + 1);
}

void DrawCumulative(Axes axes, drawing::DrawSurface& surface, Labels& labels,
                    const PlotData& data) {
  const Paper paper(axes, surface, data);
  surface.Clear();
  DrawFrame(surface, paper.Edges());
  DrawPoints(surface, paper, data);
  PutPaperLabels(labels, paper, data);
}

}  // namespace

Paper::Paper(Axes axes, const drawing::DrawSurface& surface, const PlotData& data)
    : axes_(axes), width_(surface.ScaleWidth()), height_(surface.ScaleHeight()) {
  const auto M = static_cast<std::size_t>(SampleCount(data.s));
  if (M < 3 || data.CTransf.size() <= M || data.s.C.size() <= M || data.RankitTable.size() <= M / 2)
    fault::Throw(FaultKind::Subscript);
  frame_ = {0.2 * width_, 0.8 * width_, 0.2 * height_, 0.9 * height_};
  lowest_ = data.CTransf[1];
  highest_ = data.CTransf[M];
  span_ = Checked(highest_ - lowest_);
  highestScore_ = data.RankitTable[1];
}

// Outcomes that do not differ all stand in the middle.
double Paper::OutcomePlace(double CTransf) const {
  if (OutcomesUp())
    return frame_.YasTop + (span_ == 0 ? 0.5 : Divide(highest_ - CTransf, span_)) * (0.7 * height_);
  return frame_.XasStart + (span_ == 0 ? 0.5 : Divide(CTransf - lowest_, span_)) * (0.6 * width_);
}

double Paper::ScorePlace(double z) const {
  if (OutcomesUp()) return 0.5 * width_ + 0.3 * width_ * z / highestScore_;
  return 0.35 * height_ + 0.2 * height_ - 0.35 * height_ * z / highestScore_;
}

Point Paper::At(double CTransf, double z) const {
  if (OutcomesUp()) return {ScorePlace(z), OutcomePlace(CTransf)};
  return {OutcomePlace(CTransf), ScorePlace(z)};
}

double TextScale(double width, double height) {
  constexpr double kWidth = 11400;
  constexpr double kHeight = 7800;
  return std::clamp(std::min(width / kWidth, height / kHeight), 0.7, 1.4);
}

drawing::TextStyle Style(double width, double height, double size, drawing::Across across,
                         drawing::Down down) {
  return {across, down, std::max(kSmallest, size * TextScale(width, height)), false, {}};
}

// Those above the frame lie between the headline and the outcome at the end of the line.
BarRoom BarRoomOf(double width, double height) {
  constexpr double kGap = 15;
  const double thickness = 260 * TextScale(width, height);
  const double row =
      RowHeight(Style(width, height, 8.5, drawing::Across::Centre, drawing::Down::Bottom));
  return {thickness, 0.02 * width, UpperLabelFoot(height) - row - kGap - thickness};
}

double UpperLabelFoot(double height) { return 0.2 * height - kOvershoot; }

void DrawProbabilityPaper(drawing::DrawSurface& surface, Labels& labels, const PlotData& data) {
  DrawCumulative(Axes::OutcomesUp, surface, labels, data);
}

void DrawInverseCumulative(drawing::DrawSurface& surface, Labels& labels, const PlotData& data) {
  DrawCumulative(Axes::OutcomesAcross, surface, labels, data);
}

}  // namespace PlotWBas
