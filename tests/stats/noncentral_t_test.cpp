#include "stats/noncentral_t.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "base/fault.h"
#include "stats/normal.h"
#include "stats/student.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using StatFWinBAS::kTwoPi;
using StatFWinBAS::NoncentralTUpper;
using StatFWinBAS::NormalUpper;
using StatFWinBAS::NormalUpperInverse;
using StatFWinBAS::OwenT;
using StatFWinBAS::StudentUpper;

class TailFunctions : public table::Delivered {};

using NoncentralArea = TailFunctions;
using OwensFunction = TailFunctions;

constexpr double kFs[] = {1, 2, 3, 4, 5, 6, 9, 20, 33, 100, 199, 200, 201, 202, 600, 1999};
constexpr double kPs[] = {0.001, 0.01, 0.05, 0.2, 0.45, 0.55, 0.9, 0.99};

TEST_F(NoncentralArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("noncentral_t_upper.csv")) {
    const double f = row.Number("f"), K = row.Number("K");
    double p = row.Number("p");
    table::Expect(row, {"f", "p", "K"}, "value", 1e-13,
                  [&] { return StatFWinBAS::NoncentralTUpperInPlace(f, p, K); });
    EXPECT_EQ(p, row.Number("p_after")) << row.Where();
  }
}

// The other tail, and K without the root of the sample size: it stays so.
TEST_F(NoncentralArea, OfAProportionOfAHalfIsTheUpperTailOfStudentsTAtK) {
  for (const double f : kFs)
    for (const double K : {-1.3, 0.0, 0.4, 2.0})
      EXPECT_EQ(NoncentralTUpper(f, 0.5, K), StudentUpper(f, K)) << f << " " << K;
  EXPECT_NEAR(NoncentralTUpper(9.0, std::nextafter(0.5, 1.0), 0.5),
              1 - StudentUpper(9.0, 0.5 * std::sqrt(10.0)), 1e-12);
}

TEST_F(NoncentralArea, OfNoProportionIs0AndOfTheWholeIs1) {
  for (const double p : {-0.1, 0.0, 1E-16}) EXPECT_EQ(NoncentralTUpper(9.0, p, 1.5), 0) << p;
  for (const double p : {1.0, 1.5}) EXPECT_EQ(NoncentralTUpper(9.0, p, -1.5), 1) << p;
}

// A factor at which A is 1 to the last bit, so that its moments are left out.
double FactorOfAOne(double f) {
  for (double K = std::sqrt(f / (f + 1)) - 4e-16; K < 1; K = std::nextafter(K, 2.0))
    if (std::abs(std::sqrt(1 + 1 / f) * K - 1) <= 1E-16) return K;
  return 0;
}

TEST_F(NoncentralArea, WhereAIsExactly1LeavesTheSumOut) {
  for (const double f : {3.0, 4.0, 9.0, 10.0, 200.0}) {
    const double K = FactorOfAOne(f);
    ASSERT_GT(K, 0) << f;
    const double delta = NormalUpperInverse(0.2) * std::sqrt(f + 1);
    const double DRB = std::sqrt(0.5) * delta;
    const bool odd = std::fmod(f, 2) == 1;
    const double bare = odd ? NormalUpper(DRB) + 2 * OwenT(DRB, 1.0) : NormalUpper(delta);
    EXPECT_NEAR(NoncentralTUpper(f, 0.2, K), bare, 1e-16) << f;
    EXPECT_GT(NoncentralTUpper(f, 0.2, K * (1 + 1e-12)), bare + 0.1) << f;
  }
}

TEST_F(NoncentralArea, With200DegreesOfFreedomIsASeriesAndWith201OneNormalTail) {
  double f = 200, p = 0.05, K = 1.9;
  StatFWinBAS::NoncentralTUpperInPlace(f, p, K);
  EXPECT_NE(p, 0.05);  // what the series leaves of it
  f = 201;
  p = 0.05;
  const double t = std::sqrt(202.0) * K;
  const double delta = NormalUpperInverse(0.05) * std::sqrt(202.0);
  const double h = 1 + t * t / 2 / f;
  EXPECT_EQ(StatFWinBAS::NoncentralTUpperInPlace(f, p, K),
            NormalUpper((delta - t * (1 - 0.25 / f)) / std::sqrt(h)));
  EXPECT_EQ(p, 0.05);
}

TEST_F(NoncentralArea, With1DegreeOfFreedomHasNoRecurrence) {
  for (const double K : {-1.0, 0.3, 0.9, 2.0}) {
    const double A = std::sqrt(2.0) * K;
    const double DRB = NormalUpperInverse(0.1) * std::sqrt(2.0) / std::sqrt(A * A + 1);
    const double bare = NormalUpper(DRB) + 2 * OwenT(DRB, A);
    double p = 0.1;
    EXPECT_NEAR(StatFWinBAS::NoncentralTUpperInPlace(1, p, K), bare, 1e-15) << K;
    EXPECT_EQ(p, 0.1) << K;
  }
}

TEST_F(NoncentralArea, With2And3DegreesOfFreedomHasOneMoment) {
  for (const double K : {-1.0, 0.3, 0.7, 2.0}) {
    for (const double f : {2.0, 3.0}) {
      const double A = std::sqrt(1 + 1 / f) * K;
      const double B = 1 / (A * A + 1);
      const double delta = NormalUpperInverse(0.1) * std::sqrt(f + 1);
      const double DRB = std::sqrt(B) * delta;
      const double M2 =
          std::sqrt(B) * A * std::exp(-DRB * DRB / 2) / std::sqrt(kTwoPi) * NormalUpper(-A * DRB);
      const double M1 = A * B * (std::exp(-delta * delta / 2) / kTwoPi + M2 * delta);
      const double truth = f == 2 ? NormalUpper(delta) + M2 * std::sqrt(kTwoPi)
                                  : NormalUpper(DRB) + 2 * M1 + 2 * OwenT(DRB, A);
      EXPECT_NEAR(NoncentralTUpper(f, 0.1, K), truth, 1e-15) << f << " " << K;
    }
  }
}

TEST_F(NoncentralArea, StaysWithin0And1AndNeverFallsWithTheFactor) {
  for (const double f : kFs) {
    for (const double p : kPs) {
      double before = 0;
      for (int k = -400; k <= 600; k += 4) {
        const double area = NoncentralTUpper(f, p, k / 100.0);
        EXPECT_TRUE(0 <= area && area <= 1) << f << " " << p << " " << k / 100.0 << ": " << area;
        EXPECT_GE(area, before - 2e-11) << f << " " << p << " " << k / 100.0;
        before = area;
      }
      EXPECT_GT(before, f <= 2 ? 0.6 : 0.8) << f << " " << p;
    }
  }
}

TEST_F(NoncentralArea, NeverFallsWithTheProportion) {
  for (const double f : kFs) {
    for (const double K : {-1.0, 0.0, 0.5, 1.0, 1.645, 3.0}) {
      double before = 0;
      for (int k = 1; k < 1000; k += 2) {
        if (k == 500) continue;
        const double area = NoncentralTUpper(f, k / 1000.0, K);
        EXPECT_GE(area, before - 9e-7) << f << " " << k / 1000.0 << " " << K;
        before = area;
      }
    }
  }
}

// The mirror image: the chance to lie below t with noncentrality delta is that to lie above -t with
// -delta.
TEST_F(NoncentralArea, OfTheMirrorImageIsTheRestOf1) {
  for (const double f : kFs) {
    for (const double p : kPs) {
      for (const double K : {-2.0, -0.3, 0.0, 0.7, 1.5, 4.0}) {
        const double sum = NoncentralTUpper(f, p, K) + NoncentralTUpper(f, 1 - p, -K);
        EXPECT_NEAR(sum, 1, 1.7e-6) << f << " " << p << " " << K;
      }
    }
  }
}

TEST_F(NoncentralArea, OfNoFactorIsTheNormalTailOfTheNoncentrality) {
  for (const double f : kFs)
    for (const double p : kPs)
      EXPECT_NEAR(NoncentralTUpper(f, p, 0.0),
                  NormalUpper(NormalUpperInverse(p) * std::sqrt(f + 1)), 1e-14)
          << f << " " << p;
}

// What the one normal tail costs at the border.
TEST_F(NoncentralArea, From200To201DegreesOfFreedomJumpsByLessThan27TenThousandths) {
  double largest = 0;
  for (const double p : kPs) {
    for (int k = -400; k <= 600; ++k) {
      const double K = k / 100.0;
      const double jump = std::abs(NoncentralTUpper(200.0, p, K) - NoncentralTUpper(201.0, p, K));
      largest = std::max(largest, jump);
    }
  }
  EXPECT_LT(largest, 2.7e-3);
  EXPECT_GT(largest, 1e-3);
}

// From a noncentrality of 37 on one exponential counts as 0.
TEST_F(NoncentralArea, ThroughANoncentralityOf37GoesOn) {
  for (const double f : {99.0, 100.0, 199.0, 200.0}) {
    for (const double side : {1.0, -1.0}) {
      const double inside = NormalUpper(side * 37 / std::sqrt(f + 1) * (1 - 1e-10));
      const double outside = NormalUpper(side * 37 / std::sqrt(f + 1) * (1 + 1e-10));
      ASSERT_NE(inside, outside);
      for (int k = -500; k <= 500; ++k) {
        const double K = k / 100.0;
        EXPECT_NEAR(NoncentralTUpper(f, inside, K), NoncentralTUpper(f, outside, K), 1e-8)
            << f << " " << K;
      }
    }
  }
}

TEST_F(NoncentralArea, WithoutDegreesOfFreedomOrOfNoNumberIsAFault) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(NoncentralTUpper(0.0, 0.1, 1.0), RunTimeError);
  EXPECT_THROW(NoncentralTUpper(5.0, none, 1.0), RunTimeError);
  EXPECT_THROW(NoncentralTUpper(5.0, 0.1, none), RunTimeError);
  EXPECT_THROW(NoncentralTUpper(500.0, 0.1, none), RunTimeError);
  EXPECT_THROW(NoncentralTUpper(5.0, 0.1, 1e200), RunTimeError);
}

TEST_F(NoncentralArea, HasNoFaultInTheWholeDomain) {
  std::mt19937_64 random(26710);
  std::uniform_int_distribution<int> freedom(1, 260);
  std::uniform_real_distribution<double> tens(-15.9, 0);
  std::uniform_real_distribution<double> factor(-100, 100);
  for (int n = 0; n < 20000; ++n) {
    const double f = freedom(random);
    const double share = std::pow(10, tens(random));
    const double p = n % 2 == 0 ? share : 1 - share;
    const double K = n % 5 == 0 ? factor(random) * 1e6 : factor(random);
    EXPECT_NO_THROW({
      const double area = NoncentralTUpper(f, p, K);
      EXPECT_TRUE(0 <= area && area <= 1) << f << " " << p << " " << K << ": " << area;
    }) << f
       << " " << p << " " << K;
  }
}

TEST_F(OwensFunction, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("owen_t.csv")) {
    double h = row.Number("h"), a = row.Number("a");
    table::Expect(row, {"h", "a"}, "T", 1e-13, [&] { return StatFWinBAS::OwenTInPlace(h, a); });
    EXPECT_EQ(h, row.Number("h_after")) << row.Where();
    EXPECT_EQ(a, row.Number("a_after")) << row.Where();
  }
}

TEST_F(OwensFunction, AtZeroAndOneIsAnEighth) { EXPECT_EQ(OwenT(0.0, 1.0), 0.125); }

TEST_F(OwensFunction, WithoutAnAngleIs0) {
  for (const double h : {-3.0, 0.0, 0.5, 2.5, 38.0}) {
    EXPECT_EQ(OwenT(h, 0.0), 0) << h;
    EXPECT_EQ(OwenT(h, 4E-08), 0) << h;
  }
  EXPECT_GT(OwenT(0.5, 4.1E-08), 0);
}

TEST_F(OwensFunction, IsOddInTheAngleAndEvenInTheDistance) {
  for (const double h : {0.0, 0.1, 1.0, 3.9, 6.0, 40.0}) {
    for (const double a : {1e-9, 0.1, 0.7, 1.0, 1.3, 25.0}) {
      EXPECT_EQ(OwenT(h, -a), -OwenT(h, a)) << h << " " << a;
      EXPECT_EQ(OwenT(-h, a), OwenT(h, a)) << h << " " << a;
    }
  }
}

// Nothing was swapped there, yet the sign turns.
TEST_F(OwensFunction, AtZeroWithAnAngleAbove1HasItsSignTurned) {
  EXPECT_NEAR(OwenT(0.0, 2.0), -std::atan(2.0) / kTwoPi, 1e-15);
  EXPECT_NEAR(OwenT(0.0, 0.5), std::atan(0.5) / kTwoPi, 1e-15);
}

TEST_F(OwensFunction, BeyondAProductOf4IsHalfTheNormalTailForEveryAngle) {
  for (const double a : {0.5, 0.9, 1.5, 40.0}) {
    const double h = 4 / a * (1 + 1e-12);
    double distance = h, angle = a;
    EXPECT_EQ(StatFWinBAS::OwenTInPlace(distance, angle), NormalUpper(h) / 2) << a;
    EXPECT_EQ(distance, h);
    EXPECT_EQ(angle, a);
    EXPECT_EQ(OwenT(h, -a), -NormalUpper(h) / 2) << a;
  }
  EXPECT_NE(OwenT(8.0, 0.5), NormalUpper(8.0) / 2);  // exactly 4 is not beyond
}

TEST_F(OwensFunction, AtTheShortCutJumpsByLessThan42HundredMillionths) {
  double largest = 0;
  for (int k = -300; k <= 500; ++k) {
    const double a = std::pow(10, k / 100.0);
    const double below = 4 / a * (1 - 1e-13), above = 4 / a * (1 + 1e-13);
    if (a != 1) largest = std::max(largest, std::abs(OwenT(below, a) - OwenT(above, a)));
  }
  EXPECT_LT(largest, 4.2e-7);
  EXPECT_GT(largest, 4e-7);
}

// Beyond a distance of 37 the exponential counts as 0, and so does the area.
TEST_F(OwensFunction, ThroughADistanceOf37GoesOn) {
  for (const double a : {1e-6, 0.001, 0.05, 0.1, 0.108}) {
    EXPECT_NEAR(OwenT(37.0, a), 0, 1e-10) << a;
    EXPECT_NEAR(OwenT(std::nextafter(37.0, 38.0), a), 0, 1e-10) << a;
  }
}

TEST_F(OwensFunction, GoesOnThroughAnAngleOf1) {
  for (int k = 1; k < 399; ++k) {
    const double h = k / 100.0;
    EXPECT_NEAR(OwenT(h, 1 - 1e-12), OwenT(h, 1.0), 4e-12) << h;
    EXPECT_NEAR(OwenT(h, 1 + 1e-12), OwenT(h, 1.0), 4e-12) << h;
  }
}

TEST_F(OwensFunction, StaysWithin0AndAQuarterAndGrowsWithTheAngle) {
  for (int i = 1; i <= 100; ++i) {
    const double h = i / 20.0;
    double before = 0;
    for (int k = -200; k <= 300; k += 5) {
      const double T = OwenT(h, std::pow(10, k / 100.0));
      EXPECT_TRUE(0 <= T && T <= 0.25) << h << " " << k << ": " << T;
      EXPECT_GE(T, before - 2e-11) << h << " " << k;
      before = T;
    }
  }
}

TEST_F(OwensFunction, OfNoNumberIsAFault) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(OwenT(none, 0.5), RunTimeError);
  EXPECT_THROW(OwenT(0.5, none), RunTimeError);
}

}  // namespace
