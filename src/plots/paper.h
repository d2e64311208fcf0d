#pragma once

#include <string>
#include <vector>

#include "base/date_time.h"
#include "drawing/drawing.h"
#include "plots/labels.h"
#include "session/exposure_session.h"

// Cumulative plots of a series: outcomes on the scale of a transformation against their scores. All
// places are fractions of the surface, so that a drawing fits any size; the small distances are
// twips.
namespace PlotWBas {

// What is drawn. CTransf holds the outcomes on the scale of `Transformation`, `RankitTable` the
// scores of the sample size.
struct PlotData {
  const ExposureSession& s;
  const std::vector<double>& CTransf;
  const std::vector<double>& RankitTable;
  std::string Transformation;
  base::DateTime time;
};

// Corners of the area between the first and the last point.
struct Frame {
  double XasStart = 0;
  double XasEinde = 0;
  double YasTop = 0;
  double YasBot = 0;
};

// Which axis the outcomes take.
enum class Axes { OutcomesUp, OutcomesAcross };

// Where an outcome on the transformed scale and a score stand on the surface.
class Paper {
 public:
  // Subscript fault unless the data hold M >= 3 outcomes with their scores.
  Paper(Axes axes, const drawing::DrawSurface& surface, const PlotData& data);

  const Frame& Edges() const { return frame_; }
  Axes Which() const { return axes_; }
  bool OutcomesUp() const { return axes_ == Axes::OutcomesUp; }
  double Lowest() const { return lowest_; }
  double Highest() const { return highest_; }
  double Span() const { return span_; }  // PlotSpan
  double ScaleWidth() const { return width_; }
  double ScaleHeight() const { return height_; }

  // Along the axis of the outcomes, and along that of the scores.
  double OutcomePlace(double CTransf) const;
  double ScorePlace(double z) const;
  drawing::Point At(double CTransf, double z) const;

 private:
  Axes axes_;
  double width_;
  double height_;
  Frame frame_;
  double lowest_;
  double highest_;
  double span_;
  double highestScore_;
};

// Sizes and colours of all plots follow the surface: 1 on the window as it opens.
double TextScale(double width, double height);
drawing::TextStyle Style(double width, double height, double size, drawing::Across across,
                         drawing::Down down);

// Where the scroll bars of the limits lie: how thick they are, the left edge of those beside the
// frame and the upper edge of those above it. No text comes there, whether they are shown or not.
struct BarRoom {
  double thickness = 0;
  double left = 0;
  double top = 0;
};
BarRoom BarRoomOf(double width, double height);

// From the frame to the label of an outcome above it, and the height of that label's foot.
double UpperLabelFoot(double height);

// Clears the surface and draws frame, axes, ticks and points, and adds the fixed labels, which are
// left to the caller to write. The score of the lowest outcome stands at the foot or at the left.
void DrawProbabilityPaper(drawing::DrawSurface& surface, Labels& labels, const PlotData& data);
// The same with the axes exchanged.
void DrawInverseCumulative(drawing::DrawSurface& surface, Labels& labels, const PlotData& data);

}  // namespace PlotWBas
