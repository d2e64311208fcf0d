#include <benchmark/benchmark.h>

#include <string>

#include "bench/raw_series.h"
#include "rawdata/raw_file.h"
#include "session/exposure_session.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "stats/coefficients.h"
#include "stats/estimators.h"
#include "stats/normal.h"

namespace {

// Walks over the whole working range, so that every region of a routine takes part.
double Sweep(double from, double to, std::size_t step) {
  constexpr std::size_t kSteps = 1024;
  return from + (to - from) * static_cast<double>(step % kSteps) / kSteps;
}

void NormalUpper(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(StatFWinBAS::NormalUpper(Sweep(-8, 8, i++)));
}
BENCHMARK(NormalUpper);

void NormalUpperInverse(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(StatFWinBAS::NormalUpperInverse(Sweep(1e-6, 1 - 1e-6, i++)));
}
BENCHMARK(NormalUpperInverse);

void FinneyMeanMVU(benchmark::State& state) {
  const auto df = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(StatFWinBAS::FinneyMeanMVU(df, 1.3, 2.5));
}
BENCHMARK(FinneyMeanMVU)->Arg(5)->Arg(1999);

void LogMomentsOfSeries(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  ExposureSession session;
  session.M = count;
  session.df = count - 1;
  session.C = bench::LognormalSeries(count);
  session.C.insert(session.C.begin(), 0.0);
  double gm = 0;
  double gsd = 0;
  for (auto _ : state) {
    LogMoments(session, gm, gsd);
    benchmark::DoNotOptimize(gsd);
  }
}
BENCHMARK(LogMomentsOfSeries)->Arg(40)->Arg(2000);

void ShowNumber(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    const double value = Sweep(0.001, 5000, i++);
    benchmark::DoNotOptimize(GlobalBAS::FormatNumber(value, GlobalBAS::FormatMask(value, 6)));
  }
}
BENCHMARK(ShowNumber);

void ReadNumber(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(GlobalBAS::ReadNumber(" 12,0375 mg/m3"));
}
BENCHMARK(ReadNumber);

// The time of one digit, however many there are.
void ReadLongNumber(benchmark::State& state) {
  const std::string digits(static_cast<std::size_t>(state.range(0)), '7');
  for (auto _ : state) benchmark::DoNotOptimize(GlobalBAS::ReadNumber(digits));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadLongNumber)->Arg(20'000)->Arg(20'000'000)->Unit(benchmark::kMicrosecond);

void CheckFile(benchmark::State& state) {
  const bench::RawSeriesFile file(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(rawdata::CheckFile(file.Path()));
}
BENCHMARK(CheckFile)->Arg(40)->Arg(2000);

// The worst that can be chosen by mistake: as many lines as are read, each as long as fits.
void CheckLargestFile(benchmark::State& state) {
  const std::string line(rawdata::kLargestFile / 2000 - 2, static_cast<char>(state.range(0)));
  std::string bytes;
  for (int i = 0; i < 2000; ++i) bytes += "1." + line.substr(2) + "\r\n";
  const bench::RawSeriesFile file(bytes);
  for (auto _ : state) benchmark::DoNotOptimize(rawdata::CheckFile(file.Path()));
}
BENCHMARK(CheckLargestFile)->Arg('1')->Arg('0')->Arg(' ')->Arg('x')->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"});
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
