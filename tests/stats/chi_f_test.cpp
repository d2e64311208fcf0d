#include "stats/chi_f.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/fault.h"
#include "stats/normal.h"
#include "stats/student.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using StatFWinBAS::ChiUpper;
using StatFWinBAS::FUpper;
using StatFWinBAS::NormalUpper;

class VarianceTails : public table::Delivered {};

using ChiSquareArea = VarianceTails;
using FArea = VarianceTails;

double WilsonHilferty(double df, double chi) {
  const double c = 2 / (9 * df);
  return NormalUpper((std::pow(chi * chi / df, 1.0 / 3) - 1 + c) / std::sqrt(c));
}

double Paulson(double d1, double d2, double F) {
  const double r = std::pow(F, 1.0 / 3), a = 2 / (9 * d1), b = 2 / (9 * d2);
  return NormalUpper((r * (1 - b) - 1 + a) / std::sqrt(a + r * r * b));
}

TEST_F(ChiSquareArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("chi_upper.csv"))
    table::Expect(row, {"df", "chi"}, "value", 1e-13,
                  [&] { return ChiUpper(row.Number("df"), row.Number("chi")); });
}

TEST_F(ChiSquareArea, With2DegreesOfFreedomIsAnExponential) {
  for (const double chi : {0.1, 1.0, 2.7, 5.0, 20.0, 24.0})
    EXPECT_EQ(ChiUpper(2.0, chi), std::exp(-chi * chi / 2)) << chi;
}

TEST_F(ChiSquareArea, With1DegreeOfFreedomIsBothNormalTails) {
  for (const double chi : {0.1, 1.0, 2.7, 5.0, 20.0})
    EXPECT_EQ(ChiUpper(1.0, chi), 2 * NormalUpper(chi)) << chi;
}

TEST_F(ChiSquareArea, Above200DegreesOfFreedomOrAChiOf24GoesByTheCubeRoot) {
  for (const double chi : {12.0, 14.0, 16.0})
    EXPECT_EQ(ChiUpper(201.0, chi), WilsonHilferty(201, chi)) << chi;
  EXPECT_EQ(ChiUpper(5.0, 25.0), WilsonHilferty(5, 25));
  EXPECT_EQ(ChiUpper(5.0, std::nextafter(24.0, 25.0)),
            WilsonHilferty(5, std::nextafter(24.0, 25.0)));
  EXPECT_NE(ChiUpper(5.0, 24.0), WilsonHilferty(5, 24));
  EXPECT_NE(ChiUpper(200.0, 14.0), WilsonHilferty(200, 14));
}

TEST_F(ChiSquareArea, AtTheOriginIs0AndNot1) {
  EXPECT_EQ(ChiUpper(7.0, 0.0), 0);
  EXPECT_EQ(ChiUpper(7.0, 9.9E-17), 0);
  EXPECT_EQ(ChiUpper(7.0, -3.0), 0);
  EXPECT_EQ(ChiUpper(7.0, 1E-16), 1);
}

TEST_F(ChiSquareArea, StaysWithin0And1AndNeverRisesWithChi) {
  for (int df = 1; df <= 2000; df += df < 210 ? 1 : 97) {
    double before = 1;
    for (int k = 1; k <= 500; ++k) {
      const double area = ChiUpper(static_cast<double>(df), k / 10.0);
      EXPECT_TRUE(0 <= area && area <= 1) << df << " " << k / 10.0 << ": " << area;
      EXPECT_LE(area, before + 2e-15) << df << " " << k / 10.0;
      before = area;
    }
  }
}

// Through odd and even, and from the sums to the cube root, which lie 5E-5 apart.
TEST_F(ChiSquareArea, GrowsWithTheDegreesOfFreedom) {
  for (const double chi : {0.5, 2.0, 10.0, 14.1, 16.0, 23.9}) {
    double before = 0;
    for (int df = 1; df <= 300; ++df) {
      const double area = ChiUpper(static_cast<double>(df), chi);
      EXPECT_GE(area, before - 1e-15) << df << " " << chi;
      EXPECT_LE(area - before, df == 1 ? 1 : 0.5) << df << " " << chi;
      before = area;
    }
  }
}

// The cube root lies up to 4.9E-5 beside the sums.
TEST_F(ChiSquareArea, From200To201DegreesOfFreedomGoesOn) {
  for (int k = 100; k <= 190; ++k) {
    const double chi = k / 10.0;
    const double here = ChiUpper(201.0, chi) - ChiUpper(200.0, chi);
    const double before = ChiUpper(200.0, chi) - ChiUpper(199.0, chi);
    const double after = ChiUpper(202.0, chi) - ChiUpper(201.0, chi);
    EXPECT_NEAR(here, (before + after) / 2, 7e-5) << chi;
  }
}

// Beyond a chi of 24 the cube root takes over, where no area is above 1E-36.
TEST_F(ChiSquareArea, ThroughAChiOf24GoesOn) {
  for (int df = 1; df <= 200; ++df) {
    EXPECT_LT(ChiUpper(df + 0.0, 24.0), 1e-36) << df;
    EXPECT_LT(ChiUpper(df + 0.0, std::nextafter(24.0, 25.0)), 1e-36) << df;
  }
}

// Two degrees of freedom more add one term of Poisson's law.
TEST_F(ChiSquareArea, OfTwoDegreesOfFreedomMoreHasOneTermMore) {
  for (int df = 1; df <= 198; ++df) {
    for (const double chi : {0.5, 3.0, 9.0, 14.0}) {
      const double y = chi * chi / 2, half = df / 2.0;
      const double term = std::exp(half * std::log(y) - y - std::lgamma(half + 1));
      EXPECT_NEAR(ChiUpper(df + 2.0, chi) - ChiUpper(static_cast<double>(df), chi), term, 1e-14)
          << df << " " << chi;
    }
  }
}

TEST_F(VarianceTails, OfNoNumberAreFaults) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(ChiUpper(5.0, none), RunTimeError);
  EXPECT_THROW(ChiUpper(none, 2.0), RunTimeError);
  EXPECT_THROW(FUpper(5.0, 5.0, none), RunTimeError);
  EXPECT_THROW(FUpper(none, 5.0, 2.0), RunTimeError);
  EXPECT_THROW(FUpper(5.0, 0.0, 2.0), RunTimeError);
}

TEST_F(VarianceTails, LeaveTheirArgumentsAlone) {
  for (const double value : {0.3, 1.0, 7.0, 30.0}) {
    double first = 9, second = 14, argument = value;
    ChiUpper(first, argument);
    FUpper(first, second, argument);
    EXPECT_EQ(first, 9);
    EXPECT_EQ(second, 14);
    EXPECT_EQ(argument, value);
  }
}

TEST_F(FArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("f_upper.csv"))
    table::Expect(row, {"d1", "d2", "F"}, "value", 1e-13,
                  [&] { return FUpper(row.Number("d1"), row.Number("d2"), row.Number("F")); });
}

TEST_F(FArea, OfEqualDegreesOfFreedomAt1IsAHalf) {
  EXPECT_EQ(FUpper(5.0, 5.0, 1.0), 0.5);
  EXPECT_EQ(FUpper(300.0, 300.0, 1.0), 0.5);
  EXPECT_EQ(FUpper(5.0, 5.0, 1 + 9e-11), 0.5);
  EXPECT_LT(FUpper(5.0, 5.0, 1 + 2e-10), 0.5);
  EXPECT_NEAR(FUpper(1.0, 1.0, 1.0), 0.5, 1e-14);
}

TEST_F(FArea, OfOneAndOneDegreeOfFreedomHasNoSum) {
  for (const double F : {0.01, 0.5, 2.0, 40.0})
    EXPECT_NEAR(FUpper(1.0, 1.0, F), 1 - 2 * std::atan(std::sqrt(F)) / StatFWinBAS::kPi, 1e-16)
        << F;
}

TEST_F(FArea, OfNextToNothingIs1AndOfHugeRatiosIs0) {
  EXPECT_EQ(FUpper(2.0, 2.0, 1E-32), 1);
  EXPECT_EQ(FUpper(2.0, 2.0, 0.0), 1);
  EXPECT_EQ(FUpper(2.0, 2.0, -4.0), 1);
  EXPECT_EQ(FUpper(2.0, 2.0, 1E+32), 0);
  EXPECT_EQ(FUpper(2.0, 2.0, 1E+31), 1 / (1 + 1E+31));
  EXPECT_EQ(FUpper(2.0, 2.0, std::nextafter(1E+31, 1E+32)), 0);
  EXPECT_LT(FUpper(1.0, 1.0, 1E-31), 1);
  EXPECT_EQ(FUpper(1.0, 1.0, std::nextafter(1E-31, 0.0)), 1);
}

TEST_F(FArea, FromAProductOf32768DegreesOfFreedomOnGoesByTheCubeRoot) {
  EXPECT_EQ(FUpper(2.0, 16384.0, 1.3), Paulson(2, 16384, 1.3));
  EXPECT_EQ(FUpper(1.0, 32768.0, 1.3), Paulson(1, 32768, 1.3));
  EXPECT_NE(FUpper(1.0, 32767.0, 1.3), Paulson(1, 32767, 1.3));
  EXPECT_NEAR(FUpper(1.0, 32767.0, 1.3), FUpper(1.0, 32768.0, 1.3), 8e-3);
  EXPECT_NEAR(FUpper(180.0, 182.0, 1.1), FUpper(181.0, 182.0, 1.1), 5e-4);
}

TEST_F(FArea, StaysWithin0And1AndNeverRisesWithTheRatio) {
  for (int d1 = 1; d1 <= 250; d1 += d1 < 12 ? 1 : 31) {
    for (int d2 = 1; d2 <= 250; d2 += d2 < 12 ? 1 : 31) {
      double before = 1;
      for (int k = -60; k <= 60; ++k) {
        const double F = std::exp(k / 20.0);
        const double area = FUpper(static_cast<double>(d1), static_cast<double>(d2), F);
        EXPECT_TRUE(0 <= area && area <= 1) << d1 << " " << d2 << " " << F << ": " << area;
        EXPECT_LE(area, before + 2e-14) << d1 << " " << d2 << " " << F;
        before = area;
      }
    }
  }
}

// Both samples from 2 to 2000, by the sums and by the cube root.
TEST_F(FArea, OfEverySampleSizeStaysWithin0And1FallsAndHasItsRestOnTheOtherSide) {
  const double freedoms[] = {1,   2,   3,   16,   17,   31,   32,   99,
                             180, 181, 182, 1023, 1024, 1057, 1998, 1999};
  for (const double d1 : freedoms) {
    for (const double d2 : freedoms) {
      double before = 1;
      for (int k = -80; k <= 80; ++k) {
        const double F = std::exp(k / 16.0);
        const double area = FUpper(d1, d2, F);
        EXPECT_TRUE(0 <= area && area <= 1) << d1 << " " << d2 << " " << F << ": " << area;
        EXPECT_LE(area, before + 5e-13) << d1 << " " << d2 << " " << F;
        EXPECT_NEAR(area + FUpper(d2, d1, 1 / F), 1, 3e-12) << d1 << " " << d2 << " " << F;
        before = area;
      }
    }
  }
}

// The cube root lies up to 7.2E-4 beside the sums where both numbers are below 2000.
TEST_F(FArea, FromTheSumsToTheCubeRootGoesOn) {
  for (int d1 = 17; d1 < 2000; d1 += d1 < 200 ? 1 : 37) {
    const double first = d1;
    const double last = std::ceil(32768 / first) - 1;
    for (int k = -40; k <= 40; ++k) {
      const double F = std::exp(k / 20.0);
      const double before = FUpper(first, last, F) - FUpper(first, last - 1, F);
      const double across = FUpper(first, last + 1, F) - FUpper(first, last, F);
      const double after = FUpper(first, last + 2, F) - FUpper(first, last + 1, F);
      EXPECT_NEAR(across, (before + after) / 2, 7.5e-4) << first << " " << last << " " << F;
    }
  }
}

TEST_F(FArea, OfTheInverseRatioIsTheRestOf1) {
  for (int d1 = 1; d1 <= 60; ++d1)
    for (int d2 = 1; d2 <= 60; ++d2)
      for (const double F : {0.1, 0.5, 0.9, 1.3, 3.0, 10.0})
        EXPECT_NEAR(FUpper(static_cast<double>(d1), static_cast<double>(d2), F) +
                        FUpper(static_cast<double>(d2), static_cast<double>(d1), 1 / F),
                    1, 1e-14)
            << d1 << " " << d2 << " " << F;
}

TEST_F(FArea, With1DegreeOfFreedomIsBothTailsOfStudentsT) {
  for (int d2 = 1; d2 <= 300; ++d2) {
    const double df = d2;
    EXPECT_NEAR(FUpper(1.0, df, 2.25), 2 * StatFWinBAS::StudentUpper(df, 1.5), 1e-14) << df;
  }
}

TEST_F(FArea, OfManySecondDegreesOfFreedomNearsChiSquare) {
  for (int d1 = 1; d1 <= 8; ++d1)
    EXPECT_NEAR(FUpper(static_cast<double>(d1), 4000.0, 2.0),
                ChiUpper(d1 + 0.0, std::sqrt(2.0 * d1)), 4e-4)
        << d1;
}

}  // namespace
