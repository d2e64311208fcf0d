#include "stats/normal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/fault.h"
#include "stats/coefficients.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using StatFWinBAS::NormalUpper;
using StatFWinBAS::NormalUpperHill;
using StatFWinBAS::NormalUpperInverse;

class NormalFunctions : public table::Delivered {};

using NormalArea = NormalFunctions;
using HillsArea = NormalFunctions;
using NormalDeviate = NormalFunctions;

TEST_F(NormalArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("normal_upper.csv"))
    table::Expect(row, {"x"}, "result", 1e-12, [&] { return NormalUpper(row.Number("x")); });
}

TEST_F(NormalArea, AtZeroAndAt1E15thIsExactlyAHalf) {
  EXPECT_EQ(NormalUpper(0.0), 0.5);
  EXPECT_EQ(NormalUpper(1E-15), 0.5);
  EXPECT_EQ(NormalUpper(-1E-15), 0.5);
  EXPECT_LT(NormalUpper(1.1E-15), 0.5);
}

// 5 still goes by the series, what lies beyond by the continued fraction.
TEST_F(NormalArea, AgreesOnBothSidesOf5) {
  EXPECT_NE(NormalUpper(5.0), NormalUpperHill(5.0));
  EXPECT_EQ(NormalUpper(5.0000001), NormalUpperHill(5.0000001));
  const double density = std::exp(-12.5) / std::sqrt(StatFWinBAS::kTwoPi);
  EXPECT_NEAR(NormalUpper(5.0) - NormalUpper(5.0000001), density * 1e-7, 1e-15);
  EXPECT_NEAR(NormalUpper(-5.0000001) - NormalUpper(-5.0), density * 1e-7, 1e-15);
}

TEST_F(NormalArea, EndsAt37) {
  EXPECT_GT(NormalUpper(37.0), 0);
  EXPECT_LT(NormalUpper(37.0), 1e-299);
  EXPECT_EQ(NormalUpper(37.0000001), 0);
  EXPECT_EQ(NormalUpper(-38.0), 1);
}

TEST_F(NormalArea, StaysWithin0And1AndBothTailsAddTo1) {
  for (int k = -4000; k <= 4000; ++k) {
    const double x = k / 100.0;
    const double area = NormalUpper(x);
    EXPECT_TRUE(0 <= area && area <= 1) << x << ": " << area;
    EXPECT_NEAR(area + NormalUpper(-x), 1, 2.3e-16) << x;
  }
}

TEST_F(NormalArea, NeverRisesWithItsArgument) {
  double before = 1;
  for (int k = -4000; k <= 4000; ++k) {
    const double area = NormalUpper(k / 100.0);
    EXPECT_LE(area, before) << k / 100.0;
    before = area;
  }
}

TEST_F(NormalArea, ANumberThatIsNoneIsAnInvalidOperation) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(NormalUpper(none), RunTimeError);
  EXPECT_THROW(NormalUpperHill(none), RunTimeError);
  EXPECT_THROW(NormalUpperInverse(none), RunTimeError);
}

TEST_F(HillsArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("normal_upper_hill.csv")) {
    const double x = row.Number("x");
    table::Expect(row, {"x"}, "result", 1e-12, [&] { return NormalUpperHill(x); });
  }
}

// The two forms differ by some 1E-10 there, which tells which of them answered.
TEST_F(HillsArea, At1Point28GoesByTheCentreForm) {
  const double centre = NormalUpperHill(1.28);
  const double tail = NormalUpperHill(std::nextafter(1.28, 2.0));
  const double series = NormalUpper(1.28);
  EXPECT_NEAR(centre, series, 1e-9);
  EXPECT_NEAR(tail, series, 1e-9);
  EXPECT_GT(std::abs(centre - tail), 1e-13);
  const auto& H = StatFWinBAS::Coefs().HillCoefficients;
  const double y = 1.28 * 1.28 / 2;
  const double D = H[17] / (H[15] / (y + H[13]) + y + H[14]) + y + H[16];
  EXPECT_NEAR(centre, 0.5 - 1.28 * (y * H[19] / D + H[18]), 1e-15);
}

TEST_F(HillsArea, OfMinus2IsTheRestOf1) {
  EXPECT_EQ(NormalUpperHill(-2.0), 1 - NormalUpperHill(2.0));
}

TEST_F(HillsArea, EndsAt37AndHasItsHalfAroundZero) {
  EXPECT_GT(NormalUpperHill(37.0), 0);
  EXPECT_EQ(NormalUpperHill(std::nextafter(37.0, 38.0)), 0);
  EXPECT_EQ(NormalUpperHill(-37.5), 1);
  EXPECT_EQ(NormalUpperHill(1E-16), 0.5);
  EXPECT_EQ(NormalUpperHill(-1E-16), 0.5);
}

TEST_F(HillsArea, StaysWithin0And1AndBothTailsAddTo1) {
  for (int k = 0; k <= 4000; ++k) {
    const double x = k / 100.0;
    const double area = NormalUpperHill(x);
    EXPECT_TRUE(0 <= area && area <= 1) << x << ": " << area;
    EXPECT_NEAR(area + NormalUpperHill(-x), 1, 2.3e-16) << x;
  }
}

TEST_F(NormalDeviate, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("normal_upper_inverse.csv")) {
    double p = row.Number("p");
    table::Expect(row, {"p"}, "result", 1e-12,
                  [&] { return StatFWinBAS::NormalUpperInverseInPlace(p); });
    EXPECT_EQ(p, row.Number("p_after")) << row.Where();
  }
}

TEST_F(NormalDeviate, Of1E301stIs37AndOfAHalfIs0) {
  EXPECT_EQ(NormalUpperInverse(1E-301), 37);
  EXPECT_EQ(NormalUpperInverse(1E-300), 37);
  EXPECT_LT(NormalUpperInverse(1.1E-300), 37);
  EXPECT_EQ(NormalUpperInverse(0.5), 0);
}

// A lower-tail routine would turn every sign of a verdict.
TEST_F(NormalDeviate, OfASmallAreaIsPositive) {
  EXPECT_NEAR(NormalUpperInverse(0.05), 1.6448536269514722, 1e-12);
  EXPECT_NEAR(NormalUpperInverse(0.95), -NormalUpperInverse(0.05), 1e-14);
}

TEST_F(NormalDeviate, OutsideZeroToOneThereIsNoErrorButAFloorAndACeiling) {
  for (const double p : {1.0, 1.5, 1e300, 0.9999999999999999})
    EXPECT_EQ(NormalUpperInverse(p), -8.22208221613044) << p;
  for (const double p : {0.0, -1.0, -1e300}) EXPECT_EQ(NormalUpperInverse(p), 37) << p;
}

TEST_F(NormalDeviate, AnAreaAboveAHalfComesBackAs1Minus1MinusIt) {
  for (double p : {0.51, 0.6, 0.92, 0.95, 0.999}) {
    const double before = p;
    StatFWinBAS::NormalUpperInverseInPlace(p);
    EXPECT_EQ(p, 1 - (1 - before));
  }
}

TEST_F(NormalDeviate, NeverRisesWithTheArea) {
  double before = 38;
  for (int k = 1; k < 20000; ++k) {
    const double z = NormalUpperInverse(k / 20000.0);
    EXPECT_LT(z, before) << k / 20000.0;
    before = z;
  }
}

struct Stretch {
  double from;
  double to;
  double kept;  // the largest difference last seen, with a margin
};

// From the deviate to its area and back. Between 2 and 5 it is the area that has lost digits, below
// -4 the sum with 1, beyond 8 the single correction step of the inverse.
TEST_F(NormalDeviate, ComesBackFromItsArea) {
  const Stretch stretches[] = {{-6, -4, 1.4e-8}, {-4, -2, 5e-12},   {-2, 2, 1.1e-14},
                               {2, 4, 5.5e-12},  {4, 5.001, 5e-10}, {5.001, 8, 2e-10},
                               {8, 10, 7e-10},   {10, 15, 7e-7},    {15, 20, 5e-5},
                               {20, 30, 0.012},  {30, 37, 0.75}};
  for (const Stretch& stretch : stretches)
    for (double z = stretch.from; z < stretch.to; z += 0.001)
      EXPECT_NEAR(NormalUpperInverse(NormalUpper(z)), z, stretch.kept) << z;
}

TEST_F(NormalDeviate, LeadsBackToItsArea) {
  for (int k = 1; k < 1000; ++k)
    EXPECT_NEAR(NormalUpper(NormalUpperInverse(k / 1000.0)), k / 1000.0, 6e-16) << k / 1000.0;
}

}  // namespace
