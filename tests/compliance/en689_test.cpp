#include "compliance/en689.h"
#include "compliance/tests_on_record.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "stats/student.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/record.h"

// The EN 689 test: its confidence, its two searches, its verdict.
namespace {

using compliance::En689Result;
using compliance::TestBox;
using support::Row;

class En689 : public table::Delivered {};

ExposureSession Session(double M, double GM, double GSD, double OELV, double U = 95,
                        double D = 70) {
  ExposureSession s = support::SampleRecord(M, GM, GSD, OELV);
  s.U = U;
  s.D = D;
  return s;
}

double Distance(const ExposureSession& s) { return std::log(*s.OELV / s.GM) / std::log(s.GSD); }

// Rows whose plain search never ends, or ends in a text that speaks of the other end. What they
// give here has its own tests below.
bool OtherwiseHere(const Row& row) {
  const std::string& note = row.Text("note");
  return row.Text("Tu_state") != "ok" || note == "edge 6.4: GM well below the limit" ||
         note.starts_with("6.3: text");
}

void ExpectFraction(const Row& row, const compliance::FractionSearch& fraction) {
  const std::string& box = row.Text("Tu_box2");
  if (box.starts_with("text:")) {
    ASSERT_NE(fraction.text, nullptr) << row.Where();
    EXPECT_EQ("text:" + std::string(fraction.text), box) << row.Where();
    return;
  }
  EXPECT_EQ(fraction.text, nullptr) << row.Where();
  const Row plain({{"u", box.substr(6)}}, row.Where() + " " + row.Text("note"));
  table::Expect(plain, {}, "u", 1e-13, [&] { return fraction.u; });
}

TEST_F(En689, EverySessionOfTheTableGetsItsConfidenceItsLimitItsFractionAndItsVerdict) {
  int fractions = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    ExposureSession s = support::RecordOf(row);
    const auto result = compliance::En689Test(s, row.Number("Ur"));
    EXPECT_EQ(s.TestTag, Extrapolation::En689);
    if (row.Text("Tu_margin").empty() || !(row.Number("Tu_margin") > 1e-7)) continue;
    ASSERT_TRUE(result.limit) << row.Where();
    EXPECT_NEAR(s.PercEx, row.Number("Tu_PercEx"), 1e-11) << row.Where();
    table::Expect(row, {"note", "df", "U", "D"}, "Tu_UTL", 1e-13, [&] { return s.UTL; });
    EXPECT_EQ(result.limit->above1E300, row.Text("Tu_box1") == "text:    >1.00E+300")
        << row.Where();
    if (!row.Text("Tu_label").empty()) {
      EXPECT_EQ(result.compliance, row.Text("Tu_label") == "2305") << row.Where();
    }
    if (row.Number("Tu_robust") != 1 || OtherwiseHere(row)) continue;
    ExpectFraction(row, result.fraction);
    ++fractions;
  }
  EXPECT_GT(fractions, 20);
}

// The two hangs of the plain steps stand still on the candidate that those never leave.
TEST_F(En689, ASearchThatCanMoveNoMoreStandsOnItsLastCandidate) {
  int hangs = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    if (row.Text("note").find("too coarse") == std::string::npos) continue;
    ExposureSession s = support::RecordOf(row);
    const auto result = compliance::En689Test(s, row.Number("Ur"));
    ExpectFraction(row, result.fraction);
    EXPECT_LT(result.fraction.evaluations, 110) << row.Where();
    ++hangs;
  }
  EXPECT_EQ(hangs, 2);
}

TEST_F(En689, ACoverageOfHalfLeavesConfidenceAndLimitAndJudgesTheOldLimit) {
  ExposureSession s = Session(10, 0.3, 2, 1, 50);
  s.PercEx = 12;
  s.UTL = 0.9;
  auto result = compliance::En689Test(s, Distance(s));
  EXPECT_EQ(s.MsgText, "Desired population Coverage U% in Tab Limits must be more than 50%");
  EXPECT_FALSE(result.limit);
  EXPECT_EQ(s.PercEx, 12);
  EXPECT_EQ(s.UTL, 0.9);
  EXPECT_EQ(result.compliance, true);
  EXPECT_GT(result.fraction.u, 50) << "the fraction is searched all the same";
  s.UTL = 1.1;
  EXPECT_EQ(compliance::En689Test(s, Distance(s)).compliance, false);
  s.U = std::nextafter(50.0, 51);
  s.MsgText.clear();
  EXPECT_TRUE(compliance::En689Test(s, Distance(s)).limit);
  EXPECT_EQ(s.MsgText, "");
}

TEST_F(En689, UpToFourDegreesOfFreedomNothingIsDecided) {
  ExposureSession s = Session(5, 0.2, 2.2, 1);
  EXPECT_FALSE(compliance::En689Test(s, Distance(s)).compliance);
  s.df = 5;
  EXPECT_TRUE(compliance::En689Test(s, Distance(s)).compliance);
}

TEST_F(En689, AToleranceLimitAtTheLimitValueDoesNotComply) {
  ExposureSession s = Session(10, 0.3, 2, 1);
  s.UTL = 1;
  EXPECT_EQ(compliance::En689Complies(s), false);
  s.UTL = std::nextafter(1.0, 0);
  EXPECT_EQ(compliance::En689Complies(s), true);
}

TEST_F(En689, Above200DegreesOfFreedomTheSearchesEndFast) {
  ExposureSession s = Session(300, 0.3, 2, 1);
  const auto result = compliance::En689Test(s, Distance(s));
  EXPECT_LT(result.limit->evaluations, 30);
  EXPECT_LT(result.fraction.evaluations, 30);
}

TEST_F(En689, AWideSpreadOfASmallSampleStepsTo1E300AndHoldsThat) {
  ExposureSession s = Session(2, 1, 1000, 100, 99.99, 99.9);
  const auto result = compliance::En689Test(s, Distance(s));
  EXPECT_TRUE(result.limit->above1E300);
  EXPECT_EQ(s.UTL, result.limit->UTL);
  EXPECT_GT(s.UTL, 1E+300);
  EXPECT_LE(s.UTL, 1E+303);
}

TEST_F(En689, AStepThatMeetsTheConfidenceIsTheLimit) {
  ExposureSession s = Session(12, 1, 2, 5);
  s.D = compliance::En689ConfidenceAt(s.df, s.U, 2);
  const compliance::ToleranceSearch search = compliance::En689ToleranceLimit(s);
  EXPECT_EQ(search.UTL, 4);
  EXPECT_EQ(search.HighBound, 0) << "nothing was bisected";
}

// By steps from GM / GSD upward alone such a limit would never be bracketed.
TEST_F(En689, ALimitBelowGMByGSDIsFound) {
  ExposureSession s = Session(2, 1, 2, 5, 55, 1);
  const compliance::ToleranceSearch search = compliance::En689ToleranceLimit(s);
  EXPECT_LT(search.UTL, 0.5);
  EXPECT_NEAR(search.ConfNow, 1, 0.001);
}

TEST_F(En689, ALimitBelowAllNumbersEndsTheSearchNear1E300th) {
  ExposureSession s = Session(2, 25, 9, 5, 60, 0.0114);
  const compliance::ToleranceSearch search = compliance::En689ToleranceLimit(s);
  EXPECT_GT(search.UTL, 0);
  EXPECT_LE(search.UTL, 1E-300);
}

TEST_F(En689, AFractionOfNearlyAllReadsSoAlsoWhereItsConfidenceVanishes) {
  ExposureSession s = Session(10, 0.0001, 1.5, 1);
  EXPECT_STREQ(compliance::En689Test(s, Distance(s)).fraction.text, compliance::kFractionAll);
  s = Session(6, 0.01, 1.5, 2);
  EXPECT_STREQ(compliance::En689Test(s, Distance(s)).fraction.text, compliance::kFractionAll);
}

TEST_F(En689, AFractionOfNearlyNothingNeverReads100) {
  ExposureSession s = Session(3, 1, 1.5, 0.02);
  EXPECT_STREQ(compliance::En689Test(s, Distance(s)).fraction.text, compliance::kFractionNone);
}

TEST_F(En689, TheTextsBeforeTheSearchGoByTheConfidenceOfTheCoverage) {
  ExposureSession s = Session(60, 0.001, 1.3, 100, 95, 95);
  const compliance::FractionSearch all = compliance::En689Fraction(s, Distance(s));
  EXPECT_STREQ(all.text, compliance::kFractionAll);
  EXPECT_EQ(all.evaluations, 1);
  s.OELV = 1e-8;
  const compliance::FractionSearch none = compliance::En689Fraction(s, Distance(s));
  EXPECT_STREQ(none.text, compliance::kFractionNone);
  EXPECT_EQ(none.evaluations, 1);
}

// At 50 percent the routine gives the other tail, which sends the search the wrong way.
TEST_F(En689, ASearchMisledAt50PercentRunsOnceMore) {
  int misled = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    if (row.Text("note").find("p = 0.5") == std::string::npos) continue;
    ExposureSession s = support::RecordOf(row);
    const compliance::FractionSearch search = compliance::En689Fraction(s, row.Number("Ur"));
    EXPECT_TRUE(search.ranTwice) << row.Where();
    EXPECT_EQ(search.text, nullptr);
    EXPECT_NEAR(search.ConfNow, s.D, 0.001) << row.Where();
    EXPECT_GT(std::abs(search.u - 50), 1e-6) << row.Where();
    ++misled;
  }
  EXPECT_EQ(misled, 1);
}

TEST_F(En689, At50PercentTheCentralTailAnswers) {
  EXPECT_EQ(compliance::En689ConfidenceAt(9, 50, 0.7), 100 * StatFWinBAS::StudentUpper(9.0, 0.7));
}

TEST_F(En689, TheBoxesFollowTheSearches) {
  ExposureSession s = Session(10, 0.3, 2, 1);
  std::vector<double> limits;
  std::vector<double> fractions;
  const auto result = compliance::En689Test(s, Distance(s), [&](TestBox box, double value) {
    (box == TestBox::ToleranceLimit ? limits : fractions).push_back(value);
  });
  ASSERT_EQ(limits.size(), 19u) << "4 steps and 15 bisections";
  EXPECT_NEAR(limits[0], 0.3, 1e-15);
  EXPECT_EQ(limits.back(), s.UTL);
  ASSERT_EQ(fractions.size(), 18u);
  EXPECT_EQ(fractions.front(), 47.5);
  EXPECT_EQ(fractions.back(), result.fraction.u);
}

// The numbers of a record are those of one test: nothing is written before all of it is found.
TEST_F(En689, AFaultInTheSearchLeavesTheNumbersOfBefore) {
  ExposureSession s = Session(10, 0.3, 1, 1);
  s.UTL = 42;
  s.PercEx = 12;
  EXPECT_ANY_THROW(compliance::En689Test(s, 1.7));
  EXPECT_EQ(s.UTL, 42);
  EXPECT_EQ(s.PercEx, 12);
}

TEST_F(En689, TheConfidenceIsToldBeforeTheSearchesBegin) {
  const ExposureSession s = Session(10, 0.3, 2, 1);
  std::vector<std::optional<double>> told;
  int candidates = 0;
  const auto result = compliance::En689Calculation(
      BasisOf(s), Distance(s), [&](TestBox, double) { ++candidates; },
      [&](std::optional<double> PercEx) {
        EXPECT_EQ(candidates, 0);
        told.push_back(PercEx);
      });
  EXPECT_EQ(told, std::vector{std::optional(result.PercEx)});
  EXPECT_GT(candidates, 0);
}

}  // namespace
