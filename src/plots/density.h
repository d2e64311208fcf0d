#pragma once

#include <string>
#include <vector>

#include "drawing/drawing.h"

// The picture of a lognormal density. Concentrations are relative to the geometric mean: x = C /
// GM.
namespace PlotWBas {

// A place on the axis of the concentrations that has a label.
struct DensityMark {
  std::string name;  // of the label
  std::string text;  // lines separated by CR
  double x = 0;
  drawing::Colour colour;
};

// What is drawn.
struct DensityData {
  double GSD = 0;
  double xStart = 0;  // where the curve begins
  double xEnd = 0;    // where curve and axis end
  std::vector<DensityMark> marks;
  std::string endText;      // XasLbl(0), at the end of the axis
  std::string endValue;     // XasLbl, below it
  std::string header;       // LblRightTxt: program, date and time
  std::string headline;     // LblKoptekst
  std::string explanation;  // LblToets: the test whose limit is marked; empty without one
};

// The density, and where it stands on a surface of that size.
class DensityScale {
 public:
  // Domain: GSD > 1, xStart > 0, xEnd > 0; otherwise a run-time fault.
  DensityScale(const drawing::DrawSurface& surface, const DensityData& data);

  double Density(double x) const;
  double X(double x) const;  // 60 + 0.9 W x / xEnd
  double Y(double f) const;  // 60 + 0.9 H (1 - f / fPeak)
  double Foot() const { return Y(0); }
  double AxisEnd() const { return X(xEnd_); }
  // The highest point, as its Y, of the curve between these two X; Foot where it isn't drawn.
  double CurveTop(double left, double right) const;
  // The next point of the curve: the step is a factor, so that the points lie equally dense on any
  // surface. Where the density is nothing to a double, it is as many steps as make a twip.
  double Next(double x) const;

 private:
  double s_;  // ln GSD
  double peak_;
  double step_;
  double xStart_;
  double xEnd_;
  double width_;   // of the axis
  double height_;  // of the peak
};

// Clears the surface and draws axes, marks, curve and labels.
void DrawDensity(drawing::DrawSurface& surface, const DensityData& data);

// The upper end of a mark's line: the curve, or a fifth of its height where it lies lower.
double MarkTop(const DensityScale& scale, const DensityMark& mark);
// A mark beyond the end of the axis stands a little behind it, at the tip of an arrow.
double MarkPlace(const DensityScale& scale, const DensityMark& mark);

}  // namespace PlotWBas
