#include <gmock/gmock.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "session/global_bas.h"
#include "tests/support/program_session.h"
#include "ucl/land_exact.h"
#include "ucl/ucl_form.h"

// What the user sees while Land's search runs.
namespace {

using navigation::ScreenId;
using support::ProgramSession;

class LandProgress : public testing::Test {
 protected:
  LandProgress() {
    p.EnterStatistics("Welders", "10", "1", "2.7");
    p.Record().OELV = 5;
    p.Record().D = 95;
    p.program.Open(ScreenId::UCL);
    p.surface.onControl = [this](const screen::Control& control) {
      EXPECT_TRUE(form.busyPointer);
      EXPECT_TRUE(hulp.shown);
      if (control.name == "UCLTxB") limits.push_back(control.text);
      if (control.name == "ConFactTxb") factors.push_back(control.text);
      if (control.name == "Secant") steps.insert(control.text);
    };
  }
  void OnEachShowing(std::function<void()> look) {
    p.surface.onRepaint = [this, look = std::move(look)] {
      if (hulp.shown) look();
    };
  }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }

  ProgramSession p;
  ucl::UCLForm& form = dynamic_cast<ucl::UCLForm&>(*p.program.FormByName("UCLForm"));
  ucl::LandHulpForm& hulp = form.landHulp;
  std::vector<std::string> limits;   // the field of the limit at each of its repaints
  std::vector<std::string> factors;  // the box of the factor
  std::set<std::string> steps;       // the label of the step, where it is repainted alone
};

}  // namespace

TEST_F(LandProgress, TheWindowHasItsTexts) {
  EXPECT_EQ(hulp.caption, "Calculating the Confidence Factor");
  EXPECT_EQ(hulp.InitLbl.text, "Initial Interval");
  EXPECT_EQ(hulp.StreepjeLbl0.text, "to");
  EXPECT_EQ(hulp.StreepjeLbl1.text, "to");
  EXPECT_EQ(hulp.ConFactLbl.text,
            "Land's factor C to calculate the upper confidence limit of the aritmetic mean in a "
            "Lognormal distribution");
  EXPECT_FALSE(hulp.shown);
  EXPECT_EQ(p.program.FormByName("LandHulpForm"), &hulp);
}

TEST_F(LandProgress, OpensWithTheSearchAndIsGoneAtItsEnd) {
  int showings = 0;
  OnEachShowing([&] {
    ++showings;
    EXPECT_TRUE(form.busyPointer);
    EXPECT_TRUE(form.UCLTxB.visible);
  });
  p.Click("LandCmb");
  EXPECT_GT(showings, 40);  // some twenty searches, each of several steps
  EXPECT_FALSE(hulp.shown);
  EXPECT_FALSE(form.busyPointer);
}

TEST_F(LandProgress, ShowsTheIntervalTheBracketAndTheStep) {
  const std::string first = Number(-7.5 * std::log(2.7) / 3);
  const std::string second = Number(10 * std::log(2.7) * std::log(2.7) / 3);
  std::set<std::string> shown;
  int starts = 0;
  OnEachShowing([&] {
    if (hulp.InitTxb0.text.empty()) return;  // before the first interval is known
    EXPECT_EQ(hulp.InitTxb0.text, first);
    EXPECT_EQ(hulp.InitTxb1.text, second);
    EXPECT_EQ(hulp.SecantTxb0.text.empty(), hulp.SecantTxb1.text.empty());
    if (hulp.SecantTxb0.text.empty()) {
      ++starts;
      EXPECT_EQ(hulp.ConFactTxb.text, "");
      return;
    }
    shown.insert(hulp.Secant.text);
  });
  p.Click("LandCmb");
  EXPECT_EQ(starts, 22);  // 21 trials of a confidence, and the limit itself
  EXPECT_THAT(shown, testing::Contains("secant + quadratic ......"));
  EXPECT_THAT(steps, testing::ElementsAre("secant +bisection ......"));
}

TEST_F(LandProgress, ShowsEveryFactorAndEveryTrialLimit) {
  p.Click("LandCmb");
  ASSERT_EQ(limits.size(), 22u);
  ASSERT_EQ(factors.size(), 22u);
  EXPECT_EQ(limits.back(), Number(std::exp(p.Record().UCL)));
  const UCLBAS::LandLimit last = UCLBAS::LandExactUCL(0.5, 9, std::log(2.7), 0, 95);
  EXPECT_EQ(factors.back(), Number(last.Factor));
  const std::set<std::string> different(limits.begin(), limits.end());
  EXPECT_GT(different.size(), 8u);
}

TEST_F(LandProgress, NothingOfAnEarlierSearchStandsThereAtTheStart) {
  p.Click("LandCmb");
  bool first = true;
  OnEachShowing([&] {
    if (!first) return;
    first = false;
    for (const screen::Control* control : {&hulp.InitTxb0, &hulp.InitTxb1, &hulp.SecantTxb0,
                                           &hulp.SecantTxb1, &hulp.ConFactTxb, &hulp.Secant})
      EXPECT_EQ(control->text, "") << control->name;
    EXPECT_EQ(form.UCLTxB.text, "");
    EXPECT_EQ(form.PercExTxB.text, "");
  });
  p.Click("LandCmb");
  EXPECT_FALSE(first);
}

TEST_F(LandProgress, ALimitBeyondNumbersShowsAsInfiniteWhileTheFieldKeepsItsValue) {
  p.program.Open(ScreenId::Basis);
  p.EnterStatistics("Welders", "3", "10000", "1000");
  p.Record().OELV = 1e10;
  p.Record().D = 99.75;
  p.program.Open(ScreenId::UCL);
  p.Click("LandCmb");
  ASSERT_FALSE(limits.empty());
  EXPECT_EQ(limits.back(), "infinite");
  EXPECT_NEAR(p.Record().UCL, 9540.682119506559, 1e-8);
}

// The report of the search calls only what lies above 701 infinite; the message comes at 701.
TEST_F(LandProgress, ALimitOf701IsANumberInTheSearchAndABoxAtItsEnd) {
  ExposureSession& s = p.Record();
  s.D = 99.75;
  const auto limit = [&s] {
    return UCLBAS::LandExactUCL(0.5, s.df, std::log(s.GSD), std::log(s.GM), s.D).UCL;
  };
  double below = 2.7;
  double from = 1e5;
  for (double middle = 0; middle = below + (from - below) / 2, below < middle && middle < from;) {
    s.GSD = middle;
    (limit() < 701 ? below : from) = middle;
  }
  s.GSD = from;
  // A step of GSD is one of many digits of 701; GM has finer ones.
  for (int i = 0; i < 100 && limit() != 701; ++i) s.GM *= 1 + (701 - limit());
  ASSERT_EQ(limit(), 701);
  p.Click("LandCmb");
  ASSERT_EQ(s.UCL, 701);
  EXPECT_EQ(limits.back(), Number(std::exp(701)));
  EXPECT_EQ(p.LastBox().title, "UCL");
  EXPECT_EQ(p.LastBox().text,
            "One-sided upper confidence limit of the Lognormal mean is Exp(" + Number(701) + ").");
  EXPECT_EQ(form.UCLTxB.text, "");
}

TEST_F(LandProgress, AFaultBeforeTheMessageHasHiddenTheWindow) {
  p.Record().GSD = 1;
  bool opened = false;
  OnEachShowing([&] { opened = true; });
  p.Click("LandCmb");
  EXPECT_TRUE(opened);
  EXPECT_EQ(p.box.shown.size(), 1u);
  EXPECT_FALSE(hulp.shown);
  EXPECT_FALSE(form.busyPointer);
}

TEST_F(LandProgress, ItsBoxesAreForReadingOnly) {
  for (const screen::Control* control : hulp.controls)
    EXPECT_EQ(control->locked, control->kind == screen::Kind::TextBox) << control->name;
}
