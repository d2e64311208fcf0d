#include "ucl/land_probability.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using UCLBAS::LandIntegrand;
using UCLBAS::LandProbability;
using UCLBAS::LandSimpson;

double Simpson(double a, double b, double nu, double Aq, double Yq, double Zq) {
  double result = 12345;
  LandSimpson(a, b, nu, Aq, Yq, Zq, result);
  return result;
}

double Called(const support::Row& row) {
  const std::string& name = row.Text("routine");
  const auto a = [&](const char* column) { return row.Number(column); };
  if (name == "SignNonZero") return UCLBAS::SignNonZero(a("a1"));
  if (name == "SmallerOf") return UCLBAS::SmallerOf(a("a1"), a("a2"));
  if (name == "LandIntegrand") return LandIntegrand(a("a1"), a("a2"), a("a3"), a("a4"), a("a5"));
  if (name == "LandSimpson") return Simpson(a("a1"), a("a2"), a("a3"), a("a4"), a("a5"), a("a6"));
  return LandProbability(a("a1"), a("a2"), a("a3"));
}

bool IsHole(const support::Row& row) { return row.Text("note").starts_with("hole"); }

TEST(LandParts, FollowTheMethodsOwnSteps) {
  int rows = 0;
  for (const support::Row& row : support::ReadTable("land_parts.csv")) {
    const std::string& name = row.Text("routine");
    const bool ours = name.starts_with("Land") || name == "SignNonZero" || name == "SmallerOf";
    if (!ours || name == "LandRootSearch" || IsHole(row)) continue;
    ++rows;
    table::Expect(row, {"routine", "a1", "a2", "a3", "a4", "a5", "a6"}, "value", 1e-13,
                  [&] { return Called(row); });
  }
  EXPECT_GT(rows, 40);
}

TEST(LandIntegrand, IsOneAtItsPeakAndLessBesideIt) {
  const double Yq = -2.5, nu = 9;
  const double Zq = Yq / std::sqrt(nu + Yq * Yq);
  // The slope that puts the peak there.
  const double Aq = Yq / (1 - Zq * Zq) / std::sqrt(nu + Yq * Yq);
  EXPECT_EQ(LandIntegrand(nu, Aq, Yq, Zq, Yq), 1);
  EXPECT_LT(LandIntegrand(nu, Aq, Yq, Zq, Yq - 0.1), 1);
  EXPECT_LT(LandIntegrand(nu, Aq, Yq, Zq, Yq + 0.1), 1);
}

TEST(LandIntegrand, IsExactly0AtTheCutAndNotAboveIt) {
  // Without slope the logarithm is -(nu + 1) / 2 ln(1 + x squared / nu).
  const double nu = 99;
  const double cut = std::sqrt(nu * std::expm1(2 * 743.0 / (nu + 1)));
  EXPECT_EQ(LandIntegrand(nu, 0, 0, 0, cut * 1.0001), 0);
  EXPECT_GT(LandIntegrand(nu, 0, 0, 0, cut * 0.9999), 0);
}

TEST(LandIntegrand, BeyondADoubleIsAnOverflow) {
  EXPECT_THROW(LandIntegrand(9, -1, -2, -0.5, 1e200), RunTimeError);
}

TEST(LandSimpson, BackwardsHasTheOppositeSign) {
  const double there = Simpson(-3, 8, 9, -0.9, -2.18, -0.589);
  const double back = Simpson(8, -3, 9, -0.9, -2.18, -0.589);
  EXPECT_GT(there, 0);
  EXPECT_NEAR(back, -there, 1e-10);
  EXPECT_EQ(Simpson(2, 2, 9, -0.9, -2.18, -0.589), 0);
}

TEST(LandSimpson, MoreThan100LevelsIsASubscriptFault) {
  try {
    Simpson(-1e100, 1e100, 1, 0, 0, 0);
    FAIL() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), FaultKind::Subscript);
  }
}

TEST(LandProbability, TakesTheKnownValuesForTenSamples) {
  EXPECT_NEAR(LandProbability(9, 1, 0), 0.512, 0.0005);
  EXPECT_NEAR(LandProbability(9, 1, 1), 0.0538, 0.00005);
  EXPECT_NEAR(LandProbability(9, 1, -1), 0.999, 0.0005);
}

// Where |x0| is small against the peak's distance, a range of ten times |x0| would hold nothing.
TEST(LandProbability, HoldsWhereThePointIsNearZeroAndThePeakFarOff) {
  int rows = 0;
  for (const support::Row& row : support::ReadTable("land_parts.csv")) {
    if (!IsHole(row)) continue;
    ++rows;
    EXPECT_NEAR(Called(row), row.Number("true"), 1e-10) << row.Where();
  }
  EXPECT_EQ(rows, 1);
}

TEST(LandProbability, FallsFrom1To0WithoutTurning) {
  for (const double nu : {1.0, 2.0, 5.0, 6.0, 9.0, 99.0, 300.0, 1000.0, 1999.0}) {
    for (const double s : {0.01, 0.5, 1.0, 2.4, 6.9}) {
      double last = 1;
      for (int k = -20; k <= 20; ++k) {
        const double now = LandProbability(nu, s, k * 0.4 * s * (1 + s) / std::sqrt(nu));
        EXPECT_LE(now, last + 1e-9) << "nu " << nu << " s " << s << " k " << k;
        EXPECT_GE(now, -1e-9);
        EXPECT_LE(now, 1 + 1e-9);
        last = now;
      }
    }
  }
}

TEST(LandProbability, WithoutSpreadIsADivisionByZero) {
  try {
    LandProbability(9, 0, 1);
    FAIL() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), FaultKind::DivisionByZero);
  }
}

}  // namespace
