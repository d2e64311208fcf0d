#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "compliance/en689.h"
#include "compliance/tests_on_record.h"
#include "tests/compliance/compliance_screen.h"

// The EN 689 test as the user sees it.
namespace {

using compliance::TestBox;
using Texts = std::vector<std::string>;

class EN689OnTheScreen : public ComplianceScreen {
 protected:
  void Press() { p.Click("TuggleCmb"); }
  std::string Reason() { return Line(); }

  // What the boxes of the searches show at each repaint of one of them.
  struct Repaints {
    Texts limit, fraction;
  };
  Repaints PressAndWatch() {
    Repaints seen;
    p.surface.onControl = [&](const screen::Control& control) {
      (&control == &form.PercExTxB1 ? seen.limit : seen.fraction).push_back(control.text);
    };
    Press();
    p.surface.onControl = nullptr;
    return seen;
  }
};

}  // namespace

TEST_F(EN689OnTheScreen, HasItsNumberTitleCaptionsAndComment) {
  Open();
  Press();
  EXPECT_EQ(p.Record().TestTag, Extrapolation::En689);
  EXPECT_EQ(form.WindnrLbl.text, "27");
  EXPECT_EQ(form.UTLFrm.text,
            "Statistical test: EN689 (2018) &&  BOHS/NVvA (2011) && Code du Travail (2009)");
  EXPECT_EQ(form.PercExLbl0.text,
            "Confidence that less than 5% of the exposure distribution exceeds OELV");
  EXPECT_EQ(form.PercExLbl1.text, "The 95%-tile upper tolerance limit with 70% confidence =");
  EXPECT_EQ(form.PercExLbl2.text, "The population fraction < OELV with 70% confidence");
  EXPECT_EQ(form.DimLbl2.text, "%");
  EXPECT_EQ(form.DimLbl3.text, "ppm");
  EXPECT_EQ(form.DimLbl4.text, "%");
  EXPECT_EQ(form.CommentLbl.text,
            "The test shall measure, with 70% confidence, whether less than 5% of the exposures in "
            "the SEG exceed the OELV (EN689-2018 clause 5.5.3 & BOSH/NVvA 2011).Compliance "
            "decision (689 Annex F.3) is calculated with the non-central Student distribution "
            "using the algorithms of Owen (1968 p464-465). ");
  for (const screen::Control* control :
       {&form.PercExLbl2, &form.PercExTxB2, &form.DimLbl4, &form.ComplianceLbl, &form.CommentLbl})
    EXPECT_TRUE(control->visible) << control->name;
  EXPECT_FALSE(form.SampSizeCkb.visible);
}

TEST_F(EN689OnTheScreen, CaptionsNameTheWishedCoverageAndConfidence) {
  Open(10, 0.3, 2, 1, 97.5, 82.25);
  Press();
  EXPECT_EQ(form.PercExLbl0.text,
            "Confidence that less than 2.5% of the exposure distribution exceeds OELV");
  EXPECT_EQ(form.PercExLbl1.text, "The 97.5%-tile upper tolerance limit with 82.25% confidence =");
  EXPECT_EQ(form.PercExLbl2.text, "The population fraction < OELV with 82.25% confidence");
}

TEST_F(EN689OnTheScreen, EmptiesTheTipsOfTheTestBefore) {
  Open();
  for (const char* const before : {"LeidelCmb", "WilksCmb"}) {
    p.Click(before);
    EXPECT_NE(form.PercExLbl1.tip, "");
    Press();
    for (const screen::Control* control :
         {&form.PercExLbl0, &form.PercExTxB0, &form.PercExLbl1, &form.PercExTxB1})
      EXPECT_EQ(control->tip, "") << control->name;
  }
}

TEST_F(EN689OnTheScreen, ShowsConfidenceLimitFractionAndVerdict) {
  Open();
  Press();
  EXPECT_EQ(form.PercExTxB0.text, "   52.64");
  EXPECT_EQ(form.PercExTxB1.text, "    1.2");
  EXPECT_EQ(form.PercExTxB2.text, "   92.11");
  EXPECT_EQ(form.ComplianceLbl.text, "EN689_Annnex_F.3 Decision Ur<Ut Non-compliance");
  EXPECT_TRUE(Red(form.ComplianceLbl));
  Open(10, 0.3, 2, 1.3);
  Press();
  EXPECT_EQ(form.ComplianceLbl.text, "EN689_Annnex_F.3 Decision Ur>=Ut Compliance");
  EXPECT_TRUE(Green(form.ComplianceLbl));
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(EN689OnTheScreen, FourDegreesOfFreedomDecideNothingAndFiveDo) {
  Open(5, 0.2, 2.2, 1);
  Press();
  EXPECT_FALSE(form.ComplianceLbl.visible);
  EXPECT_EQ(Reason(), "Fewer than six results (df up to 4) give no EN 689 decision.");
  Open(6, 0.2, 2.2, 1);
  Press();
  EXPECT_TRUE(form.ComplianceLbl.visible);
  EXPECT_EQ(form.ComplianceLbl.text, "EN689_Annnex_F.3 Decision Ur<Ut Non-compliance");
  EXPECT_EQ(Reason(), "");
}

TEST_F(EN689OnTheScreen, TheSentenceOnTheEstimatesStandsUnderAllThreeVerdicts) {
  Open();
  for (const char* const button : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) {
    p.Click(button);
    EXPECT_NE(form.VerdictsLbl.text.find("maximum likelihood"), std::string::npos) << button;
    EXPECT_EQ(Reason(), "") << button;
  }
}

TEST_F(EN689OnTheScreen, HalfThePopulationIsNoCoverageAndTheOldLimitIsJudged) {
  Open(10, 0.3, 2, 1, 50);
  p.Click("WilksCmb");
  const double oldLimit = p.Record().UTL;
  ASSERT_GT(oldLimit, 0);
  for (const auto& [OELV, compliance] :
       {std::pair{oldLimit * 1.1, true}, {oldLimit * 0.9, false}, {oldLimit, false}}) {
    Open(10, 0.3, 2, OELV, 50);
    p.Click("WilksCmb");
    ASSERT_EQ(p.Record().UTL, oldLimit) << "a limit does not depend on what it is judged against";
    const double PercEx = p.Record().PercEx;
    p.box.shown.clear();
    Press();
    ASSERT_EQ(p.box.shown.size(), 1u);
    EXPECT_EQ(p.LastBox().text,
              "Desired population Coverage U% in Tab Limits must be more than 50%");
    EXPECT_EQ(p.LastBox().title, "Exceedance percentage");
    EXPECT_EQ(p.Record().UTL, oldLimit);
    EXPECT_EQ(p.Record().PercEx, PercEx);
    EXPECT_TRUE(form.ComplianceLbl.visible);
    EXPECT_EQ(compliance ? Green(form.ComplianceLbl) : Red(form.ComplianceLbl), true) << OELV;
    EXPECT_EQ(Reason(),
              "Without a U above 50 % there is no confidence and no tolerance limit; the verdict "
              "is on the limit of the test before.");
  }
}

TEST_F(EN689OnTheScreen, WithoutACoverageALimitOfOtherDataOrLimitsDecidesNothing) {
  struct Before {
    const char* what;
    double M, GM, U, D;
  };
  constexpr Before befores[] = {{"the same", 10, 0.3, 50, 70},
                                {"another coverage", 10, 0.3, 95, 70},
                                {"another confidence", 10, 0.3, 50, 75},
                                {"another sample size", 11, 0.3, 50, 70},
                                {"another mean", 10, 0.2, 50, 70}};
  for (const Before& before : befores) {
    const bool same = &before == befores;
    Open(before.M, before.GM, 2, 1, before.U, before.D);
    p.Click("WilksCmb");
    Open(10, 0.3, 2, 1, 50, 70);
    Press();
    EXPECT_EQ(form.ComplianceLbl.visible, same) << before.what;
    if (same) continue;
    EXPECT_EQ(p.Record().UTL, 0) << before.what;
    EXPECT_EQ(Reason(),
              "Without a U above 50 % there is no confidence and no tolerance limit: nothing is "
              "decided.")
        << before.what;
  }
}

TEST_F(EN689OnTheScreen, WithoutACoverageAndATestBeforeNothingIsDecided) {
  Open(10, 0.3, 2, 1, 50);
  Press();
  EXPECT_EQ(p.LastBox().text, "Desired population Coverage U% in Tab Limits must be more than 50%");
  EXPECT_FALSE(form.ComplianceLbl.visible);
  EXPECT_EQ(Reason(),
            "Without a U above 50 % there is no confidence and no tolerance limit: nothing is "
            "decided.");
}

TEST_F(EN689OnTheScreen, TheMessageOnTheCoverageComesBeforeTheFractionIsSearched) {
  Open(10, 0.3, 2, 1, 50);
  std::size_t boxesAtFirstRepaint = 0;
  int repaints = 0;
  p.surface.onControl = [&](const screen::Control& control) {
    EXPECT_EQ(&control, &form.PercExTxB2);
    if (++repaints == 1) boxesAtFirstRepaint = p.box.shown.size();
  };
  Press();
  EXPECT_EQ(boxesAtFirstRepaint, 1u);
  EXPECT_GT(repaints, 5);
  EXPECT_EQ(form.PercExTxB2.text, "   92.11") << "the fraction does not depend on U";
}

TEST_F(EN689OnTheScreen, WithoutAConfidenceNoNumberOfTheTestBeforeStandsThere) {
  Open(10, 0.3, 2, 1, 50);
  p.Click("WilksCmb");
  Press();
  EXPECT_EQ(form.PercExTxB0.text, "");
  EXPECT_EQ(form.PercExTxB1.text, "");
  EXPECT_EQ(form.PercExLbl0.text,
            "Confidence that less than 50% of the exposure distribution exceeds OELV");
  EXPECT_EQ(form.PercExLbl1.text, "The 50%-tile upper tolerance limit with 70% confidence =");
}

TEST_F(EN689OnTheScreen, JustAboveHalfThePopulationIsSearchedWithoutAMessage) {
  Open(10, 0.3, 2, 1, 50.01);
  Press();
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_NE(form.PercExTxB1.text, "");
}

TEST_F(EN689OnTheScreen, TheBoxesAreRepaintedWithEachCandidate) {
  Open();
  ExposureSession record = p.Record();
  Texts limits;
  Texts fractions;
  compliance::En689Test(record, compliance::StandardisedDistance(BasisOf(record)),
                        [&](TestBox box, double value) {
                          (box == TestBox::Fraction ? fractions : limits).push_back(Number(value));
                        });
  const Repaints seen = PressAndWatch();
  ASSERT_GT(limits.size() * fractions.size(), 0u);
  ASSERT_EQ(seen.limit, limits);
  ASSERT_EQ(seen.fraction, fractions);
  EXPECT_EQ(seen.limit.back(), form.PercExTxB1.text);
  EXPECT_EQ(seen.fraction.back(), form.PercExTxB2.text);
}

TEST_F(EN689OnTheScreen, TheLayoutIsShownBeforeTheSearchesBegin) {
  Open();
  std::vector<std::string> titles;
  p.surface.onRepaint = [&] { titles.push_back(form.UTLFrm.text + form.PercExTxB0.text); };
  std::size_t repaintsBefore = 0;
  p.surface.onControl = [&](const screen::Control&) {
    if (repaintsBefore == 0) repaintsBefore = titles.size();
  };
  Press();
  ASSERT_EQ(repaintsBefore, 1u);
  EXPECT_EQ(titles.front(), form.UTLFrm.text + "   52.64");
  EXPECT_EQ(titles.size(), 2u) << "and refreshed once at the end";
}

TEST_F(EN689OnTheScreen, Above200DegreesOfFreedomTheSearchesEndFast) {
  Open(300, 0.3, 2, 1);
  const Repaints seen = PressAndWatch();
  EXPECT_LT(seen.limit.size() + seen.fraction.size(), 60u);
  EXPECT_TRUE(Green(form.ComplianceLbl));
}

TEST_F(EN689OnTheScreen, AWideSpreadOfASmallSampleStopsAt1E300) {
  Open(2, 1, 1000, 100, 99.99, 99.9);
  Press();
  EXPECT_EQ(form.PercExTxB1.text, "    >1.00E+300");
  EXPECT_GE(p.Record().UTL, 1e300) << "the record holds the candidate";
}

TEST_F(EN689OnTheScreen, AConfidenceThatMeetsTheWishInAStepEndsTheSearchThere) {
  Open(12, 1, 2, 5, 95, 72.332269309695704);
  const Repaints seen = PressAndWatch();
  EXPECT_EQ(p.Record().UTL, 4);
  EXPECT_EQ(seen.limit, (Texts{"     1", "     2", "     4"})) << "nothing was halved";
}

// The search follows in any case, and takes the text's place at its first step.
TEST_F(EN689OnTheScreen, AConfidenceBelow1E14IsToldUntilTheSearchBegins) {
  Open(10, 3, 2, 1);
  std::string atFirst;
  p.surface.onRepaint = [&] {
    if (atFirst.empty()) atFirst = form.PercExTxB1.text;
  };
  const Repaints seen = PressAndWatch();
  EXPECT_LT(p.Record().PercEx, 1e-14);
  EXPECT_EQ(atFirst, "    <1E-14");
  ASSERT_FALSE(seen.limit.empty());
  EXPECT_EQ(seen.limit.front(), Number(3));
  EXPECT_EQ(form.PercExTxB1.text, Number(p.Record().UTL));
}

TEST_F(EN689OnTheScreen, AFractionOfAllOrNothingIsAText) {
  Open(60, 0.001, 1.3, 100, 95, 95);
  Press();
  EXPECT_EQ(form.PercExTxB2.text, "   100        ");
  Open(10, 3, 2, 1);
  Press();
  EXPECT_EQ(form.PercExTxB2.text, "    <1.0E-46  ");
}
