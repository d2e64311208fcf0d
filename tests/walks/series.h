#pragma once

#include <optional>
#include <vector>

// The walks' own statistics of a series, straight from the definitions.
namespace walks {

using Outcomes = std::vector<double>;  // in ascending order, the first at 0

struct Sample {
  double GM = 0;
  double GSD = 0;
  double df = 0;
};

// The outcomes first to last, counted from 1, lie within the detection range.
struct Range {
  int first = 1;
  int last = 0;
  int Count() const { return last - first + 1; }
  bool operator==(const Range&) const = default;
};

struct DetectionLimits {
  double LOQ = 0;
  double URR = 0;
  Range range;
};

// The sum of the squared distances of the logarithms from their mean.
double SquaresAboutMean(const Outcomes& outcomes);
// Whether GM and GSD of the whole sample can be stated at all.
bool HasSpread(const Outcomes& outcomes, double df);
Sample WholeSample(const Outcomes& outcomes, double df);
// The line through the logarithms of the outcomes in range on their rankits; none through fewer
// than two of them, through equal ones, or for fewer than three outcomes.
std::optional<Sample> LineThrough(const Outcomes& outcomes, const Range& range);
// Whether the line's estimates are numbers that a series can have.
bool Plausible(const Sample& sample);
double MedianOf(const Outcomes& outcomes);

// Degrees of freedom with a detection range in force.
double RangeDf(int M, int inRange);
// The outcomes above LOQ and below URR; a tie with a limit falls outside.
Range Counted(const Outcomes& outcomes, double LOQ, double URR);
// What the check of the lower, or of the upper limit makes of an entered value.
DetectionLimits WithLower(const Outcomes& outcomes, DetectionLimits present, double t);
DetectionLimits WithUpper(const Outcomes& outcomes, DetectionLimits present, double t);

// How far a one-pass sum of squares may put GSD off, relative to its logarithm.
double SpreadTolerance(const Outcomes& outcomes);

}  // namespace walks
