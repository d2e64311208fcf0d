#pragma once

#include <cstdint>
#include <optional>
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
  std::vector<double> CTransf;      // the outcomes on its scale, ascending
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
  bool line = false;  // whether there is one; without, only NInRange and the texts are filled
  std::int16_t NInRange = 0;
  std::string RegressionLabel;  // "Single censored"
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
  // What GM and GSD of the record become; none where the line gives no estimators of them, or such
  // that lie beyond what can be calculated with.
  std::optional<RegressionEstimates> estimators;
  bool beyondNumbers = false;
};

// Sums over the outcomes FirstInRange to LastInRange: z is the score, y the transformed outcome
// (CTransf), x the outcome itself. Lower half ascending, middle, upper half ascending.
// Domain: indices within 1 to M, CTransf and a rankit table for M, otherwise a subscript fault.
// Changes nothing. Accuracy against arbitrary precision: see FitLine.
RegressionSums SumsOverRange(const ExposureSession& s, const FitState& state);

// Fits the line through the outcomes in range and tests the fit. With a detection range and
// "Log(x)" the antilogarithms of intercept and slope are estimators of GM and GSD; GM from 1E-10 to
// 1E+10 and GSD from 1.001 to 1000 can be calculated with. Where there is no line (fewer than 2
// outcomes in range, all of them equal on the present scale, or M < 3) there are no estimates, and
// the test reads "not possible". Domain: `state` filled for the record's M and series; otherwise a
// subscript fault. Estimates beyond a double are an overflow. Changes: the weights in `state`.
// Source: regression on order statistics with expected normal scores, e.g. D.R. Helsel (2005),
// Nondetects and Data Analysis, ch. 6; the one-pass sums of the normal equations.
// Accuracy: see ProbabilityRegression in regression_on_record.h.
Regression FitLine(const ExposureSession& s, FitState& state);

// W and its probability in percent, as they are shown; both empty where there was no test.
struct ShownFit {
  std::string W;
  std::string percent;
};
ShownFit ShownFitOf(const ExposureSession& s, const ShapiroResult& test);

// The text beside the plot: what the test found, each line with CR behind it.
std::string ShapiroText(const ExposureSession& s, const ShapiroResult& test);

// Whether, without a detection range, the outcomes differ at all (by 1E-10 of their mean) and by
// less than a factor of 1E10: the complaint if not, otherwise empty. Domain: FirstInRange and
// LastInRange within 1 to M, otherwise a subscript fault; an outcome of 0 is a division by zero.
// Silent for M = 2.
std::string VariabilityComplaint(const Given& given);

}  // namespace analysis
