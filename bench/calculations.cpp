#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "analysis/rankits.h"
#include "analysis/regression.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "bench/raw_series.h"
#include "compliance/en689.h"
#include "compliance/sample_size.h"
#include "session/exposure_session.h"
#include "stats/coefficients.h"
#include "ucl/mean_limit.h"

// One press of a button each, by sample size.
namespace {

ExposureSession Known(double M, double GSD, double OELV) {
  ExposureSession s;
  s.Mode = "D";
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

void En689Test(benchmark::State& state) {
  const auto M = static_cast<double>(state.range(0));
  const double Ur = std::log(1 / 0.3) / std::log(2.0);
  for (auto _ : state) {
    ExposureSession s = Known(M, 2, 1);
    benchmark::DoNotOptimize(compliance::En689Test(s, Ur));
  }
}
BENCHMARK(En689Test)->Arg(2)->Arg(10)->Arg(30)->Arg(100)->Arg(201)->Arg(2000);

// A GSD close to 1 with few degrees of freedom puts the limit thousands of steps away.
void En689TestFar(benchmark::State& state) {
  for (auto _ : state) {
    ExposureSession s = Known(2, 1.001, 1);
    s.U = 99.99;
    s.D = 99.99;
    benchmark::DoNotOptimize(compliance::En689Test(s, 1));
  }
}
BENCHMARK(En689TestFar);

void SampleSize(benchmark::State& state) {
  for (auto _ : state) {
    ExposureSession s = Known(10, 2, 1);
    s.TestTag = "Wi";
    benchmark::DoNotOptimize(compliance::OptimiseSampleSize(s));
  }
}
BENCHMARK(SampleSize);

// LandCmb: some twenty trial limits and the limit itself.
void Land(benchmark::State& state, double GSD, double OELV) {
  ExposureSession start = Known(static_cast<double>(state.range(0)), GSD, OELV);
  ucl::MeanStatistics(start);
  for (auto _ : state) {
    ExposureSession s = start;
    benchmark::DoNotOptimize(ucl::LandCmb(s));
  }
}
BENCHMARK_CAPTURE(Land, middle, 2.0, 0.5)
    ->Arg(3)
    ->Arg(10)
    ->Arg(30)
    ->Arg(100)
    ->Arg(301)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Land, GSD_1_01, 1.01, 0.301)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Land, GSD_20, 20.0, 30.0)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

ExposureSession Series(int count) {
  ExposureSession s;
  s.Mode = "R";
  s.CR = "\r";
  s.SigDigits = 4;
  s.M = count;
  s.df = count - 1;
  s.C = bench::LognormalSeries(count);
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

void Shapiro(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const ExposureSession s = Series(count);
  analysis::ShapiroWeights weights;
  analysis::FillShapiroWeights(count, weights);
  for (auto _ : state)
    benchmark::DoNotOptimize(analysis::ShapiroWilk(s.LnC, count, 1, count, weights));
}
BENCHMARK(Shapiro)->Arg(20)->Arg(200)->Arg(2000);

void ShapiroWeights(benchmark::State& state) {
  for (auto _ : state) {
    analysis::ShapiroWeights weights;
    analysis::FillShapiroWeights(static_cast<int>(state.range(0)), weights);
    benchmark::DoNotOptimize(weights);
  }
}
BENCHMARK(ShapiroWeights)->Arg(2000);

// With its test of fit and the update of the record, as at each redraw.
void Regression(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  ExposureSession s = Series(count);
  analysis::FitState fit;
  fit.Transformation = "Log(x)";
  fit.RankitTable = analysis::RankitsForSampleSize(count);
  for (auto _ : state) benchmark::DoNotOptimize(analysis::ProbabilityRegression(s, fit));
}
BENCHMARK(Regression)->Arg(20)->Arg(200)->Arg(2000);

}  // namespace

int main(int argc, char** argv) {
  StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"});
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
