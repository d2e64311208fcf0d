#include "analysis/rankits.h"

#include <cstddef>

#include "base/fault.h"
#include "session/exposure_session.h"
#include "stats/coefficients.h"
#include "stats/normal.h"

namespace analysis {
namespace {

using StatFWinBAS::Block;
using StatFWinBAS::Needed;

constexpr int kLastTabled = 20;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

void FillFromTable(std::vector<double>& R, int M) {
  int offset = 0;
  for (int k = 4; k < M; ++k) offset += k / 2;
  const auto& table = Needed(Block::ExactRankits).ExactRankits;
  for (int i = 1; i <= M / 2; ++i) R[At(i)] = table[At(offset + i - 1)];
}

// The area to the right of the i-th largest deviate.
double TailArea(int M, int i) {
  const auto& c = Needed(Block::Rankits).RankitCoefficients;
  if (i <= 3) {
    const std::size_t k = At(5 * (i - 1));
    const double e = Divide(c[k + 1], M + c[k + 2]);
    const double f = Power(e, c[k + 3]);
    // The constant of the third order is held with the other sign.
    const double slope = i == 3 ? c[k + 4] - f * c[k + 5] : c[k + 4] + f * c[k + 5];
    return Checked(e + f * slope / M);
  }
  const double L = c[16] - Divide(c[17], i - c[18]);
  const double e = Divide(i - c[19], M + c[20]);
  const double f = Power(e, L);
  double S = Checked(e + f * (c[21] - f * c[22]) / M);
  if (i == 4 && M < 40) {
    const double d = c[23] / M / M - c[24];
    S = Checked(S + d / M / M);
  }
  return S;
}

}  // namespace

std::vector<double> RankitsForSampleSize(int M) {
  std::vector<double> R(M < 0 ? 1 : At(M / 2) + 1, 0.0);
  if (M < 3 || M > kMaxSampleSize) return R;
  if (M == 3) {
    R[1] = 0.84628;
  } else if (M <= kLastTabled) {
    FillFromTable(R, M);
  } else {
    for (int i = 1; i <= M / 2; ++i) {
      R[At(i)] = StatFWinBAS::NormalUpperInverse(TailArea(M, i));
    }
  }
  return R;
}

double Score(const std::vector<double>& RankitTable, int M, int i) {
  if (i < 1 || i > M || RankitTable.size() <= At(M / 2)) fault::Throw(FaultKind::Subscript);
  if (i <= M / 2) return -RankitTable[At(i)];
  if (i < (M + 3) / 2) return 0;
  return RankitTable[At(M + 1 - i)];
}

}  // namespace analysis
