#include "bench/calculations.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "bench/raw_series.h"
#include "compliance/en689.h"
#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "ucl/mean_on_record.h"

namespace bench {
namespace {

std::string Name(const char* what, double M) {
  return std::string(what) + ", M " + GlobalBAS::GeneralText(M);
}

Calculation En689(double M) {
  const ExposureSession start = Known(M, 2, 1);
  const double Ur = std::log(1 / 0.3) / std::log(2.0);
  return {Name("EN 689", M),
          [s = start, Ur]() mutable { benchmark::DoNotOptimize(compliance::En689Test(s, Ur)); }};
}

// A GSD close to 1 with few degrees of freedom puts the limit thousands of steps away.
Calculation En689Far() {
  ExposureSession start = Known(2, 1.001, 1);
  start.U = 99.99;
  start.D = 99.99;
  return {"EN 689, the limit far away",
          [s = start]() mutable { benchmark::DoNotOptimize(compliance::En689Test(s, 1)); }};
}

Calculation SampleSize() {
  ExposureSession start = Known(10, 2, 1);
  start.TestTag = Extrapolation::Wilks;
  return {"sample size search",
          [s = start]() mutable { benchmark::DoNotOptimize(compliance::OptimiseSampleSize(s)); }};
}

// Some twenty trial limits and the limit itself.
Calculation Land(const char* name, double M, double GSD, double OELV) {
  ExposureSession start = Known(M, GSD, OELV);
  ucl::TakeMeanStatistics(start);
  return {Name(name, M), [s = start]() mutable { benchmark::DoNotOptimize(ucl::LandCmb(s)); }};
}

ExposureSession Series(int count) {
  ExposureSession s;
  s.Mode = DataMode::Raw;
  s.CR = "\r";
  s.SigDigits = 4;
  s.M = count;
  s.df = count - 1;
  s.C = LognormalSeries(count);
  std::sort(s.C.begin(), s.C.end());
  s.C.insert(s.C.begin(), 0.0);
  StoreMedian(s);
  s.LnC.resize(s.C.size());
  s.FirstInRange = 1;
  s.LastInRange = static_cast<std::int16_t>(count);
  s.NInRange = s.LastInRange;
  analysis::FillCTransf(s, "Log(x)");
  return s;
}

Calculation Shapiro(int count) {
  const ExposureSession s = Series(count);
  analysis::ShapiroWeights weights;
  analysis::FillShapiroWeights(count, weights);
  return {Name("test of fit", count), [s, count, weights]() mutable {
            benchmark::DoNotOptimize(analysis::ShapiroWilk(s.LnC, count, 1, count, weights));
          }};
}

Calculation ShapiroWeights(int count) {
  return {Name("weights of the test of fit", count), [count] {
            analysis::ShapiroWeights weights;
            analysis::FillShapiroWeights(count, weights);
            benchmark::DoNotOptimize(weights);
          }};
}

// With its test of fit and the update of the record, as at each redraw.
Calculation Regression(int count) {
  analysis::FitState fit;
  fit.Transformation = "Log(x)";
  fit.RankitTable = analysis::RankitsForSampleSize(count);
  return {Name("regression", count), [s = Series(count), fit]() mutable {
            benchmark::DoNotOptimize(analysis::ProbabilityRegression(s, fit));
          }};
}

Calculation Moments(int count) {
  return {Name("geometric mean and deviation", count), [s = Series(count)]() mutable {
            double gm = 0;
            double gsd = 0;
            LogMoments(s, gm, gsd);
            benchmark::DoNotOptimize(gsd);
          }};
}

}  // namespace

ExposureSession Known(double M, double GSD, double OELV) {
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.CR = "\r";
  s.M = M;
  s.df = M - 1;
  s.GM = 0.3;
  s.GSD = GSD;
  s.LnGM = std::log(s.GM);
  s.LnGSD = std::log(s.GSD);
  s.OELV = OELV;
  s.U = 95;
  s.D = 95;
  return s;
}

std::vector<Calculation> Calculations() {
  std::vector<Calculation> all;
  for (const double M : {2, 10, 30, 100, 201, 2000}) all.push_back(En689(M));
  all.push_back(En689Far());
  all.push_back(SampleSize());
  for (const double M : {3, 10, 40, 300, 1000}) all.push_back(Land("Land", M, 2, 1));
  for (const double M : {10, 1000}) all.push_back(Land("Land, GSD 1.01", M, 1.01, 0.301));
  for (const double M : {10, 1000}) all.push_back(Land("Land, GSD 20", M, 20, 30));
  for (const int M : {20, 200, 2000}) all.push_back(Shapiro(M));
  all.push_back(ShapiroWeights(2000));
  for (const int M : {20, 200, 2000}) all.push_back(Regression(M));
  for (const int M : {40, 2000}) all.push_back(Moments(M));
  return all;
}

}  // namespace bench
