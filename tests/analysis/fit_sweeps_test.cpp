// What holds of scores, line, test of fit and limits whatever the sample, over all sample sizes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "session/limit_checks.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"

namespace {

using analysis::ShapiroResult;
using analysis::ShapiroWeights;
using analysis::ShapiroWilk;

class FitSweeps : public table::Delivered {
 protected:
  std::mt19937_64 random_{9401};
  std::normal_distribution<double> normal_;

  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  // `M` values in order behind element 0, by `draw`.
  template <class Draw>
  static std::vector<double> Sorted(int M, Draw draw) {
    std::vector<double> values = {0};
    for (int i = 1; i <= M; ++i) values.push_back(draw());
    std::sort(values.begin() + 1, values.end());
    values[0] = values[static_cast<std::size_t>(M) / 2 + 1];
    return values;
  }
  std::vector<double> Normal(int M) {
    return Sorted(M, [&] { return normal_(random_); });
  }
  // Outcomes of which the logarithm is normal; `sigma` is that of the logarithm.
  std::vector<double> Skew(int M, double sigma) {
    return Sorted(M, [&] { return std::exp(sigma * normal_(random_)); });
  }
};

// The values the other way round, as they are seen from above.
std::vector<double> Mirrored(const std::vector<double>& values) {
  std::vector<double> mirrored = {-values[0]};
  for (std::size_t i = values.size() - 1; i >= 1; --i) mirrored.push_back(-values[i]);
  return mirrored;
}

TEST_F(FitSweeps, TheScoresOfEverySampleSizeMirrorEachOther) {
  for (int M = 3; M <= 2000; M += M < 60 ? 1 : 7) {
    const auto R = analysis::RankitsForSampleSize(M);
    for (int i = 1; i <= M; ++i)
      ASSERT_EQ(analysis::Score(R, M, i), -analysis::Score(R, M, M + 1 - i)) << M << " " << i;
    for (int i = 2; i <= M; ++i)
      ASSERT_LT(analysis::Score(R, M, i - 1), analysis::Score(R, M, i)) << M << " " << i;
  }
}

// A larger W is a better fit; from M 4 on, on both sides of 11 and 12.
TEST_F(FitSweeps, ABetterFitHasTheHigherProbabilityAtEverySampleSize) {
  for (int M = 4; M <= 2000; M += M < 40 ? 1 : 97) {
    ShapiroWeights weights;
    std::vector<ShapiroResult> found;
    found.reserve(24);
    for (int k = 0; k < 24; ++k)
      found.push_back(ShapiroWilk(Skew(M, 0.01 + 0.08 * k), M, 1, M, weights));
    std::ranges::sort(found, {}, &ShapiroResult::W);
    for (std::size_t k = 1; k < found.size(); ++k)
      ASSERT_LE(found[k - 1].PW, found[k].PW + 1e-10) << M << ", W " << found[k].W;
  }
}

// What a probability is for: of normal samples one in twenty lies below 5 percent.
TEST_F(FitSweeps, OneNormalSampleInTwentyHasAProbabilityBelowFivePercent) {
  for (const int M : {4, 7, 10, 11, 12, 13, 20, 50, 200}) {
    constexpr int kSamples = 4000;
    ShapiroWeights weights;
    int few = 0;
    int half = 0;
    for (int k = 0; k < kSamples; ++k) {
      const double PW = ShapiroWilk(Normal(M), M, 1, M, weights).PW;
      few += PW < 0.05 ? 1 : 0;
      half += PW < 0.5 ? 1 : 0;
    }
    // Four standard errors and what the method is off.
    EXPECT_NEAR(few / double{kSamples}, 0.05, 0.018) << M;
    EXPECT_NEAR(half / double{kSamples}, 0.5, 0.05) << M;
  }
}

TEST_F(FitSweeps, TheTestIsTheSameSeenFromBelowAndFromAbove) {
  for (int M = 4; M <= 2000; M += M < 60 ? 1 : 61) {
    ShapiroWeights weights;
    const auto values = Skew(M, 0.7);
    const int below = M < 20 ? 0 : Below(M / 3);
    const int above = M < 20 ? 0 : Below(M / 3);
    const auto seen = ShapiroWilk(values, M, 1 + below, M - above, weights);
    const auto turned = ShapiroWilk(Mirrored(values), M, 1 + above, M - below, weights);
    ASSERT_NEAR(turned.W, seen.W, 1e-12) << M;
    ASSERT_NEAR(turned.PW, seen.PW, 1e-9) << M;
  }
}

// In another unit every outcome is a multiple: on the logarithmic scale only the intercept moves.
TEST_F(FitSweeps, TheLineGoesWithTheUnitOfTheOutcomes) {
  for (int M = 3; M <= 2000; M += M < 60 ? 1 : 61) {
    ExposureSession s = fit_data::Opened(Skew(M, 0.8));
    ExposureSession thousandfold = s;
    for (double& c : thousandfold.C) c *= 1000;
    auto state = fit_data::Activated(s, "Log(x)");
    auto stateOfThousandfold = fit_data::Activated(thousandfold, "Log(x)");
    fit_data::Restrict(s, 1 + M / 6, M - M / 6);
    fit_data::Restrict(thousandfold, 1 + M / 6, M - M / 6);
    const auto fit = ProbabilityRegression(s, state);
    const auto moved = ProbabilityRegression(thousandfold, stateOfThousandfold);
    ASSERT_NEAR(moved.a - fit.a, std::log(1000.0), 1e-11) << M;
    ASSERT_NEAR(moved.b, fit.b, 1e-11) << M;
    ASSERT_NEAR(thousandfold.GM / s.GM, 1000, 1e-7) << M;
    ASSERT_NEAR(thousandfold.GSD, s.GSD, 1e-10) << M;
    ASSERT_NEAR(moved.test.W, fit.test.W, 1e-11) << M;
  }
}

int CountBelowOrAt(const ExposureSession& s, double t) {
  const auto above = std::upper_bound(s.C.begin() + 1, s.C.end(), t);
  return static_cast<int>(above - s.C.begin()) - 1;
}

// An accepted lower limit takes the outcomes above it and no others, an accepted upper one those
// below it; a refused one leaves a range that holds.
TEST_F(FitSweeps, EveryLimitLeavesARangeThatHoldsWhatLiesWithinIt) {
  int accepted = 0;
  for (int k = 0; k < 20000; ++k) {
    const int M = 3 + (k % 10 == 0 ? Below(1998) : Below(30));
    ExposureSession s = fit_data::Opened(Skew(M, 0.8));
    s.DetecOn = true;
    const double low = std::exp(2.5 * normal_(random_));
    ControleOndergrens(s, low);
    if (s.MsgText.empty()) {
      ++accepted;
      ASSERT_EQ(s.LOQ, low);
      ASSERT_EQ(s.FirstInRange, CountBelowOrAt(s, low) + 1) << "M " << M << ", " << low;
    }
    const double high = std::exp(2.5 * normal_(random_));
    ControleBovengrens(s, high);
    if (s.MsgText.empty()) {
      ++accepted;
      ASSERT_EQ(s.URR, high);
      ASSERT_EQ(s.LastInRange, CountBelowOrAt(s, high)) << "M " << M << ", " << high;
    }
    ASSERT_TRUE(1 <= s.FirstInRange && s.FirstInRange <= s.LastInRange && s.LastInRange <= M)
        << "M " << M << ": " << s.FirstInRange << " to " << s.LastInRange;
    ASSERT_GE(s.NInRange, 2) << "M " << M << ", " << low << " to " << high;
  }
  EXPECT_GT(accepted, 5000);
}

}  // namespace
