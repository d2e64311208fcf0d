#pragma once

// The closed choices of a session. Their letters stand at the session scripts' door only.

// How the exposure data came in.
enum class DataMode { None, Raw, Statistics };

// An extrapolation beyond the sample: one of the tests of the upper percentile, or one of the
// methods for the mean.
enum class Extrapolation { None, Jahr, Land, Leidel, En689, Wilks };

// How the plot screen lays the outcomes out.
enum class PlotStyle { None, Paper, Inverse, AnnexE };

// What the current data are compared with.
enum class ReferenceKind { None, Sample, Population };

// The decision on the two variances of a comparison: pooled or separate, by an answer or, where the
// question was cancelled, by the probability.
enum class VarianceChoice { None, Pooled, Separate, PooledByProbability, SeparateByProbability };

// Whose GM, GSD and df are in force.
enum class Estimates {
  WholeSample,   // all outcomes, divisor M - 1
  RangeDegrees,  // all outcomes, with the degrees of freedom that the detection range leaves
  Regression,    // the line through the outcomes in range
  Typed          // as the user typed them
};

// What the outcomes' spread allows.
enum class Spread { Fine, None, TooLarge };

enum class ScreenId { Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, UCL, TwoSamp };
