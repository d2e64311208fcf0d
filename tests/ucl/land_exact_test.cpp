#include "ucl/land_exact.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <vector>

#include "base/fault.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "ucl/land_probability.h"
#include "ucl/land_search.h"

namespace {

using UCLBAS::LandExactUCL;
using UCLBAS::LandLimit;
using UCLBAS::LandRootSearch;
using UCLBAS::LandSign;
using UCLBAS::LandWatch;

struct Found {
  double C = 77;
  std::int16_t status = 0;
  LandWatch watch;
};

Found Search(double nu, double s, double x1, double x2, double p) {
  Found found;
  double f1 = 0, f2 = 0;
  LandRootSearch(nu, s, x1, x2, f1, f2, p, found.C, found.status, found.watch);
  return found;
}

TEST(LandRootSearch, FollowsTheMethodsOwnSteps) {
  int rows = 0;
  for (const support::Row& row : support::ReadTable("land_parts.csv")) {
    if (row.Text("routine") != "LandRootSearch") continue;
    ++rows;
    const Found found = Search(row.Number("a1"), row.Number("a2"), row.Number("a3"),
                               row.Number("a4"), row.Number("a5"));
    const bool root = row.Text("note").find("value = C") != std::string::npos;
    EXPECT_EQ(found.status, root ? 0 : row.Number("value")) << row.Where();
    EXPECT_NEAR(found.C, root ? row.Number("value") : 77, 1e-13) << row.Where();
    std::ostringstream evaluations;
    evaluations << "prob_evals " << found.watch.Evaluations << ";";
    EXPECT_NE(row.Text("note").find(evaluations.str()), std::string::npos)
        << row.Where() << ": " << evaluations.str();
  }
  EXPECT_EQ(rows, 6);
}

TEST(LandRootSearch, AMovedIntervalCostsOnlyItsNewEnd) {
  double x1 = -1, x2 = 0.5, f1 = 0, f2 = 0, C = 0;
  std::int16_t status = 0;
  LandWatch watch;
  LandRootSearch(9, 1, x1, x2, f1, f2, 0.05, C, status, watch);
  ASSERT_EQ(status, 1);
  EXPECT_EQ(watch.Evaluations, 2);
  const double old = f2;
  x1 = x2;
  x2 = 0.6;
  LandRootSearch(9, 1, x1, x2, f1, f2, 0.05, C, status, watch);
  EXPECT_EQ(status, 1);
  EXPECT_EQ(f1, old);
  EXPECT_EQ(watch.Evaluations, 3);
}

TEST(LandRootSearch, AnIntervalMovedDownUsesItsUpperEndAgain) {
  double x1 = 2, x2 = 3, f1 = 0, f2 = 0, C = 0;
  std::int16_t status = 0;
  LandWatch watch;
  LandRootSearch(9, 1, x1, x2, f1, f2, 0.05, C, status, watch);
  ASSERT_EQ(status, -1);
  const double old = f1;
  x2 = x1;
  x1 = 0;
  LandRootSearch(9, 1, x1, x2, f1, f2, 0.05, C, status, watch);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(f2, old);
  EXPECT_NEAR(C, 1.0342, 0.0001);
}

TEST(LandRootSearch, NearARootOfZeroTheAbsoluteWidthDecides) {
  const double p = UCLBAS::LandProbability(9, 1, 0);
  const Found found = Search(9, 1, 0, 1, p);
  EXPECT_EQ(found.status, 0);
  EXPECT_LE(std::abs(found.C), 1e-8);
}

TEST(LandExactUCL, FollowsTheMethodsOwnSteps) {
  long most = 0;
  for (const support::Row& row : support::ReadTable("land_cases.csv")) {
    LandWatch watch;
    const LandLimit limit = LandExactUCL(0.5, row.Number("nu"), row.Number("s"), row.Number("mean"),
                                         row.Number("confidence"), watch);
    const double C = row.Number("fixed_C");
    EXPECT_NEAR(limit.C, C, 1e-13 * std::abs(C)) << row.Where();
    const double UCL = row.Number("fixed_UCL");
    EXPECT_NEAR(limit.UCL, UCL, 1e-13 * std::abs(UCL)) << row.Where();
    EXPECT_EQ(watch.UCL, limit.UCL);
    if (row.Text("group") != "hole") {
      EXPECT_NEAR(limit.Factor, row.Number("Factor"), 1e-13 * std::abs(limit.Factor));
      EXPECT_EQ(watch.Evaluations, row.Number("prob_evals")) << row.Where();
    }
    most = std::max(most, watch.Evaluations);
  }
  EXPECT_LE(most, 60);
}

TEST(LandExactUCL, ForTenSamplesOfSpread1IsAsKnown) {
  const LandLimit limit = LandExactUCL(0.5, 9, 1, 2, 95);
  EXPECT_NEAR(limit.C, 1.034, 0.0005);
  EXPECT_NEAR(limit.Factor, 3.10, 0.005);
  EXPECT_NEAR(limit.UCL, 2 + 0.5 + 1.034, 0.0005);
}

// The interval that the search of the limit at confidence 95 begins with.
std::array<double, 2> FirstInterval(double nu, double s) {
  LandWatch watch;
  LandExactUCL(0.5, nu, s, 0, 95, watch);
  return watch.InitTxb;
}

// The smallest samples have the largest factors.
TEST(LandExactUCL, UpToFiveDegreesOfFreedomTheUpperEndIsWidenedByExp6LessNu) {
  for (const double nu : {2.0, 3.0, 4.0, 5.0}) {
    const double plain = 10 * 3.0 * 3.0 / std::sqrt(nu);
    EXPECT_DOUBLE_EQ(FirstInterval(nu, 3)[1], plain * std::exp(6 - nu)) << "nu " << nu;
  }
  for (const double nu : {6.0, 7.0, 99.0})
    EXPECT_EQ(FirstInterval(nu, 3)[1], 10 * 3.0 * 3.0 / std::sqrt(nu)) << "nu " << nu;
}

TEST(LandExactUCL, TheLowerEndFollowsTheSpreadTwiceAboveASpreadOf1) {
  const double above = std::nextafter(1.0, 2);
  EXPECT_EQ(FirstInterval(9, 1)[0], -7.5 / 3);
  EXPECT_NEAR(FirstInterval(9, above)[0], -5 / 3.0, 1e-14);
  EXPECT_DOUBLE_EQ(FirstInterval(9, 2)[0], -14 / 3.0);
}

TEST(LandExactUCL,
     ARootBeyondTheFirstIntervalIsSoughtInTenfoldOnesOfWhichOnlyTheNewEndIsEvaluated) {
  LandWatch watch;
  long atFirstInterval = -1;
  watch.Report = [&](const LandWatch& now, LandSign) {
    if (atFirstInterval < 0) atFirstInterval = now.Evaluations;
  };
  const LandLimit limit = LandExactUCL(0.5, 9, 0.001, 0, 95, watch);
  // From (x1, x2) by way of (x2, 10 x2) and (10 x2, 100 x2) to (100 x2, 1000 x2).
  const double x2 = 10 * 0.001 * 0.001 / 3;
  EXPECT_DOUBLE_EQ(watch.InitTxb[0], 100 * x2);
  EXPECT_DOUBLE_EQ(watch.InitTxb[1], 1000 * x2);
  EXPECT_EQ(atFirstInterval, 2 + 3) << "two ends, and three more for three moves";
  EXPECT_NEAR(UCLBAS::LandProbability(9, 0.001, limit.C), 0.05, 1e-6);
}

TEST(LandExactUCL, AVeryLargeLimitStaysANumberOnTheLogarithmicScale) {
  EXPECT_GT(LandExactUCL(0.5, 2, 6.9, 9, 99.75).UCL, 701);
}

TEST(LandExactUCL, RisesWithTheConfidence) {
  for (const double nu : {2.0, 5.0, 6.0, 99.0, 999.0}) {
    double last = -1e300;
    for (const double confidence : {0.95, 5.0, 30.0, 50.0, 80.0, 95.0, 99.0, 99.75}) {
      const double UCL = LandExactUCL(0.5, nu, 1.2, 0.3, confidence).UCL;
      EXPECT_GT(UCL, last) << "nu " << nu << " confidence " << confidence;
      last = UCL;
    }
  }
}

// The limit of a falling function of the variance mirrors that of a rising one.
TEST(LandExactUCL, ANegativeLambdaTakesTheOtherTail) {
  const LandLimit down = LandExactUCL(-0.5, 9, 1, 2, 95);
  const LandLimit up = LandExactUCL(0.5, 9, 1, 2, 5);
  EXPECT_NEAR(down.C, up.C, 1e-13);
  EXPECT_NEAR(down.UCL, 2 - 0.5 - up.C, 1e-12);
}

TEST(LandExactUCL, ShowsIntervalBracketFactorAndLimitInThisOrder) {
  std::vector<LandSign> signs;
  LandWatch watch;
  watch.Report = [&](const LandWatch& now, LandSign sign) {
    if (signs.empty()) {
      EXPECT_EQ(now.InitTxb[0], -2.5);
      EXPECT_EQ(now.InitTxb[1], 10 / 3.0);
      EXPECT_FALSE(now.SecantTxb[0]);
      EXPECT_FALSE(now.ConFactTxb);
    } else if (sign == LandSign::Window || sign == LandSign::SecantLabel) {
      EXPECT_LE(std::min(*now.SecantTxb[0], *now.SecantTxb[1]), 1.03420);
      EXPECT_GE(std::max(*now.SecantTxb[0], *now.SecantTxb[1]), 1.03418);
      EXPECT_EQ(now.Secant == "secant +bisection ......", sign == LandSign::SecantLabel);
    }
    signs.push_back(sign);
  };
  const LandLimit limit = LandExactUCL(0.5, 9, 1, 0, 95, watch);
  ASSERT_EQ(signs.size(), 1u + 8 + 2);  // eight passes
  EXPECT_EQ(signs[0], LandSign::Window);
  EXPECT_EQ(signs[9], LandSign::ConFactTxb);
  EXPECT_EQ(signs[10], LandSign::Limit);
  EXPECT_EQ(*watch.ConFactTxb, limit.Factor);
  EXPECT_EQ(*watch.SecantTxb[0], limit.C);
}

TEST(LandExactUCL, ASecondSearchEmptiesTheBoxesOfTheFirst) {
  LandWatch watch;
  LandExactUCL(0.5, 9, 1, 0, 95, watch);
  bool first = true;
  watch.Report = [&](const LandWatch& now, LandSign) {
    if (!first) return;
    EXPECT_FALSE(now.ConFactTxb);
    EXPECT_FALSE(now.SecantTxb[1]);
    first = false;
  };
  LandExactUCL(0.5, 9, 1, 0, 90, watch);
  EXPECT_FALSE(first);
}

TEST(LandExactUCL, WithoutSpreadIsAFault) {
  EXPECT_THROW(LandExactUCL(0.5, 9, 0, 0, 95), RunTimeError);
}

}  // namespace
