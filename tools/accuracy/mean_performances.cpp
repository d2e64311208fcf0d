#include <cmath>

#include "session/moments.h"
#include "tools/accuracy/numbers.h"
#include "tools/accuracy/performance.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"
#include "ucl/mean_on_record.h"

namespace accuracy {
namespace {

using Limit = double (*)(ExposureSession& s);  // natural logarithm

double Jahr(ExposureSession& s) {
  ucl::TakeMeanStatistics(s);
  return ucl::JahrUCL(s.AMu, s.GSD, s.df, s.D, 1).UCL;
}

double Land(ExposureSession& s) {
  return UCLBAS::LandExactUCL(0.5, s.df, std::log(s.GSD), std::log(s.GM), s.D).UCL;
}

// How often the mean of the population lies below the limit.
Performance Cover(const std::string& routine, int M, double GSD, int D, int runs, Limit limit) {
  return {routine,
          "means below the limit, percent",
          "M " + NumberText(M) + ", GSD " + NumberText(GSD) + ", D " + NumberText(D),
          NumberText(D),
          runs,
          [=](Chance& chance, int n) {
            Tally tally;
            const double mean = std::log(GSD) * std::log(GSD) / 2;
            for (int i = 0; i < n; ++i) {
              const DrawnSample sample = Draw(chance, M, GSD);
              ExposureSession s;
              s.df = M - 1;
              s.GM = std::exp(sample.lnGM);
              s.GSD = std::exp(sample.lnGSD);
              s.D = D;
              tally.Add(limit(s) >= mean ? 100 : 0);
            }
            return tally.Result();
          }};
}

Performance OneToTen(const std::string& routine, Limit limit) {
  return {routine, "ln UCL of the outcomes 1 to 10", "D 95", "", 1, [=](Chance&, int) {
            ExposureSession s;
            s.M = 10;
            s.df = 9;
            s.D = 95;
            s.C = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
            LogMoments(s, s.GM, s.GSD);
            return Found{limit(s), 0};
          }};
}

}  // namespace

std::vector<Performance> MeanPerformances() {
  constexpr int kJahr = 400000;
  constexpr int kLand = 10000;
  std::vector<Performance> all;
  for (const double GSD : {1.5, 2.0, 2.5, 3.0, 4.0})
    all.push_back(Cover("JahrUCL", 10, GSD, 95, kJahr, Jahr));
  for (const int M : {3, 6, 30, 100}) all.push_back(Cover("JahrUCL", M, 2.5, 95, kJahr, Jahr));
  for (const int D : {70, 90}) all.push_back(Cover("JahrUCL", 10, 2.5, D, kJahr, Jahr));
  for (const auto& [M, GSD] : {std::pair{3, 2.0}, {10, 2.5}, {30, 4.0}})
    all.push_back(Cover("LandExactUCL", M, GSD, 95, kLand, Land));
  all.push_back(OneToTen("JahrUCL", Jahr));
  all.push_back(OneToTen("LandExactUCL", Land));
  return all;
}

}  // namespace accuracy
