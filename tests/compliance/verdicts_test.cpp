#include "compliance/verdicts.h"

#include <gtest/gtest.h>

#include "compliance/compliance_tests.h"
#include "tests/compliance/compliance_screen.h"
#include "tests/stats/table_check.h"

// The table of the verdicts of all tests.
namespace {

using compliance::Verdict;
using compliance::Verdicts;
using compliance::VerdictsOf;

Verdicts Of(double M, double GM, double GSD, double OELV, double U = 95) {
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.Unit = "ppm";
  s.M = M;
  s.df = M - 1;
  s.GM = GM;
  s.GSD = GSD;
  s.OELV = OELV;
  s.U = U;
  s.D = 70;
  return VerdictsOf(s);
}

class VerdictsOfAllTests : public table::Delivered {};

TEST_F(VerdictsOfAllTests, StandForEveryTestInTheOrderOfTheButtons) {
  const Verdicts verdicts = Of(10, 0.3, 2, 1);
  ASSERT_EQ(verdicts.rows.size(), compliance::ComplianceTests().size());
  EXPECT_EQ(verdicts.rows[0].test, "IHStat/Leidel (1977)");
  EXPECT_EQ(verdicts.rows[1].test, "VALKORIN/Wilks (1941)");
  EXPECT_EQ(verdicts.rows[2].test, "EN 689(2018)");
}

TEST_F(VerdictsOfAllTests, DifferWhereOneTestAllowsForLessThanTheOthers) {
  const Verdicts verdicts = Of(6, 0.3, 2, 1.1);
  EXPECT_EQ(verdicts.rows[0].compliance, true);
  EXPECT_EQ(verdicts.rows[0].words, "Compliance");
  EXPECT_EQ(verdicts.rows[1].compliance, false);
  EXPECT_EQ(verdicts.rows[1].words, "Non-compliance");
  EXPECT_EQ(verdicts.rows[2].compliance, false);
  EXPECT_EQ(verdicts.why,
            "These verdicts differ by what each test allows for: Leidel takes GM and GSD as the "
            "population's (maximum likelihood); Wilks averages over what 5 degrees of freedom "
            "leave open (unbiased); EN 689 judges a limit that holds with 70 % confidence.");
}

TEST_F(VerdictsOfAllTests, AgreeFarFromTheLimit) {
  EXPECT_EQ(Of(10, 0.01, 2, 1).why.find("These verdicts agree."), 0U);
  EXPECT_EQ(Of(10, 5, 2, 1).why.find("These verdicts agree."), 0U);
}

TEST_F(VerdictsOfAllTests, AreCalledInAgreementOnlyWhereTheyDecide) {
  EXPECT_EQ(Of(4, 0.03, 2, 1.1).why.find("The tests that decide here agree."), 0U);
  EXPECT_EQ(Of(10, 0.3, 1, 1).why.find("No test decides here."), 0U);
}

TEST_F(VerdictsOfAllTests, SayWhyATestDoesNotDecide) {
  const Verdict few = Of(5, 0.3, 2, 1).rows[2];
  EXPECT_FALSE(few.compliance);
  EXPECT_EQ(few.words, "Fewer than six results (df up to 4) give no EN 689 decision.");
  EXPECT_FALSE(few.limit.empty());
  const Verdict noCoverage = Of(10, 0.3, 2, 1, 50).rows[2];
  EXPECT_FALSE(noCoverage.compliance);
  EXPECT_EQ(noCoverage.estimate, "");
  EXPECT_EQ(noCoverage.limit, "");
  EXPECT_EQ(noCoverage.words,
            "Without a U above 50 % there is no confidence and no tolerance limit: nothing is "
            "decided.");
}

TEST_F(VerdictsOfAllTests, ShowTheTextOfANumberThatIsNone) {
  EXPECT_EQ(Of(10, 1E-9, 1.1, 1E+9).rows[0].estimate, "<1E-300 % above OELV");
}

TEST_F(VerdictsOfAllTests, ATestThatCannotBeComputedSaysSoAndTheOthersStand) {
  const Verdicts verdicts = Of(10, 0.3, 1, 1);
  for (const Verdict& row : verdicts.rows) {
    EXPECT_EQ(row.words, "Not computed: division by zero.");
    EXPECT_FALSE(row.compliance);
  }
}

// What a press of each button shows stands in the table before any is pressed, and pressing
// changes nothing in it.
TEST_F(ComplianceScreen, TheTableHoldsWhatEachButtonShows) {
  Open(6, 0.3, 2, 1.1);
  EXPECT_TRUE(form.VerdictsFrm.visible);
  const ExposureSession before = p.Record();
  EXPECT_EQ(before.TestTag, Extrapolation::None);
  EXPECT_EQ(before.PercEx, 0);
  EXPECT_EQ(form.VerdictUTLLbl.text, "Upper limit of 95 %");
  const char* buttons[] = {"LeidelCmb", "WilksCmb", "TuggleCmb"};
  for (int row = 0; row < 3; ++row) {
    const std::string number = "(" + std::to_string(row) + ")";
    const screen::Control& verdict = *form.Find("VerdictLbl" + number);
    p.Click(buttons[row]);
    EXPECT_NE(
        form.Find("VerdictPercLbl" + number)->text.find(GlobalBAS::Trim(form.PercExTxB0.text)),
        std::string::npos);
    EXPECT_EQ(form.Find("VerdictUTLLbl" + number)->text,
              GlobalBAS::Trim(form.PercExTxB1.text) + " " + p.Record().Unit);
    EXPECT_EQ(verdict.colour, form.ComplianceLbl.colour) << buttons[row];
    EXPECT_EQ(verdict.sign, form.ComplianceLbl.sign) << buttons[row];
  }
  Open(6, 0.3, 2, 1.6);
  EXPECT_TRUE(Green(*form.Find("VerdictLbl(2)"))) << "another limit, another table";
}

}  // namespace
