#pragma once

#include <string>
#include <vector>

#include "plots/paper.h"

// The printed paper of EN 689, Annex E: exposures across in whole decades, cumulative probabilities
// upward at fixed lines.
namespace PlotWBas {

// The axis of the probabilities runs from `edge` to 1 - `edge`.
struct ProbabilityAxis {
  double edge = 0;
  double zEdge = 0;
};

// `Pk`: 100 times the probability of the lowest outcome.
ProbabilityAxis ProbabilityAxisOf(double Pk);

// The probabilities, in percent, that have a line and a label.
const std::vector<int>& AnnexProbabilities();

// The powers of ten at or below the lowest and at or above the highest outcome. Domain: both above
// 0. Equal ones are moved a decade apart.
struct Decades {
  double lower = 0;
  double upper = 0;
};
Decades DecadesOf(double lowest, double highest);

// The values 1, 2, ... 9 times each power of ten within the bounds.
struct DecadeTick {
  double value = 0;
  int digit = 0;  // 1 to 9
};
std::vector<DecadeTick> TicksOf(const Decades& decades);

// Where an exposure and a probability stand on the surface.
class AnnexPaper {
 public:
  // Subscript fault unless the data hold M >= 3 outcomes with their scores.
  AnnexPaper(const drawing::DrawSurface& surface, const PlotData& data);

  const Frame& Edges() const { return frame_; }
  const ProbabilityAxis& Axis() const { return axis_; }
  const Decades& Bounds() const { return decades_; }

  double X(double transformed) const;
  // Of a cumulative probability: from 1 - edge at the top to edge at the foot.
  double Y(double p) const;
  // Of a score, the lowest at the foot.
  double YOfScore(double z) const;

  // The transformed bounds; where the transformation has no value for a bound, that of the lowest
  // or highest outcome.
  double LowerBound() const { return lower_; }
  double UpperBound() const { return upper_; }
  // Blom's plotting position of the i-th lowest outcome.
  double Position(int i) const;
  // The i-th lowest outcome on the transformed scale; the reciprocal holds them in reverse.
  double Transformed(int i) const;
  // Whether the transformation turns the order round.
  bool Reversed() const { return reversed_; }

 private:
  const PlotData& data_;
  double width_;
  double height_;
  Frame frame_;
  ProbabilityAxis axis_;
  Decades decades_;
  bool reversed_;
  double lower_;
  double upper_;
};

}  // namespace PlotWBas
