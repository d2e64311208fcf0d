#include <cmath>
#include <cstddef>

#include "base/fault.h"
#include "session/exposure_session.h"

namespace {

// Outcome `i` of the series; a subscript fault outside 0 to the size of C.
double& Outcome(ExposureSession& s, int i) {
  if (i < 0 || static_cast<std::size_t>(i) >= s.C.size()) fault::Throw(FaultKind::Subscript);
  return s.C[static_cast<std::size_t>(i)];
}

constexpr double kNoSpread = 1E-10;
constexpr double kLargeGSD = 10000;
constexpr std::int16_t kStateNoSpread = 4;
constexpr std::int16_t kStateLargeGSD = 5;

}  // namespace

// Degrees of freedom of the spread: M - 1, or with a detection range in force the mean of M and
// of the number in range, less 1, and at most twice the number in range.
// Domain: any M and NInRange; the result is 0 or less for series too small to have a spread.
// Changes: df. Accuracy: exact, as all quantities are whole numbers.
void DegreesOfFreedom(ExposureSession& s) {
  if (!s.DetecOn) {
    s.df = Checked(s.M - 1);
    return;
  }
  s.df = Checked(std::trunc((s.NInRange + s.M) / 2) - 1);
  if (s.df > 2.0 * s.NInRange) s.df = 2.0 * s.NInRange;
}

// Geometric mean and geometric standard deviation, maximum likelihood, of C(1) to C(M), in the
// unit of the outcomes and without unit. The sums always take all M outcomes, while the divisor is
// the record's df, which a detection range reduces.
// Domain: M from 2 on and outcomes above 0; below 2 nothing happens, and an outcome of 0 or less
// is an invalid operation. df = 0 is a division by zero.
// Changes: gm (already when there is no spread or a fault ends the rest), gsd, InputState.
// Accuracy: relative error at most 1.4E-15 of gm (1999 outcomes of GM 2.93) and 1.6E-15 of gsd (15
// outcomes of GM 0.0295), measured on 32 series against 60 digits. SS is a difference of sums, so
// gsd loses digits as the spread comes near to none.
// Source: the definitions, in the one-pass form of the sum of squares.
void LogMoments(ExposureSession& s, double& gm, double& gsd) {
  if (s.M < 2) return;
  double S1 = 0;
  double S2 = 0;
  for (int i = 1; i <= s.M; ++i) {
    const double l = Log(Outcome(s, i));
    S1 = Checked(S1 + l);
    S2 = Checked(S2 + l * l);
  }
  gm = Exp(Divide(S1, s.M));
  const double SS = Checked(S2 - S1 * S1 / s.M);
  if (SS <= kNoSpread) {
    s.InputState = kStateNoSpread;
    return;
  }
  gsd = Exp(Sqrt(Divide(SS, s.df)));
  if (gsd >= kLargeGSD) s.InputState = kStateLargeGSD;
}

// The middle outcome, or the mean of the two in the middle, into C(0). Nothing for M below 1.
void StoreMedian(ExposureSession& s) {
  const int M = SampleCount(s);
  if (M < 1) return;
  Outcome(s, 0) =
      M % 2 == 1 ? Outcome(s, M / 2 + 1) : Checked((Outcome(s, M / 2) + Outcome(s, M / 2 + 1)) / 2);
}
