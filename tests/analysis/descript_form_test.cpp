#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "base/fault.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "stats/estimators.h"
#include "tests/analysis/descriptive_screen.h"

// The descriptive statistics screen as the user meets it.
namespace {

using descriptive::kFive;
using Keys = std::vector<std::string>;

class DescriptiveScreen : public descriptive::Screen {
 protected:
  // The whole series lies within the detection range.
  void SetWholeRange() {
    ExposureSession& s = p.Record();
    s.DetecOn = true;
    s.FirstInRange = 1;
    s.LastInRange = s.NInRange = static_cast<std::int16_t>(s.M);
    s.LOQ = 0.95 * s.C[1];
    s.URR = 1.05 * s.C[static_cast<std::size_t>(s.M)];
    s.inForce = Estimates::RangeDegrees;
    DegreesOfFreedom(s);
  }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }
};

const Keys kValueBoxes = {"GMTxB",  "GMuTxB", "GSDTxB",   "AMmlTxb",
                          "AMuTxb", "SDUTxb", "AmlinTxb", "SDlinTxb"};

}  // namespace

TEST_F(DescriptiveScreen, FourEnteredSamplesGiveNoMeanSquareErrorEstimateButAllOthers) {
  Enter("4");
  EXPECT_EQ(p.Record().df, 3);
  p.Record().AMmv = 12.5;
  Reopen();
  EXPECT_EQ(p.Text("AMmvTxb"), "   unknown");
  EXPECT_EQ(p.Record().AMmv, 12.5) << "the record keeps what it had";
  for (const std::string& box : kValueBoxes)
    EXPECT_GT(GlobalBAS::ReadNumber(p.Text(box)), 0) << box;
}

TEST_F(DescriptiveScreen, FiveOutcomesGiveTheMeanSquareErrorEstimate) {
  OpenSeries(kFive);
  EXPECT_EQ(p.Record().df, 4);
  EXPECT_GT(p.Record().AMmv, 0);
  EXPECT_EQ(p.Text("AMmvTxb"), Number(p.Record().AMmv));
}

// Nothing that followed from the outcomes of before stands beside the equal ones.
TEST_F(DescriptiveScreen, EqualOutcomesGiveNoEstimatesAndAllAreShownAsUnknown) {
  OpenSeries(kFive);
  ExposureSession& s = p.Record();
  ASSERT_GT(s.SDlin, 0);
  for (std::size_t i = 0; i < s.C.size(); ++i) s.C[i] = 3;
  Reopen();  // evaluates the outcomes that were written by hand
  EXPECT_EQ(s.InputState, 4);
  EXPECT_TRUE(s.noEstimates);
  EXPECT_NEAR(s.GM, 3, 1e-14);
  EXPECT_EQ(s.GSD, 0);
  for (const double none : {s.GMu, s.AMml, s.AMu, s.AMmv, s.XM, s.SDu, s.SDlin}) EXPECT_EQ(none, 0);
  Reopen();
  for (const std::string& box : kValueBoxes) EXPECT_EQ(p.Text(box), "   unknown") << box;
  EXPECT_EQ(p.Text("AMmvTxb"), "   unknown");
  EXPECT_FALSE(s.DescOk);
}

TEST_F(DescriptiveScreen, ARangeOverAllOutcomesShowsTheSampleWordsAndNothingOutside) {
  OpenSeries(kFive);
  SetWholeRange();
  Reopen();
  EXPECT_EQ(p.Text("WindnrLbl"), "20c");
  EXPECT_TRUE(p.At("DetecFrame").visible);
  EXPECT_EQ(p.Text("DescriptFrame"), "Estimators of the Lognormal descriptive statistics ");
  EXPECT_EQ(p.Text("GMLbl"), "Geometric Mean GM=");
  EXPECT_EQ(p.Text("GSDLbl"), "Geometric Standard Deviation GSD=");
  EXPECT_EQ(p.Text("DegreesLbl(5)"), Number(0));
  EXPECT_EQ(p.Text("DegreesLbl(9)"), Number(0));
  EXPECT_EQ(p.Text("DegreesLbl(11)"), Number(5));
  EXPECT_EQ(GlobalBAS::Trim(p.Text("DegreesLbl(6)")), "100 %");
  EXPECT_EQ(p.Text("DegreesLbl(7)"), "Degrees of Freedom df=");
  EXPECT_EQ(p.Text("DetecLTxb"), Number(p.Record().LOQ));
  EXPECT_EQ(p.Text("DetecUTxb"), Number(p.Record().URR));
}

TEST_F(DescriptiveScreen, APartInRangeIsShownToTwoDecimals) {
  OpenSeries({0.4, 0.9, 1.3, 2.2, 5.1, 6});
  SetWholeRange();
  p.Record().FirstInRange = 3;
  p.Record().NInRange = 4;
  Reopen();
  EXPECT_EQ(GlobalBAS::Trim(p.Text("DegreesLbl(6)")), "66.67 %");
  EXPECT_EQ(p.Text("DegreesLbl(5)"), Number(2));
}

TEST_F(DescriptiveScreen, ARangeDividesTheSquaresOfAllOutcomesByItsReducedDegreesOfFreedom) {
  OpenSeries({0.4, 0.9, 1.3, 2.2, 5.1, 6, 7, 9});
  ExposureSession& s = p.Record();
  const double squares = std::log(s.GSD) * std::log(s.GSD) * s.df;
  SetWholeRange();
  s.FirstInRange = 4;
  s.NInRange = 5;
  DegreesOfFreedom(s);
  EXPECT_EQ(s.df, 5);
  Reopen();
  EXPECT_EQ(p.Text("DegreesTxb"), Number(5));
  EXPECT_NEAR(s.GSD, std::exp(std::sqrt(squares / 5)), 1e-12);
}

TEST_F(DescriptiveScreen, OneDegreeOfFreedomSumsTheVarianceOverTheFirstSeriesAlone) {
  Enter("2");
  ExposureSession& s = p.Record();
  EXPECT_EQ(s.df, 1);
  // sum of (L squared) to the j over j! 1 3 5 ... (2j - 1)
  const double x = std::log(2.0) * std::log(2.0);
  double term = 1;
  double sum = 0;
  for (int j = 1; j < 30; ++j) {
    term *= x / j / (2 * j - 1);
    sum += term;
  }
  EXPECT_NEAR(s.SDu, 0.3 * std::sqrt(sum), 1e-14);
}

TEST_F(DescriptiveScreen, RegressionEstimatesCarryTheWordsOfTheLastRegression) {
  OpenSeries(kFive);
  SetWholeRange();
  ExposureSession& s = p.Record();
  s.RegressionOn = true;
  s.RegressionLabel = "Double censored";
  s.GM = 1.25;
  s.GSD = 3.5;
  Reopen();
  EXPECT_EQ(p.Text("GMLbl"), "Double censored Rankit estimate GMg=");
  EXPECT_EQ(p.Text("GSDLbl"), "Double censored Rankit estimate GSDg=");
  EXPECT_EQ(p.Text("DescriptFrame"),
            "Regression estimators of the Lognormal descriptive statistics");
  EXPECT_EQ(p.At("DescriptFrame").tip,
            "Characterizing the exposure distribution. Different regression estimators of the "
            "Lognormal descriptive statistics");
  EXPECT_EQ(p.At("DescriptFrame").helpContext, 101210);
  EXPECT_EQ(s.GM, 1.25);
  EXPECT_EQ(s.GSD, 3.5);
}

TEST_F(DescriptiveScreen, WithoutARegressionTheWordsAreTheSamplesAgain) {
  OpenSeries(kFive);
  p.Record().RegressionOn = true;  // counts only with a range
  Reopen();
  EXPECT_EQ(p.Text("DescriptFrame"), "Estimators of the Lognormal descriptive statistics ");
  EXPECT_EQ(p.At("DescriptFrame").tip,
            "Characterizing the exposure distribution. Different estimators of the Lognormal "
            "descriptive statistics");
  EXPECT_EQ(p.At("DescriptFrame").helpContext, 101050);
  EXPECT_FALSE(p.At("DetecFrame").visible);
  EXPECT_EQ(p.Text("DegreesLbl(5)"), Number(5));
}

// The numbers of statistics that were set by hand go with those statistics.
TEST_F(DescriptiveScreen, ShowsWhatTheRecordHeldAndLeavesTheSamplesOwn) {
  OpenSeries(kFive);
  ExposureSession& s = p.Record();
  const double gm = s.GM;
  const double gsd = s.GSD;
  s.GM = 7;
  s.GSD = 3;
  Reopen();
  EXPECT_EQ(p.Text("GMTxB"), Number(7));
  EXPECT_EQ(p.Text("GSDTxB"), Number(3));
  EXPECT_NEAR(GlobalBAS::ReadNumber(p.Text("AMmlTxb")),
              7 * std::exp(std::log(3.0) * std::log(3.0) / 2), 0.01);
  EXPECT_EQ(s.LnGM, 0);
  EXPECT_EQ(s.AMml, 0);
  EXPECT_EQ(s.GM, gm);
  EXPECT_EQ(s.GSD, gsd);
  Reopen();
  EXPECT_EQ(p.Text("GMTxB"), Number(gm));
  EXPECT_EQ(p.Text("GSDTxB"), Number(gsd));
  EXPECT_EQ(s.LnGM, std::log(gm));
}

TEST_F(DescriptiveScreen, TriedValuesStayAndAreJudgedInPlaceOfTheOutcomes) {
  p.OpenSeries(kFive);
  p.Tab("basis");
  p.Click("OriModiCmd");
  p.Type("GMTxB", "7");
  p.Type("GSDTxB", "3");
  ASSERT_TRUE(p.Tab("descript"));
  ExposureSession& s = p.Record();
  EXPECT_EQ(s.GM, 7);
  EXPECT_EQ(s.GSD, 3);
  const double e = std::exp(std::log(3.0) * std::log(3.0) / 2);
  EXPECT_NEAR(s.XM, 7 * e, 1e-12);
  EXPECT_NEAR(s.SDlin, 7 * std::sqrt(e * (e - 1) * s.M / (s.M - 1)), 1e-11);
  p.Tab("basis");
  p.Click("OriModiCmd");
  p.Tab("descript");
  EXPECT_NEAR(s.XM, 9.9 / 5, 1e-14) << "after Reset the outcomes count again";
}

TEST_F(DescriptiveScreen, ARefusedUnbiasedGeometricMeanStaysOnRecord) {
  Enter("2");
  ExposureSession& s = p.Record();
  s.GSD = 25;
  Reopen();
  EXPECT_EQ(s.GMu, 0);
  EXPECT_EQ(s.InputState, 1);
  s.GSD = 24;
  Reopen();
  EXPECT_NE(s.GMu, 0);
  EXPECT_EQ(s.InputState, 0);
}

TEST_F(DescriptiveScreen, IdentifiesTheSeriesItsUnitAndItsDuration) {
  Enter("10");
  ExposureSession& s = p.Record();
  s.Unit = "ppm";
  s.Duration = "15 minutes";
  Reopen();
  EXPECT_EQ(p.Text("NameTxB"), "Welders");
  EXPECT_EQ(GlobalBAS::Trim(p.Text("SampSizTxB")), "10");
  EXPECT_EQ(p.Text("RefDurLbl"), "Sampling duration  15 minutes");
  EXPECT_EQ(p.Text("DimLbl(0)"), "Measured in:  ppm");
  for (char i = '1'; i <= '9'; ++i) EXPECT_EQ(p.Text(std::string("DimLbl(") + i + ")"), "ppm") << i;
  s.Unit.clear();
  s.Duration.clear();
  Reopen();
  EXPECT_EQ(p.Text("RefDurLbl"), "");
  EXPECT_EQ(p.Text("DimLbl(0)"), " ");
  EXPECT_EQ(p.Text("DimLbl(9)"), "");
}

TEST_F(DescriptiveScreen, AllItsBoxesAreForReadingOnly) {
  for (screen::Control* control : p.program.FormByName("DescriptForm")->controls)
    EXPECT_TRUE(control->locked || control->kind != screen::Kind::TextBox) << control->name;
}

TEST_F(DescriptiveScreen, AFaultInAStatisticIsAFaultAndNoNumber) {
  Enter("10");
  p.Record().GSD = 0;
  EXPECT_THROW(Reopen(), RunTimeError);
}
