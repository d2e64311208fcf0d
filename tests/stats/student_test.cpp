#include "stats/student.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "base/fault.h"
#include "stats/normal.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using StatFWinBAS::kPi;
using StatFWinBAS::NormalUpper;
using StatFWinBAS::StudentUpper;
using StatFWinBAS::StudentUpperInverse;
using StatFWinBAS::StudentUpperInverseSearch;
using StatFWinBAS::StudentUpperInverseSeries;

class StudentFunctions : public table::Delivered {};

using StudentArea = StudentFunctions;
using StudentDeviate = StudentFunctions;
using StudentExpansion = StudentFunctions;

constexpr double kDfs[] = {1,   2,   3,   4,    5,    6,    7,    8,     15,    40,
                           199, 200, 999, 1000, 1001, 1998, 1999, 29999, 30000, 30001};

TEST_F(StudentArea, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("student_upper.csv"))
    table::Expect(row, {"df", "t"}, "value", 1e-13,
                  [&] { return StudentUpper(row.Number("df"), row.Number("t")); });
}

TEST_F(StudentArea, Of1With1DegreeOfFreedomIsAQuarter) {
  EXPECT_NEAR(StudentUpper(1.0, 1.0), 0.25, 1e-15);
}

TEST_F(StudentArea, Of0IsAHalf) {
  for (const double df : kDfs) {
    EXPECT_EQ(StudentUpper(df, 0.0), 0.5) << df;
    EXPECT_EQ(StudentUpper(df, 9.9E-17), 0.5) << df;
    EXPECT_EQ(StudentUpper(df, -9.9E-17), 0.5) << df;
  }
}

TEST_F(StudentArea, Above30000DegreesOfFreedomIsThatOfANormalDeviate) {
  const double h = 1 + 1.645 * 1.645 / 2 / 30001;
  EXPECT_EQ(StudentUpper(30001.0, 1.645), NormalUpper(1.645 * (1 - 0.25 / 30001) / std::sqrt(h)));
}

TEST_F(StudentArea, UpTo30000DegreesOfFreedomIsThatOfTheSum) {
  const double g = 1 - 0.25 / 30000;
  const double normal = NormalUpper(1.645 * g / std::sqrt(1 + 1.645 * 1.645 / 2 / 30000));
  EXPECT_NE(StudentUpper(30000.0, 1.645), normal);
  EXPECT_NEAR(StudentUpper(30000.0, 1.645), normal, 1.2e-10);
}

// The sum and the normal tail lie up to 1E-10 apart, over the whole range.
TEST_F(StudentArea, From30000To30001DegreesOfFreedomGoesOn) {
  for (int k = -1500; k <= 1500; ++k) {
    const double t = k / 100.0;
    const double across = StudentUpper(30001.0, t) - StudentUpper(30000.0, t);
    const double after = StudentUpper(30002.0, t) - StudentUpper(30001.0, t);
    EXPECT_NEAR(across, after, 1e-10) << t;
  }
}

// A sum with one pass too many shows here first.
TEST_F(StudentArea, With3DegreesOfFreedomHasOneTerm) {
  for (const double t : {-4.0, -0.3, 0.7, 2.5, 11.0}) {
    const double a = t / std::sqrt(3.0);
    EXPECT_NEAR(StudentUpper(3.0, t), 0.5 - (std::atan(a) + a / (a * a + 1)) / kPi, 1e-16) << t;
  }
}

TEST_F(StudentArea, StaysWithin0And1AndBothTailsAddTo1) {
  for (const double df : kDfs) {
    for (int k = 0; k <= 400; k += df > 2000 ? 20 : 1) {
      const double t = k / 10.0;
      const double area = StudentUpper(df, t);
      EXPECT_TRUE(0 <= area && area <= 1) << df << " " << t << ": " << area;
      EXPECT_NEAR(area + StudentUpper(df, -t), 1, 2.3e-16) << df << " " << t;
    }
  }
}

TEST_F(StudentArea, NeverRisesWithT) {
  for (int df = 1; df <= 2000; df += 13) {
    double before = 1;
    for (int k = -300; k <= 300; k += 3) {
      const double area = StudentUpper(static_cast<double>(df), k / 10.0);
      EXPECT_LE(area, before + 4e-15) << df << " " << k / 10.0;
      before = area;
    }
  }
}

// More degrees of freedom have lighter tails, also from the sums to the normal formula, which lie
// 1E-10 apart.
TEST_F(StudentArea, InTheTailShrinksWithTheDegreesOfFreedom) {
  for (const double t : {0.5, 1.0, 2.0, 4.0}) {
    double before = 0.5;
    for (const double df : kDfs) {
      const double area = StudentUpper(df, t);
      EXPECT_LE(area, before + 1.3e-10) << df << " " << t;
      EXPECT_GT(area, NormalUpper(t) - 1e-15) << df << " " << t;
      before = area;
    }
  }
}

TEST_F(StudentArea, FromOddToEvenDegreesOfFreedomGoesOn) {
  for (int df = 2; df <= 2000; df += 7) {
    const double below = StudentUpper(df - 1.0, 1.5);
    const double here = StudentUpper(static_cast<double>(df), 1.5);
    const double above = StudentUpper(df + 1.0, 1.5);
    EXPECT_GT(below, here) << df;
    EXPECT_GT(here, above) << df;
    EXPECT_GT(below - here, here - above) << df;
  }
}

TEST_F(StudentArea, WithoutDegreesOfFreedomOrOfNoNumberIsAFault) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(StudentUpper(0.0, 1.0), RunTimeError);
  EXPECT_THROW(StudentUpper(-1.0, 1.0), RunTimeError);
  EXPECT_THROW(StudentUpper(5.0, none), RunTimeError);
  EXPECT_THROW(StudentUpper(40000.0, none), RunTimeError);
  EXPECT_THROW(StudentUpper(5.0, 1e200), RunTimeError);
}

TEST_F(StudentDeviate, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("student_upper_inverse.csv"))
    table::Expect(row, {"p", "df"}, "t", 1e-13,
                  [&] { return StudentUpperInverse(row.Number("p"), row.Number("df")); });
}

TEST_F(StudentDeviate, TakesTheStepsOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("student_upper_inverse.csv")) {
    double p = row.Number("p"), df = row.Number("df");
    EXPECT_EQ(StudentUpperInverseSearch(p, df).passes, row.Number("passes")) << row.Where();
  }
}

TEST_F(StudentDeviate, With1And2DegreesOfFreedomIsExact) {
  EXPECT_NEAR(StudentUpperInverse(0.05, 1.0), std::tan(0.45 * kPi), 1e-14);
  EXPECT_NEAR(StudentUpperInverse(0.05, 1.0), 6.3138, 5e-5);
  EXPECT_NEAR(StudentUpperInverse(0.05, 2.0), 2.92, 2e-5);
}

TEST_F(StudentDeviate, Of1000DegreesOfFreedomIsSearchedAndOf1001Expanded) {
  double p = 0.05, searched = 1000, expanded = 1001;
  EXPECT_GT(StudentUpperInverseSearch(p, searched).passes, 0);
  EXPECT_EQ(StudentUpperInverseSearch(p, expanded).passes, 0);
  EXPECT_EQ(StudentUpperInverse(p, expanded), StudentUpperInverseSeries(p, expanded));
  EXPECT_NEAR(StudentUpperInverse(p, searched), StudentUpperInverse(p, expanded), 2e-6);
}

// From the search to the expansion: the deviate nears the normal one by 1 / df, before and after.
TEST_F(StudentDeviate, From1000To1001DegreesOfFreedomGoesOn) {
  for (int k = 1; k < 1000; ++k) {
    const double p = k / 1000.0;
    const double before = StudentUpperInverse(p, 1000.0) - StudentUpperInverse(p, 998.0);
    const double across = StudentUpperInverse(p, 1001.0) - StudentUpperInverse(p, 1000.0);
    const double after = StudentUpperInverse(p, 1002.0) - StudentUpperInverse(p, 1001.0);
    EXPECT_NEAR(across, before * 998 / 2002, 8e-11) << p;
    EXPECT_NEAR(across, after * 1002 / 1000, 8e-11) << p;
  }
}

TEST_F(StudentDeviate, AboveAHalfIsTheNegativeOfThatBelow) {
  EXPECT_NEAR(StudentUpperInverse(0.95, 10.0), -StudentUpperInverse(0.05, 10.0), 1e-14);
  for (const double df : kDfs)
    EXPECT_NEAR(StudentUpperInverse(0.75, df), -StudentUpperInverse(0.25, df), 1e-15) << df;
}

TEST_F(StudentDeviate, OfAHalfIs0) {
  for (const double df : kDfs) EXPECT_EQ(StudentUpperInverse(0.5, df), 0) << df;
  EXPECT_EQ(StudentUpperInverse(std::nextafter(0.5, 0.0), 3.0), 0);
  EXPECT_LT(StudentUpperInverse(std::nextafter(0.5, 1.0), 3.0), 0);
}

TEST_F(StudentDeviate, OfDegreesOfFreedomBetweenThatAreNoneIs0) {
  for (const double df : {-4.0, 0.0, 0.5, 1.5, 2.5}) EXPECT_EQ(StudentUpperInverse(0.05, df), 0);
}

// The steps for odd df above 3 are longer than Newton's, and what the stopping rule then leaves
// stands in the answer: it must not be mended.
TEST_F(StudentDeviate, OfOddDegreesOfFreedomKeepsWhatItsStoppingRuleLeaves) {
  const double error5 = StudentUpperInverse(0.05, 5.0) / 2.0150483733330242 - 1;
  EXPECT_NEAR(error5, -4.57e-7, 1e-9);
  EXPECT_NEAR(StudentUpperInverse(0.05, 4.0), 2.1318467863266504, 1e-14);
}

TEST_F(StudentDeviate, EndsAtEveryAreaOfAThousandthWithin10Steps) {
  for (int whole = 1; whole <= 1001; whole += whole < 20 ? 1 : 17) {
    for (int k = 1; k < 1000; ++k) {
      double p = k / 1000.0, df = whole;
      EXPECT_LE(StudentUpperInverseSearch(p, df).passes, 10) << p << " " << df;
    }
  }
}

// There the rule asks for a change below one millionth of t squared, which is less than rounding.
TEST_F(StudentDeviate, CloseToAHalfEndsAfter100StepsOnTheRightDeviate) {
  int most = 0;
  for (const double off : {1e-15, 1e-12, 1e-9, 1e-8, 1e-7, 1e-6, 1e-5}) {
    for (int whole = 1; whole <= 1000; ++whole) {
      double p = 0.5 - off, df = whole;
      const auto found = StudentUpperInverseSearch(p, df);
      most = std::max(most, found.passes);
      EXPECT_LE(found.passes, 100) << p << " " << df;
      EXPECT_NEAR(StudentUpper(df, found.t), p, 2e-13) << p << " " << df;
    }
  }
  EXPECT_EQ(most, 100);
}

TEST_F(StudentDeviate, LeadsBackToItsArea) {
  std::mt19937_64 random(2607);
  std::uniform_real_distribution<double> area(0.001, 0.999);
  std::uniform_int_distribution<int> freedom(1, 2000);
  for (int n = 0; n < 20000; ++n) {
    const double p = area(random);
    const double df = n % 2 == 0 ? n % 60 / 2 + 1 : freedom(random);
    const double kept = df > 3 && df < 1000 && std::fmod(df, 2) == 1 ? 2e-7 : 2e-11;
    EXPECT_NEAR(StudentUpper(df, StudentUpperInverse(p, df)), p, kept) << p << " " << df;
  }
}

TEST_F(StudentDeviate, NeverRisesWithTheArea) {
  for (const double df : kDfs) {
    double before = std::numeric_limits<double>::infinity();
    for (int k = 1; k < 400; ++k) {
      const double t = StudentUpperInverse(k / 400.0, df);
      EXPECT_LT(t, before) << k / 400.0 << " " << df;
      before = t;
    }
  }
}

TEST_F(StudentDeviate, OfNearlyNoAreaWith2DegreesOfFreedomIsADivisionByZero) {
  try {
    StudentUpperInverse(1e-30, 2.0);
    FAIL() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), FaultKind::DivisionByZero);
  }
}

TEST_F(StudentDeviate, HasNoFaultFromAHundredThousandMillionthOn) {
  for (const double p : {1e-11, 1e-9, 1e-7, 1e-5, 1 - 1e-5, 1 - 1e-7, 1 - 1e-9, 1 - 1e-11})
    for (int whole = 1; whole <= 2000; whole += whole < 1001 ? 1 : 37)
      EXPECT_NO_THROW(StudentUpperInverse(p, static_cast<double>(whole))) << p << " " << whole;
}

TEST_F(StudentExpansion, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("student_upper_inverse_series.csv"))
    table::Expect(row, {"p", "df"}, "t", 1e-13,
                  [&] { return StudentUpperInverseSeries(row.Number("p"), row.Number("df")); });
}

// Below 1 degree of freedom the expansion turns over near the centre, and the bound holds it.
TEST_F(StudentExpansion, IsNeverNearerToTheCentreThanTheNormalDeviate) {
  for (const double df : kDfs) {
    for (int k = 1; k < 1000; ++k) {
      const double p = k / 1000.0;
      const double z = StatFWinBAS::NormalUpperInverse(p);
      const double t = StudentUpperInverseSeries(p, df);
      EXPECT_GE(std::abs(t), k == 500 ? 0 : std::abs(z)) << p << " " << df;
      EXPECT_GE(t * z, 0) << p << " " << df;
    }
  }
  EXPECT_EQ(StudentUpperInverseSeries(0.45, 0.1), StatFWinBAS::NormalUpperInverse(0.45));
}

TEST_F(StudentExpansion, WithoutDegreesOfFreedomIsADivisionByZero) {
  EXPECT_THROW(StudentUpperInverseSeries(0.05, 0.0), RunTimeError);
}

}  // namespace
