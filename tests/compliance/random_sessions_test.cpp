#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "compliance/en689.h"
#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "stats/noncentral_t.h"
#include "tests/stats/table_check.h"

// Random sessions over the whole domain: every search ends within its bound, no fault escapes, and
// the tuned stepping finds what single steps find.
namespace {

class RandomSessions : public table::Delivered {
 protected:
  double Part() { return std::uniform_real_distribution<double>(0, 1)(rng); }
  double Between(double low, double high) { return low * std::pow(high / low, Part()); }
  double Percent() {
    switch (rng() % 5) {
      case 0:
        return 0.01 + Between(1e-4, 1);
      case 1:
        return std::min(99.99, 100 - Between(0.01, 1));
      case 2:
        return 1 + static_cast<double>(rng() % 99);
      default:
        return 0.01 + 99.98 * Part();
    }
  }

  ExposureSession Draw() {
    ExposureSession s;
    s.M = std::floor(Between(2, 2000.9));
    s.df = rng() % 3 == 0 ? 1 + static_cast<double>(rng() % 4) : s.M - 1;
    s.NInRange = static_cast<std::int16_t>(2 + rng() % static_cast<unsigned>(s.M - 1));
    s.RegressionOn = rng() % 4 == 0;
    s.GM = Between(1e-4, 1e4);
    s.GSD = 1 + Between(1e-3, 999);
    s.OELV = rng() % 2 == 0 ? Between(1e-10, 1e10)
                            : std::clamp(s.GM * std::pow(s.GSD, 8 * Part() - 4), 1e-10, 1e10);
    s.U = Percent();
    s.D = Percent();
    return s;
  }

  std::mt19937_64 rng{6893};
};

double Distance(const ExposureSession& s) { return std::log(*s.OELV / s.GM) / std::log(s.GSD); }

std::string Described(const ExposureSession& s) {
  std::string text;
  for (double value : {s.M, s.df, s.GM, s.GSD, *s.OELV, s.U, s.D})
    text += testing::PrintToString(value) + " ";
  return text;
}

void ExpectEn689(ExposureSession& s, double Ur, const std::string& where) {
  const compliance::En689OnRecord result = compliance::En689Test(s, Ur);
  EXPECT_EQ(result.limit.has_value(), s.U > 50) << where;
  if (result.limit) {
    EXPECT_LE(result.limit->evaluations, 3500) << where;
    EXPECT_TRUE(std::isfinite(s.UTL) && s.UTL > 0) << where << s.UTL;
    EXPECT_TRUE(0 <= s.PercEx && s.PercEx <= 100) << where << s.PercEx;
  }
  EXPECT_LE(result.fraction.evaluations, 320) << where;
  EXPECT_TRUE(0 <= result.fraction.u && result.fraction.u <= 100) << where << result.fraction.u;
}

void ExpectOptimisation(ExposureSession& s, const std::string& where) {
  const double M = s.M;
  const double df = s.df;
  const compliance::SampleSizeResult result = compliance::OptimiseSampleSize(s);
  EXPECT_LE(result.evaluations, 99) << where;
  EXPECT_EQ(s.M, M) << where;
  EXPECT_EQ(s.df, df) << where;
  EXPECT_TRUE(std::isfinite(result.Mopt)) << where;
  EXPECT_EQ(result.outcome == compliance::SampleSizeCase::CoverageTooLow, !(s.U > 50)) << where;
}

TEST_F(RandomSessions, TwentyThousandEndInBoundedSearchesWithFiniteResultsAndNoFault) {
  for (int i = 0; i < 20000; ++i) {
    ExposureSession s = Draw();
    const std::string where = Described(s);
    const double Ur = Distance(s);
    ASSERT_NO_THROW(ExpectEn689(s, Ur, where)) << where;
    ASSERT_NO_THROW(compliance::WilksTest(s, Ur)) << where;
    EXPECT_TRUE(0 <= s.PercEx && s.PercEx <= 100) << where << s.PercEx;
    ASSERT_NO_THROW(ExpectOptimisation(s, where)) << where;
  }
}

// The stepping as it is defined, one step after the other; the candidate that it leaves.
double SingleSteps(const ExposureSession& s) {
  double x = s.GM / s.GSD;
  for (;;) {
    x = x * s.GSD;
    const double r = std::log(x / s.GM) / std::log(s.GSD);
    const double p = 1 - s.U / 100;
    const double ConfNow = StatFWinBAS::NoncentralTUpper(s.df, p, r) * 100;
    if (x > 1E+300 || ConfNow > s.D || std::abs(ConfNow - s.D) < 0.001) return x;
  }
}

TEST_F(RandomSessions, StridesOverFarStepsEndOnTheStepThatSingleStepsEndOn) {
  int far = 0;
  for (int i = 0; i < 3000; ++i) {
    ExposureSession s = Draw();
    s.df = 1 + static_cast<double>(rng() % 4);
    s.GSD = 1 + Between(1e-3, 0.5);
    s.U = std::min(99.99, 50.01 + 49.98 * Part());
    s.D = std::min(99.99, 100 - Between(0.01, 5));
    const double plain = SingleSteps(s);
    if (Distance(s) == 0 || plain < s.GM * std::pow(s.GSD, 16)) continue;
    ++far;
    // The last number of the stepping is the one that the first bisection halves from.
    std::vector<double> shown;
    const compliance::ToleranceSearch search = compliance::En689ToleranceLimit(
        s, [&](compliance::TestBox, double x) { shown.push_back(x); });
    const bool stepped =
        std::find(shown.begin(), shown.end(), plain) != shown.end() || search.UTL == plain;
    EXPECT_TRUE(stepped) << Described(s) << "steps end on " << plain;
    EXPECT_LE(search.UTL, plain) << Described(s);
  }
  EXPECT_GT(far, 300);
}

// The limit of a higher confidence, and of a higher coverage, lies higher.
TEST_F(RandomSessions, MoreConfidenceAndMoreCoverageMoveTheLimitUp) {
  for (int i = 0; i < 2000; ++i) {
    ExposureSession s = Draw();
    s.GSD = 1.2 + Part();
    s.U = 55 + 30 * Part();
    s.D = 20 + 50 * Part();
    const double limit = compliance::En689ToleranceLimit(s).UTL;
    ExposureSession surer = s;
    surer.D = s.D + 5;
    EXPECT_GT(compliance::En689ToleranceLimit(surer).UTL, limit) << Described(s);
    ExposureSession wider = s;
    wider.U = s.U + 5;
    EXPECT_GT(compliance::En689ToleranceLimit(wider).UTL, limit) << Described(s);
  }
}

}  // namespace
