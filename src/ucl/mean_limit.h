#pragma once

#include <string>

#include "session/exposure_session.h"
#include "ucl/land_watch.h"

// The upper confidence limit of the mean, for the record: what the screen's buttons calculate.
namespace ucl {

// Whether Land's method is offered: M above 2 and below 1001, D from 0.95 to 99.75 percent.
bool LandIsOffered(double M, double D);

// Why Land's method is refused for this M and D; empty when it is not. D outweighs M.
std::string LandRefusal(double M, double D);

// The unbiased statistics of the mean, from df, GM and GSD: LnGM, LnGSD, GMu and AMu.
// Faults: those of Log, GMUnbiased and FinneyMeanMVU.
void MeanStatistics(ExposureSession& s);

// Jahr's limit from AMu, GSD, df, D and OELV into UCL and PercEx. A missing OELV is an invalid
// operation, and both keep their values.
void JahrLimits(ExposureSession& s);

struct LandResult {
  std::string Refusal;        // when not empty, there was no search
  double LandConfidence = 0;  // percent; the confidence at which the limit equals OELV
  double A = 0;               // percent, 100 - LandConfidence
  double UCL = 0;             // at confidence D, natural logarithm
  double Factor = 0;          // Land's factor at D
  int Halvings = 0;           // trials of a confidence
};

// Land's limit at confidence D, and the probability A(AM>OELV). Runs JahrLimits first; the search
// starts from its PercEx and halves a range of 100 until it is below 0.0001. A trial confidence
// within 1E-11 (as a fraction) of 0 or 100 is not searched, since its root lies at infinity: it
// counts as too low or too high.
// Domain: M, df, LnGM, LnGSD, AMu, GSD, D and OELV of the record, filled.
// Changes: UCL (Land's), PercEx (Jahr's), LandConfidence, TestTag ("Ex", or "" when refused) and
// `watch`. A fault in the search leaves UCL and PercEx as they were before the call and TestTag
// empty, and goes on to the caller.
// Source: C.E. Land (1975), see LandExactUCL.
// Accuracy, percent: A 4.8E-05, half the last range and what the trial limits' error makes of it; A
// cannot come nearer to 0 or 100 than 2.4E-5 unless the start lies nearer.
LandResult LandCmb(ExposureSession& s, UCLBAS::LandWatch& watch);

inline LandResult LandCmb(ExposureSession& s) {
  UCLBAS::LandWatch watch;
  return LandCmb(s, watch);
}

}  // namespace ucl
