#pragma once

#include <string>
#include <vector>

#include "analysis/shapiro.h"
#include "session/exposure_session.h"

// The least-squares line through the transformed outcomes on their rankits, and what it gives to
// the record.
namespace analysis {

// What a plot screen keeps from one drawing to the next, beside the record.
struct FitState {
  std::vector<double> RankitTable;  // of the sample size at the last activation
  std::string Transformation;       // name of the current one; empty until the first
  ShapiroWeights weights;
};

struct RegressionSums {
  double SZ = 0;
  double SZZ = 0;
  double SZY = 0;
  double SY = 0;
  double SZX = 0;
  double SX = 0;
};

struct Regression {
  bool line = false;  // whether there is one; without, nothing below is filled but TestText
  RegressionSums sums;
  double a = 0;   // intercept, on the scale of the transformation
  double b = 0;   // slope
  double aX = 0;  // the same of the outcomes themselves
  double bX = 0;
  bool estimates = false;     // whether EstimatesText is shown
  double location = 0;        // GMg, or x of the untransformed outcomes
  double scale = 0;           // GSDg, or s
  std::string EstimatesText;  // two lines, "GMg=" and "GSDg=" or "x=" and "s="
  ShapiroResult test;
  std::string TestText;
  double yLow = 0;  // ends of the line, at the lowest and the highest score
  double yHigh = 0;
};

// Sums over the outcomes FirstInRange to LastInRange: z is the score, y the transformed outcome
// (CTransf, held in LnC), x the outcome itself. Lower half ascending, middle, upper half ascending.
// Domain: indices within 1 to M and a rankit table for M, otherwise a subscript fault.
// Changes nothing. Accuracy against arbitrary precision: see ProbabilityRegression.
RegressionSums SumsOverRange(const ExposureSession& s, const std::vector<double>& RankitTable);

// Fits the line through the outcomes in range, tests the fit and updates the record.
// With a detection range and "Log(x)" the antilogarithms of intercept and slope become GM and GSD
// of the record; otherwise those come from all outcomes (LogMoments, by the df that still holds
// from before). Where there is no line (fewer than 2 outcomes in range, all of them equal on the
// present scale, or M < 3) there are no estimates, the test reads "not possible", and the
// statistics of the record stay.
// Domain: `state` filled for the record's M and series; otherwise a subscript fault. Estimates
// beyond a double are an overflow.
// Changes: NInRange, RegressionLabel, MsgText (the text of the test), InputState (the fault of the
// test, then what GMUnbiased leaves); with a line also GM, GSD, df, GMu, SDu (the variance, not its
// root) and RegressionOn; the weights in `state`.
// Source: regression on order statistics with expected normal scores, e.g. D.R. Helsel (2005),
// Nondetects and Data Analysis, ch. 6; the one-pass sums of the normal equations.
// Accuracy over the reference series, relative: a 4.5E-13, b 6.2E-13. The subtraction loses the
// digits that the outcomes have in common: where they differ in their seventh digit only, b
// 9.6E-10.
Regression ProbabilityRegression(ExposureSession& s, FitState& state);

// The text beside the plot: what the test found, each line with CR behind it.
std::string ShapiroText(const ExposureSession& s, const ShapiroResult& test);

// Looks, without a detection range, whether the outcomes differ at all (by 1E-10 of their mean) and
// by less than a factor of 1E10. If not, MsgText says so and the range goes back to all outcomes;
// returns whether it did. Domain: FirstInRange and LastInRange within 1 to M, otherwise a subscript
// fault; an outcome of 0 is a division by zero. Nothing happens for M = 2.
// Changes: MsgText, LOQ, URR, FirstInRange, LastInRange, NInRange.
bool CheckVariability(ExposureSession& s);

}  // namespace analysis
