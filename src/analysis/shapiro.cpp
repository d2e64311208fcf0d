#include "analysis/shapiro.h"

#include <cmath>
#include <cstddef>

#include "base/fault.h"
#include "stats/coefficients.h"
#include "stats/normal.h"

namespace analysis {
namespace {

using StatFWinBAS::Block;
using StatFWinBAS::Needed;
using StatFWinBAS::RoystonPoly;

constexpr int kLeastTested = 3;
constexpr int kLeastCensored = 20;  // sample size from which a censored sample is tested
constexpr double kMostCensored = 0.8;
constexpr double kNoMeanWeight = 1E-13;
constexpr int kLastGamma = 11;  // largest sample with the transformation -ln(gamma - ln(1 - W))
constexpr int kLargestPublished = 5000;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

// Medians m(1) to m(M\2) of the lower half, all negative; returns twice their sum of squares.
double FillMedians(int M, std::vector<double>& m) {
  const double AN25 = M + 0.25;
  const double TH = Needed(Block::Royston).ShapiroTH;
  double S2 = 0;
  for (int i = 1; i <= M / 2; ++i) {
    m[At(i)] = -StatFWinBAS::NormalUpperInverse(Divide(i - TH, AN25));
    S2 = Checked(S2 + m[At(i)] * m[At(i)]);
  }
  return Checked(2 * S2);
}

// Turns the medians into weights: the outermost one or two by a polynomial in 1 / sqrt(M), the
// others in proportion.
void TurnIntoWeights(int M, double S2, std::vector<double>& a) {
  const double SS = Sqrt(S2);
  const double RSN = Divide(1, Sqrt(M));
  const double m1 = a[1];
  const double A1 = Checked(RoystonPoly(RSN, 5, 1) - Divide(m1, SS));
  double FAC = 0;
  int I1 = 2;
  if (M > 5) {
    I1 = 3;
    const double m2 = a[2];
    const double A2 = Checked(RoystonPoly(RSN, 5, 2) - Divide(m2, SS));
    FAC = Sqrt(Divide(S2 - 2 * (m1 * m1) - 2 * (m2 * m2), 1 - 2 * (A1 * A1) - 2 * (A2 * A2)));
    a[2] = A2;
  } else {
    FAC = Sqrt(Divide(S2 - 2 * (m1 * m1), 1 - 2 * (A1 * A1)));
  }
  a[1] = A1;
  for (int i = I1; i <= M / 2; ++i) a[At(i)] = Divide(-a[At(i)], FAC);
}

// What the test looks at: the values in range, as parts of their span, and their weights.
struct Sample {
  const std::vector<double>& CTransf;
  const std::vector<double>& a;
  int M;
  int first;
  int last;
  double Range;

  double Weight(int i) const {
    if (i <= M / 2) return -a[At(i)];
    if (i >= (M + 1) / 2 + 1) return a[At(M + 1 - i)];
    return 0;
  }
  double Part(int i) const { return Divide(CTransf[At(i)], Range); }
  int N1() const { return last - first + 1; }
  int NCENS() const { return M - N1(); }
};

// 1 - W, calculated as such because a good fit leaves hardly more than rounding of it.
double OneLessW(const Sample& sample) {
  double SX = 0;
  double SA = 0;
  for (int i = sample.first; i <= sample.last; ++i) {
    SX = Checked(SX + sample.Part(i));
    SA = Checked(SA + sample.Weight(i));
  }
  if (std::abs(SA) < kNoMeanWeight) SA = 0;
  SX = SX / sample.N1();
  SA = SA / sample.N1();
  double SSA = 0;
  double SSX = 0;
  double SAX = 0;
  for (int i = sample.first; i <= sample.last; ++i) {
    const double ASA = sample.Weight(i) - SA;
    const double XSX = sample.Part(i) - SX;
    SSA = Checked(SSA + ASA * ASA);
    SSX = Checked(SSX + XSX * XSX);
    SAX = Checked(SAX + ASA * XSX);
  }
  const double SSASSX = Sqrt(Checked(SSA * SSX));
  return Divide(Checked((SSASSX - SAX) * (SSASSX + SAX)), Checked(SSA * SSX));
}

// Moves mean m and standard deviation s of the normalising transformation to those of a sample
// of which the part DELTA is censored.
void AllowForCensored(double DELTA, double XX, double& m, double& s) {
  const auto& c = Needed(Block::Royston);
  const double LD = -Log(DELTA);
  const double BF = 1 + XX * c.BF1;
  const double Z90F = Checked(c.Z90 + BF * Power(RoystonPoly(Power(c.XX90, XX), 1, 7), LD));
  const double Z95F = Checked(c.Z95 + BF * Power(RoystonPoly(Power(c.XX95, XX), 1, 8), LD));
  const double Z99F = Checked(c.Z99 + BF * Power(RoystonPoly(XX, 1, 9), LD));
  const double ZFM = (Z90F + Z95F + Z99F) / 3;
  const double ZSD =
      Divide(c.Z90 * (Z90F - ZFM) + c.Z95 * (Z95F - ZFM) + c.Z99 * (Z99F - ZFM), c.ZSS);
  const double ZBAR = Checked(ZFM - c.ZM * ZSD);
  m = Checked(m + s * ZBAR);
  s = Checked(s * ZSD);
}

double ProbabilityOfThree(double W) {
  return Checked(1.5 * (std::atan(Sqrt(W)) - std::atan(std::sqrt(3.0))) / std::atan(1.0));
}

double Probability(double W1, const Sample& sample) {
  const int M = sample.M;
  double Y = Log(W1);
  const double XX = Log(M);
  double m = 0;
  double s = 0;
  if (M <= kLastGamma) {
    const double GAMMA = RoystonPoly(M, 1, 10);
    if (Y >= GAMMA) return 0;
    Y = -Log(GAMMA - Y);
    m = RoystonPoly(M, 3, 3);
    s = Exp(RoystonPoly(M, 3, 4));
  } else {
    m = RoystonPoly(XX, 3, 5);
    s = Exp(RoystonPoly(XX, 2, 6));
  }
  if (sample.NCENS() > 0) {
    const double DELTA = static_cast<double>(sample.NCENS()) / M;
    AllowForCensored(DELTA, XX, m, s);
  }
  double deviate = Divide(Y - m, s);
  return StatFWinBAS::NormalUpperHill(deviate);
}

// 0 when N1 of M values can be tested.
int WhyNotTested(int M, int N1) {
  const int NCENS = M - N1;
  if (NCENS < 0 || (NCENS > 0 && M < kLeastCensored)) return 4;
  if (static_cast<double>(NCENS) / M > kMostCensored) return 5;
  return 0;
}

}  // namespace

void FillShapiroWeights(int M, ShapiroWeights& weights) {
  if (M == weights.ShapiroN) return;
  if (M < kLeastTested) fault::Throw(FaultKind::Subscript);
  std::vector<double> a(At(M / 2) + 1, 0.0);
  if (M == kLeastTested) {
    a[1] = 1 / std::sqrt(2.0);
  } else {
    const double S2 = FillMedians(M, a);
    TurnIntoWeights(M, S2, a);
  }
  // Only now, so that a fault leaves no weights that pass for those of M.
  weights.ShapiroN = M;
  weights.ShapiroCoeffs = std::move(a);
}

ShapiroResult ShapiroWilk(const std::vector<double>& CTransf, int M, int first, int last,
                          ShapiroWeights& weights) {
  ShapiroResult result;
  if (M < kLeastTested) return result;
  FillShapiroWeights(M, weights);
  const int N1 = last - first + 1;
  if (N1 < kLeastTested) return result;
  result.fault = WhyNotTested(M, N1);
  if (result.fault != 0) return result;
  if (first < 1 || last > M || CTransf.size() <= At(last)) fault::Throw(FaultKind::Subscript);
  result.fault = M > kLargestPublished ? 2 : 0;
  const Sample sample{CTransf, weights.ShapiroCoeffs,
                      M,       first,
                      last,    Checked(CTransf[At(last)] - CTransf[At(first)])};
  const double W1 = OneLessW(sample);
  result.W = W1 > 0 ? 1 - W1 : 1;
  if (M == kLeastTested)
    result.PW = ProbabilityOfThree(result.W);
  else if (W1 > 0)
    result.PW = Probability(W1, sample);
  result.tested = true;
  return result;
}

}  // namespace analysis
