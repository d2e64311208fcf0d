#include "session/moments.h"

#include <cmath>
#include <cstddef>

#include "base/fault.h"

namespace {

// Outcome `i` of the series; a subscript fault outside 0 to the size of C.
double Outcome(const std::vector<double>& C, int i) {
  if (i < 0 || static_cast<std::size_t>(i) >= C.size()) fault::Throw(FaultKind::Subscript);
  return C[static_cast<std::size_t>(i)];
}

constexpr double kNoSpread = 1E-10;
constexpr double kLargeGSD = 10000;
constexpr std::int16_t kStateNoSpread = 4;
constexpr std::int16_t kStateLargeGSD = 5;

struct LogSums {
  double mean = 0;
  double squares = 0;  // about the mean
};

LogSums LogSumsOf(const std::vector<double>& C, double M) {
  double S1 = 0;
  double S2 = 0;
  for (int i = 1; i <= M; ++i) {
    const double l = Log(Outcome(C, i));
    S1 = Checked(S1 + l);
    S2 = Checked(S2 + l * l);
  }
  return {Divide(S1, M), Checked(S2 - S1 * S1 / M)};
}

// The sum of the squares of many equal outcomes is not 0 to the last digit.
bool AllEqual(const std::vector<double>& C, double M) {
  for (int i = 2; i <= M; ++i)
    if (Outcome(C, i) != Outcome(C, 1)) return false;
  return true;
}

}  // namespace

double DegreesOfFreedom(double M, bool DetecOn, double NInRange) {
  if (!DetecOn) return Checked(M - 1);
  const double df = Checked(std::trunc((NInRange + M) / 2) - 1);
  return df > 2.0 * NInRange ? 2.0 * NInRange : df;
}

void DegreesOfFreedom(ExposureSession& s) { s.df = DegreesOfFreedom(s.M, s.DetecOn, s.NInRange); }

GeometricMoments LogMoments(const std::vector<double>& C, double M, double df) {
  const LogSums sums = LogSumsOf(C, M);
  GeometricMoments moments;
  moments.GM = Exp(sums.mean);
  if (sums.squares <= kNoSpread || AllEqual(C, M)) {
    moments.spread = Spread::None;
  } else if (df >= 1) {
    moments.GSD = Exp(Sqrt(Divide(sums.squares, df)));
    if (*moments.GSD >= kLargeGSD) moments.spread = Spread::TooLarge;
  }
  return moments;
}

void LogMoments(ExposureSession& s, double& gm, double& gsd) {
  if (s.M < 2) return;
  const LogSums sums = LogSumsOf(s.C, s.M);
  gm = Exp(sums.mean);
  if (sums.squares <= kNoSpread) {
    s.InputState = kStateNoSpread;
    return;
  }
  gsd = Exp(Sqrt(Divide(sums.squares, s.df)));
  if (gsd >= kLargeGSD) s.InputState = kStateLargeGSD;
}

double MedianOf(const std::vector<double>& C, int M) {
  return M % 2 == 1 ? Outcome(C, M / 2 + 1)
                    : Checked((Outcome(C, M / 2) + Outcome(C, M / 2 + 1)) / 2);
}

// Nothing for M below 1.
void StoreMedian(ExposureSession& s) {
  const int M = SampleCount(s);
  if (M < 1) return;
  const double median = MedianOf(s.C, M);
  s.C[0] = median;
}
