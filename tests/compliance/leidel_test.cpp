#include "compliance/leidel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "compliance/perc_ex_form.h"
#include "session/global_bas.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// The Leidel test: its figures, its verdict, its words.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using support::Row;

constexpr double kTolerance = 1e-12;
constexpr screen::Colour kGreen{0, 128, 0};
constexpr screen::Colour kRed{192, 0, 0};

class LeidelTest : public testing::Test {
 protected:
  LeidelTest() { p.EnterStatistics("Welders", "10", "1", "2"); }

  // Runs the test on these statistics and limits.
  void Judge(double GM, double GSD, double OELV, double U = 95) {
    ExposureSession& s = p.Record();
    s.GM = GM;
    s.GSD = GSD;
    s.OELV = OELV;
    s.U = U;
    p.program.Open(ScreenId::PercEx);
    form.Run(Extrapolation::Leidel);
  }

  void ExpectVerdict(bool compliance, const std::string& where = "") {
    EXPECT_EQ(form.ComplianceLbl.text, compliance ? " IHSTAT/ Leidel(19977) Compliance"
                                                  : " IHSTAT/ Leidel(19977) Non-Compliance")
        << where;
    EXPECT_EQ(form.ComplianceLbl.colour, compliance ? kGreen : kRed) << where;
    EXPECT_TRUE(form.ComplianceLbl.visible) << where;
  }

  void ExpectClose(double result, double truth, const std::string& where) {
    EXPECT_LE(support::RelativeError(result, truth), kTolerance)
        << where << ": result " << GlobalBAS::GeneralText(result) << ", table "
        << GlobalBAS::GeneralText(truth) << ", relative error "
        << GlobalBAS::GeneralText(support::RelativeError(result, truth));
  }

  void SetSession(const Row& row) {
    ExposureSession& s = p.Record();
    s.M = row.Number("M");
    s.df = row.Number("df");
    s.D = row.Number("D");
    s.SigDigits = 3;
    s.PercEx = s.UTL = -7;
  }

  void ExpectRow(const Row& row, double distance) {
    const std::string where = row.Where() + " " + row.Text("note") + ", GM " + row.Text("GM") +
                              ", GSD " + row.Text("GSD") + ", OELV " + row.Text("OELV") + ", U " +
                              row.Text("U");
    const ExposureSession& s = p.Record();
    ExpectClose(distance, row.Number("Ur"), where + ": Ur");
    ExpectClose(s.PercEx, row.Number("Le_PercEx"), where + ": percent above OELV");
    ExpectClose(compliance::LeidelDeviate(s.U), row.Number("Le_z"), where + ": deviate of U");
    ExpectClose(s.UTL, row.Number("Le_UTL"), where + ": upper tolerance limit");
    ExpectVerdict(row.Text("Le_label") == "2307", where);
    const std::string box = row.Text("Le_box0");
    const std::string text =
        box.rfind("text:", 0) == 0 ? box.substr(5) : GlobalBAS::Shown(s, row.Number("Le_PercEx"));
    EXPECT_EQ(form.PercExTxB0.text, text) << where;
    EXPECT_EQ(form.PercExTxB1.text, GlobalBAS::Shown(s, row.Number("Le_UTL"))) << where;
    EXPECT_EQ(form.PercExLbl1.text, GlobalBAS::ShownTrimmed(s, s.U) + LoadResString(2504)) << where;
  }

  ProgramSession p;
  compliance::PercExForm& form =
      dynamic_cast<compliance::PercExForm&>(*p.program.FormByName("PercExForm"));
};

}  // namespace

TEST_F(LeidelTest, EverySessionOfTheTableGetsItsPercentageItsLimitAndItsVerdict) {
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    ASSERT_EQ(row.Text("Le_state"), "ok") << row.Where();
    SetSession(row);
    ExposureSession& s = p.Record();
    s.GM = row.Number("GM");
    s.GSD = row.Number("GSD");
    s.OELV = row.Number("OELV");
    s.U = row.Number("U");
    p.program.Open(ScreenId::PercEx);
    const double distance = compliance::StandardisedDistance(BasisOf(s));
    form.Run(Extrapolation::Leidel);
    ExpectRow(row, distance);
  }
}

TEST_F(LeidelTest, ALimitAtTheGeometricMeanIsExceededByHalfThePopulation) {
  Judge(1.7, 2.4, 1.7);
  EXPECT_DOUBLE_EQ(p.Record().PercEx, 50);
  ExpectVerdict(false);
}

TEST(LeidelVerdict, BelowFivePercentCompliesAndFivePercentDoesNot) {
  EXPECT_TRUE(compliance::LeidelComplies(4.9999));
  EXPECT_FALSE(compliance::LeidelComplies(5));
}

// No distance gives exactly 5 percent, so the nearest limits on both sides of it stand for that.
TEST_F(LeidelTest, TheVerdictTurnsAtFivePercent) {
  const double start = compliance::LeidelToleranceLimit(1, 2, compliance::LeidelDeviate(95));
  double highestGreen = 0;
  double lowestRed = 100;
  for (int steps = -100; steps <= 100; ++steps) {
    Judge(1, 2, start * (1 + steps * 1e-6));
    const double percent = p.Record().PercEx;
    ExpectVerdict(percent < 5, GlobalBAS::GeneralText(percent));
    if (percent < 5)
      highestGreen = std::max(highestGreen, percent);
    else
      lowestRed = std::min(lowestRed, percent);
  }
  EXPECT_NEAR(highestGreen, 5, 1e-4);
  EXPECT_NEAR(lowestRed, 5, 1e-4);
}

TEST_F(LeidelTest, TheVerdictDoesNotFollowTheCoverage) {
  Judge(1, 2, 4, 50);
  ExpectVerdict(true);
  Judge(1, 2, 4, 99.99);
  ExpectVerdict(true);
}

TEST_F(LeidelTest, AnExceedanceBelowAllNumbersIsShownAsABound) {
  Judge(1, 1.1, 40);
  EXPECT_EQ(p.Record().PercEx, 0);
  EXPECT_EQ(form.PercExTxB0.text, "    <1E-300      ");
  ExpectVerdict(true);
}

TEST_F(LeidelTest, HalfThePopulationStaysBelowTheGeometricMean) {
  Judge(1.7, 2.4, 5, 50);
  EXPECT_EQ(p.Record().UTL, 1.7);
}

TEST_F(LeidelTest, SetsUpItsPartOfTheScreen) {
  Judge(0.3, 2, 1);
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Leidel);
  EXPECT_EQ(form.WindnrLbl.text, "25");
  EXPECT_EQ(form.UTLFrm.text, "Statistical test: Maximum likelihood test of Leidel (1977)/IHStat");
  EXPECT_FALSE(form.IntroFrm.visible);
  for (const screen::Control* hidden :
       {&form.SampsizeFrm, &form.SampSizeCkb, &form.PercExLbl2, &form.PercExTxB2, &form.DimLbl4})
    EXPECT_FALSE(hidden->visible) << hidden->name;
  for (const screen::Control* shown :
       {&form.PercExLbl0, &form.PercExTxB0, &form.DimLbl2, &form.PercExLbl1, &form.PercExTxB1,
        &form.DimLbl3, &form.ComplianceLbl, &form.CommentLbl, &form.MenuVerd, &form.MenuPrint})
    EXPECT_TRUE(shown->visible) << shown->name;
}

TEST_F(LeidelTest, ItsWordsComeFromTheCatalogue) {
  Judge(0.3, 2, 1);
  const std::string percent = "Non-compliance probability/ Percent above OELV  A(C>OELV) =";
  EXPECT_EQ(form.PercExLbl0.text, percent);
  EXPECT_EQ(form.PercExLbl0.tip, percent);
  EXPECT_EQ(form.PercExTxB0.tip, percent);
  EXPECT_EQ(form.PercExLbl1.text, "95%-tile upper tolerance limit =");
  EXPECT_EQ(form.PercExLbl1.tip, LoadResString(2503));
  EXPECT_EQ(form.PercExTxB1.tip, LoadResString(2503));
  EXPECT_EQ(form.CommentLbl.text, LoadResString(2505) + LoadResString(2506) + LoadResString(2507));
  EXPECT_EQ(form.DimLbl2.text, "%");
  EXPECT_EQ(form.DimLbl3.text, p.Record().Unit);
}

TEST_F(LeidelTest, RunsFromItsButtonAndFromItsMenuAlike) {
  p.program.Open(ScreenId::PercEx);
  p.Click("LeidelCmb");
  const double percent = p.Record().PercEx;
  EXPECT_GT(percent, 0);
  p.Record().PercEx = -1;
  p.Click("MenuLeid");
  EXPECT_EQ(p.Record().PercEx, percent);
  p.program.Open(ScreenId::Descript);
  p.Record().PercEx = -1;
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().PercEx, percent);
}

TEST_F(LeidelTest, RegressionEstimatesAreJudgedLikeAnyOther) {
  Judge(0.3, 2, 1);
  const double percent = p.Record().PercEx;
  p.Record().DetecOn = p.Record().RegressionOn = true;
  Judge(0.3, 2, 1);
  EXPECT_EQ(p.Record().PercEx, percent);
}

TEST_F(LeidelTest, WithoutALimitAboveZeroTheStartScreenComesBackAndNothingIsJudged) {
  Judge(1, 2, 4);
  p.program.Open(ScreenId::PercEx);
  p.Record().OELV = 0;
  p.Click("LeidelCmb");
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().OELV, 1) << "the start screen's flags have set the default";
  p.program.Open(ScreenId::PercEx);
  EXPECT_EQ(form.PercExTxB0.text, "") << "what stood there was not judged against this limit";
  EXPECT_FALSE(form.ComplianceLbl.visible);
}

TEST_F(LeidelTest, AToleranceLimitBeyondAllNumbersIsAFaultAndLeavesNoOlderOne) {
  Judge(1, 2, 4);
  p.Record().GSD = 1E+100;
  EXPECT_THROW(Judge(1, 1E+100, 4, 99.99), RunTimeError);
  EXPECT_EQ(form.PercExTxB1.text, "");
}

TEST_F(LeidelTest, AGeometricStandardDeviationOf1IsAFault) {
  EXPECT_THROW(Judge(1, 1, 4), RunTimeError);
}
