#pragma once

#include <string>

#include "session/results.h"
#include "ucl/jahr.h"
#include "ucl/land_watch.h"

// The upper confidence limit of the mean: what the screen's buttons calculate.
namespace ucl {

// Whether Land's method is offered: M above 2 and below 1001, D from 0.95 to 99.75 percent.
bool LandIsOffered(double M, double D);

// Why Land's method is refused for this M and D; empty when it is not. D outweighs M.
std::string LandRefusal(double M, double D);

// The unbiased statistics of the mean.
struct MeanStatistics {
  double LnGM = 0;
  double LnGSD = 0;
  double GMu = 0;
  double AMu = 0;
};

// From df, GM and GSD. Faults: those of Log, GMUnbiased and FinneyMeanMVU.
MeanStatistics MeanStatisticsOf(const Sample& sample);

// Jahr's limit and probability from AMu, GSD, df, D and OELV. A missing OELV is an invalid
// operation.
JahrLimit JahrLimits(const TestBasis& basis, double AMu);

struct LandResult {
  std::string Refusal;        // when not empty, there was no search
  JahrLimit jahr;             // from which the search starts
  double LandConfidence = 0;  // percent; the confidence at which the limit equals OELV
  double A = 0;               // percent, 100 - LandConfidence
  double UCL = 0;             // at confidence D, natural logarithm
  double Factor = 0;          // Land's factor at D
  int Halvings = 0;           // trials of a confidence
};

// Land's limit at confidence D, and the probability A(AM>OELV). The search starts from the
// probability of Jahr's and halves a range of 100 until it is below 0.0001. A trial confidence
// within 1E-11 (as a fraction) of 0 or 100 is not searched, since its root lies at infinity: it
// counts as too low or too high.
// Changes: `watch`. A fault in the search goes on to the caller.
// Source: C.E. Land (1975), see LandExactUCL.
// Accuracy, percent: A 4.8E-05, half the last range and what the trial limits' error makes of it; A
// cannot come nearer to 0 or 100 than 2.4E-5 unless the start lies nearer.
LandResult LandCmb(const TestBasis& basis, UCLBAS::LandWatch& watch);

inline LandResult LandCmb(const TestBasis& basis) {
  UCLBAS::LandWatch watch;
  return LandCmb(basis, watch);
}

}  // namespace ucl
