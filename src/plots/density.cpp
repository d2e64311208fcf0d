#include "plots/density.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/fault.h"
#include "plots/density_labels.h"

namespace PlotWBas {
namespace {

constexpr double kMargin = 60;
constexpr double kShare = 0.9;   // of the surface that the axes take
constexpr double kTwoPi = 6.28;  // as rounded in the method
constexpr double kStepPower = 0.01;
constexpr double kDeviatesOfNothing = 39;  // beyond, the density is 0 to a double
constexpr double kLeastMark = 0.2;         // of the peak's height

constexpr double kArrow = 240;  // beyond the end of the axis

constexpr double kPen = drawing::kTwipsPerPixel;
constexpr drawing::Colour kFrame{0, 0, 0};
constexpr drawing::Colour kCurve{0, 0, 255};

void DrawAxes(drawing::DrawSurface& surface, const DensityScale& scale) {
  const double foot = scale.Foot();
  surface.Line({kMargin, foot}, {scale.AxisEnd(), foot}, kFrame, kPen);
  surface.Line({kMargin, kMargin}, {kMargin, foot}, kFrame, kPen);
}

// Below the axis, where the label hangs.
void DrawTick(drawing::DrawSurface& surface, const DensityScale& scale, double X,
              drawing::Colour colour) {
  surface.Line({X, scale.Foot() + 30}, {X, scale.Foot() + 90}, colour, kPen);
}

void DrawArrow(drawing::DrawSurface& surface, const DensityScale& scale, drawing::Colour colour) {
  const drawing::Point tip{scale.AxisEnd() + kArrow, scale.Foot()};
  surface.Line({scale.AxisEnd(), tip.y}, tip, colour, kPen);
  surface.Line({tip.x - 90, tip.y - 45}, tip, colour, kPen);
  surface.Line({tip.x - 90, tip.y + 45}, tip, colour, kPen);
}

void DrawMark(drawing::DrawSurface& surface, const DensityScale& scale, const DensityMark& mark) {
  const double X = MarkPlace(scale, mark);
  if (scale.X(mark.x) > scale.AxisEnd())
    DrawArrow(surface, scale, mark.colour);
  else
    surface.Line({X, MarkTop(scale, mark)}, {X, scale.Foot()}, mark.colour, kPen);
  DrawTick(surface, scale, X, mark.colour);
}

// The points of the method, and on a large surface lines that close the gaps between them.
void DrawCurve(drawing::DrawSurface& surface, const DensityScale& scale, const DensityData& data) {
  std::optional<drawing::Point> last;
  for (double x = data.xStart; x <= data.xEnd; x = scale.Next(x)) {
    const drawing::Point at{scale.X(x), scale.Y(scale.Density(x))};
    if (last && std::hypot(at.x - last->x, at.y - last->y) > drawing::kDotWidth / 2)
      surface.Line(*last, at, kCurve, drawing::kDotWidth);
    surface.Dot(at, kCurve);
    last = at;
  }
}

}  // namespace

DensityScale::DensityScale(const drawing::DrawSurface& surface, const DensityData& data)
    : s_(Log(data.GSD)),
      peak_(Divide(Divide(Exp(s_ * s_ / 2), s_), Sqrt(kTwoPi))),
      step_(Power(data.GSD, kStepPower)),
      xStart_(data.xStart),
      xEnd_(data.xEnd),
      width_(kShare * surface.ScaleWidth()),
      height_(kShare * surface.ScaleHeight()) {
  if (!(s_ > 0) || !(xStart_ > 0) || !(xEnd_ > 0)) fault::Throw(FaultKind::InvalidOperation);
}

double DensityScale::Density(double x) const {
  const double z = Divide(Log(x), s_);
  return Divide(Divide(Exp(-Checked(z * z) / 2), s_ * x), Sqrt(kTwoPi));
}

double DensityScale::X(double x) const { return Checked(kMargin + width_ * (x / xEnd_)); }

double DensityScale::Y(double f) const { return Checked(kMargin + height_ * (1 - f / peak_)); }

double DensityScale::CurveTop(double left, double right) const {
  const double low = std::max((left - kMargin) / width_ * xEnd_, xStart_);
  const double high = std::min((right - kMargin) / width_ * xEnd_, xEnd_);
  if (!(low <= high)) return Foot();
  const double mode = std::exp(-s_ * s_);
  return Y(Density(std::clamp(mode, low, high)));
}

double DensityScale::Next(double x) const {
  if (Density(x) > 0) return x * step_;
  const double step = kStepPower * s_;
  const double twip = xEnd_ / width_;
  double steps = std::log1p(twip / x) / step;
  if (x < 1) steps = std::min(steps, (-kDeviatesOfNothing * s_ - std::log(x)) / step);
  return x * std::pow(step_, std::max(1.0, std::floor(steps)));
}

double MarkPlace(const DensityScale& scale, const DensityMark& mark) {
  const double X = scale.X(mark.x);
  return X <= scale.AxisEnd() ? X : scale.AxisEnd() + kArrow;
}

double MarkTop(const DensityScale& scale, const DensityMark& mark) {
  const double X = MarkPlace(scale, mark);
  const double least = scale.Foot() - kLeastMark * (scale.Foot() - kMargin);
  return std::min(scale.CurveTop(X, X), least);
}

void DrawDensity(drawing::DrawSurface& surface, const DensityData& data) {
  surface.Clear();
  const DensityScale scale(surface, data);
  DrawAxes(surface, scale);
  for (const DensityMark& mark : data.marks) DrawMark(surface, scale, mark);
  DrawTick(surface, scale, scale.AxisEnd(), kFrame);
  DrawCurve(surface, scale, data);
  WriteDensityLabels(surface, scale, data);
}

}  // namespace PlotWBas
