#include <cmath>

#include "session/exposure_session.h"
#include "session/moments.h"
#include "stats/estimators.h"
#include "tools/accuracy/numbers.h"
#include "tools/accuracy/performance.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

using truth::Real;

std::string Of(double M, double GSD) { return "M " + NumberText(M) + ", GSD " + NumberText(GSD); }

using Estimator = double (*)(double M, double GM, double GSD);
using Quantity = double (*)(double sigma);

// An estimate is its value at GM 1 times GM, or times its square: the mean over both follows from
// that over the standard deviation, in percent of what is estimated.
Performance Bias(const std::string& routine, const std::string& what, double M, double GSD,
                 Estimator estimator, Quantity quantity, double powerOfGM = 1) {
  return {routine, "bias of " + what + ", percent", Of(M, GSD), "0", 1, [=](Chance&, int) {
            const Real sigma = std::log(Real(GSD));
            const Real overSpread = truth::MeanOverChi(M - 1, [=](Real s) {
              return estimator(M, 1, static_cast<double>(std::exp(sigma * s)));
            });
            const Real overGM = std::exp(powerOfGM * powerOfGM * sigma * sigma / (2 * Real(M)));
            const Real expected = quantity(static_cast<double>(sigma));
            return Found{static_cast<double>(100 * (overSpread * overGM / expected - 1)), 0};
          }};
}

double Median(double) { return 1; }
double Mean(double sigma) { return std::exp(sigma * sigma / 2); }
double Variance(double sigma) { return std::exp(sigma * sigma) * std::expm1(sigma * sigma); }
double Deviation(double sigma) { return std::sqrt(Variance(sigma)); }

double Unbiased(double M, double GM, double GSD) {
  ExposureSession s;
  s.df = M - 1;
  return StatFWinBAS::GMUnbiased(s, double{GM}, double{GSD});
}

ExposureSession Linear(double M, double GM, double GSD) {
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.M = M;
  s.GM = GM;
  s.GSD = GSD;
  StatFWinBAS::LinearMoments(s);
  return s;
}

double MeanMVU(double M, double GM, double GSD) {
  return StatFWinBAS::FinneyMeanMVU(M - 1, double{GM}, double{GSD});
}
double MeanMMSE(double M, double GM, double GSD) {
  return StatFWinBAS::FinneyMeanMMSE(M - 1, double{GM}, double{GSD});
}
double VarianceMVU(double M, double GM, double GSD) {
  return StatFWinBAS::FinneyVarianceMVU(M - 1, double{GM}, double{GSD});
}
double XM(double M, double GM, double GSD) { return Linear(M, GM, GSD).XM; }
double SDlin(double M, double GM, double GSD) { return Linear(M, GM, GSD).SDlin; }

// The GSD of a whole lognormal sample of which `inRange` outcomes lie in the detection range.
Performance SpreadInRange(int M, int inRange) {
  return {"LogMoments",
          "bias of ln GSD in a detection range, percent",
          "M " + NumberText(M) + ", " + NumberText(inRange) + " in range",
          "0",
          200000,
          [=](Chance& chance, int runs) {
            Tally tally;
            ExposureSession s;
            s.M = M;
            s.DetecOn = true;
            s.NInRange = static_cast<std::int16_t>(inRange);
            DegreesOfFreedom(s);
            for (int i = 0; i < runs; ++i) {
              s.C = {0};
              for (const double z : chance.Ordered(M)) s.C.push_back(std::exp(z));
              double GM = 0, GSD = 0;
              LogMoments(s, GM, GSD);
              tally.Add(100 * (std::log(GSD) - 1));
            }
            return tally.Result();
          }};
}

}  // namespace

std::vector<Performance> EstimatorPerformances() {
  std::vector<Performance> all;
  for (const double M : {2, 3, 6, 10, 30})
    all.push_back(Bias("GMUnbiased", "the geometric mean", M, 3, Unbiased, Median));
  for (const double GSD : {1.5, 2.0})
    all.push_back(Bias("GMUnbiased", "the geometric mean", 6, GSD, Unbiased, Median));
  for (const auto& [M, GSD] : {std::pair{3.0, 3.0}, {10.0, 2.0}, {30.0, 4.0}})
    all.push_back(Bias("FinneyMeanMVU", "the arithmetic mean", M, GSD, MeanMVU, Mean));
  for (const auto& [M, GSD] : {std::pair{6.0, 3.0}, {10.0, 2.0}, {30.0, 4.0}})
    all.push_back(Bias("FinneyMeanMMSE", "the arithmetic mean", M, GSD, MeanMMSE, Mean));
  for (const auto& [M, GSD] : {std::pair{6.0, 2.0}, {30.0, 3.0}})
    all.push_back(Bias("FinneyVarianceMVU", "the variance", M, GSD, VarianceMVU, Variance, 2));
  for (const auto& [M, GSD] : {std::pair{6.0, 2.0}, {10.0, 3.0}})
    all.push_back(
        Bias("LinearMoments: XM", "the arithmetic mean from GM and GSD", M, GSD, XM, Mean));
  for (const auto& [M, GSD] : {std::pair{6.0, 2.0}, {10.0, 3.0}})
    all.push_back(Bias("LinearMoments: SDlin", "the standard deviation from GM and GSD", M, GSD,
                       SDlin, Deviation));
  for (const auto& [M, inRange] : {std::pair{20, 20}, {20, 10}, {50, 40}, {50, 16}})
    all.push_back(SpreadInRange(M, inRange));
  return all;
}

}  // namespace accuracy
