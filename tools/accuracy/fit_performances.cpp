#include <cmath>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "tools/accuracy/numbers.h"
#include "tools/accuracy/performance.h"

namespace accuracy {
namespace {

std::string InRange(int M, int first, int last) {
  const std::string size = "M " + NumberText(M);
  if (first == 1 && last == M) return size;
  return size + ", outcomes " + NumberText(first) + " to " + NumberText(last) + " in range";
}

// How often normal samples get a probability below `level` percent.
Performance Size(int M, int first, int last, double level) {
  const std::string mark = NumberText(level);
  return {"ShapiroWilk",
          "normal samples below " + mark + " %, percent",
          InRange(M, first, last),
          mark,
          M > 100 ? 40000 : 200000,
          [=](Chance& chance, int runs) {
            Tally tally;
            analysis::ShapiroWeights weights;
            for (int i = 0; i < runs; ++i) {
              std::vector<double> z = chance.Ordered(M);
              z.insert(z.begin(), 0);
              const double p = analysis::ShapiroWilk(z, M, first, last, weights).PW;
              tally.Add(100 * p < level ? 100 : 0);
            }
            return tally.Result();
          }};
}

ExposureSession Record(int M, int first, int last) {
  ExposureSession s;
  s.Mode = DataMode::Raw;
  s.CR = "\r";
  s.M = M;
  s.df = M - 1;
  s.DetecOn = true;
  s.FirstInRange = static_cast<std::int16_t>(first);
  s.LastInRange = static_cast<std::int16_t>(last);
  s.SigDigits = 4;
  return s;
}

// The line through the outcomes in range of normal samples: a estimates 0 and b 1.
Performance Line(const std::string& what, int M, int first, int last,
                 double (*bias)(const analysis::Regression&)) {
  return {"ProbabilityRegression",
          "bias of " + what,
          InRange(M, first, last),
          "0",
          100000,
          [=](Chance& chance, int runs) {
            Tally tally;
            ExposureSession s = Record(M, first, last);
            analysis::FitState state;
            state.Transformation = "Log(x)";
            state.RankitTable = analysis::RankitsForSampleSize(M);
            for (int i = 0; i < runs; ++i) {
              s.LnC = chance.Ordered(M);
              s.LnC.insert(s.LnC.begin(), 0);
              s.C = s.LnC;
              for (double& c : s.C) c = std::exp(c);
              tally.Add(100 * bias(analysis::ProbabilityRegression(s, state)));
            }
            return tally.Result();
          }};
}

double BiasOfGM(const analysis::Regression& fit) { return fit.a; }
double BiasOfGSD(const analysis::Regression& fit) { return fit.b - 1; }

}  // namespace

std::vector<Performance> FitPerformances() {
  std::vector<Performance> all;
  for (const int M : {3, 4, 6, 10, 20, 50, 200}) all.push_back(Size(M, 1, M, 5));
  struct Range {
    int M, first, last;
  };
  for (const Range& r : {Range{20, 5, 20},
                         {20, 11, 20},
                         {50, 11, 50},
                         {50, 26, 50},
                         {20, 1, 10},
                         {50, 1, 40},
                         {20, 4, 17},
                         {50, 11, 40}})
    all.push_back(Size(r.M, r.first, r.last, 5));
  for (const Range& r : {Range{20, 1, 20}, {20, 11, 20}, {50, 11, 40}})
    all.push_back(Size(r.M, r.first, r.last, 50));
  for (const Range& r : {Range{10, 1, 10}, {20, 6, 20}, {20, 11, 20}, {20, 16, 20}, {20, 4, 17}}) {
    all.push_back(Line("ln GM, in percent of ln GSD", r.M, r.first, r.last, BiasOfGM));
    all.push_back(Line("ln GSD, percent", r.M, r.first, r.last, BiasOfGSD));
  }
  return all;
}

}  // namespace accuracy
