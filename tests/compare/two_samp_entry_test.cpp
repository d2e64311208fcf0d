#include <vector>

#include "tests/compare/comparison_screen.h"

// Entering reference values on the comparison screen: boxes and keys.
namespace {

using screen::Answer;

class ReferenceEntry : public ComparisonScreen {
 protected:
  ReferenceEntry() {
    p.Record().SigDigits = 4;
    Start();
  }

  struct Case {
    const char* box;
    const char* text;
    double ExposureSession::*field;
    double value;
    const char* shown;
    const char* title;
    const char* message;
  };
  void ExpectRefused(const Case& c) {
    EXPECT_EQ(TakeBox().text, c.message) << c.box << " " << c.text;
    EXPECT_EQ(p.Record().MsgTitle, c.title) << c.box << " " << c.text;
    EXPECT_EQ(p.Record().*c.field, c.value) << c.box << " " << c.text;
    EXPECT_EQ(p.Text(c.box), c.shown) << c.box << " " << c.text;
    EXPECT_EQ(form.focusWanted, &p.At(c.box)) << c.box << " " << c.text;
    ExpectNoResults(std::string(c.box) + " " + c.text);
  }

  const std::vector<Case> refused = {
      {"SampSizTxB2", "1", &ExposureSession::M2, 2, "2", "Sample size",
       "A Sample size M of less than two is too small"},
      {"SampSizTxB2", "30001", &ExposureSession::M2, 30000, "30000", "Sample size",
       "A Sample size M of more than thirty thousand is too large"},
      {"SampSizTxB2", "12.5", &ExposureSession::M2, 12, "12", "Sample size",
       "Enter a Sample size integer value between 2 and 2000"},
      {"SampSizTxB2", "many", &ExposureSession::M2, 2, "2", "Sample size",
       "Enter a Sample size integer value between 2 and 2000"},
      {"GMTxB2", "20000", &ExposureSession::GM2, 20000, "20000", "Geometric Mean",
       "GM value too large"},
      {"GMTxB2", "0.00001", &ExposureSession::GM2, 0.00001, "1.0E-5", "Geometric Mean",
       "GM value too small"},
      {"GMTxB2", "none", &ExposureSession::GM2, 0, "0", "Geometric Mean",
       "Enter a GM value between 0,0001 and 10000"},
      {"GSDTxB2", "1", &ExposureSession::GSD2, 1.001, "1.001", "Geometric Standard Deviation",
       "GSD value too small"},
      {"GSDTxB2", "1001", &ExposureSession::GSD2, 1000, "1000", "Geometric Standard Deviation",
       "GSD value too large"},
  };
};

TEST_F(ReferenceEntry, TabAndEnterTakeTheTextAndCompare) {
  p.Type("SampSizTxB2", "25");
  EXPECT_EQ(p.Record().M2, 25);
  EXPECT_TRUE(Results());
  EXPECT_EQ(p.box.shown.size(), 1u) << "the question on the variances";
  p.Enter("GMTxB2", "0,5");
  EXPECT_EQ(p.Record().GM2, 0.5);
  EXPECT_EQ(form.GMTxB2.text, "0.5");
  EXPECT_EQ(p.box.shown.size(), 2u);
  p.Type("GSDTxB2", "3");
  EXPECT_EQ(p.Record().GSD2, 3);
  EXPECT_EQ(p.box.shown.size(), 3u);
  EXPECT_TRUE(Results());
}

TEST_F(ReferenceEntry, LeavingByTheMouseTakesTheTextWithoutComparing) {
  for (const auto& [box, text] :
       {std::pair("SampSizTxB2", "25"), std::pair("GMTxB2", "0.5"), std::pair("GSDTxB2", "3")}) {
    p.TypeAndClickAway(box, text);
    EXPECT_EQ(p.Text(box), text);
    ExpectNoResults(box);
  }
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(p.Record().M2, 25);
  EXPECT_EQ(p.Record().GM2, 0.5);
  EXPECT_EQ(p.Record().GSD2, 3);
}

TEST_F(ReferenceEntry, AChangedTextHidesTheResultsAndOffersTheCalculation) {
  for (const char* box : {"SampSizTxB2", "GMTxB2", "GSDTxB2"}) {
    Calculate();
    ASSERT_TRUE(Results()) << box;
    ASSERT_FALSE(form.CalcCmb.visible) << box;
    p.At(box).text = "5";
    p.At(box).Change();
    ExpectNoResults(box);
    EXPECT_TRUE(form.CalcCmb.visible) << box;
  }
}

TEST_F(ReferenceEntry, WhatIsRefusedByTabIsToldAndNotCompared) {
  for (const Case& c : refused) {
    p.Type(c.box, c.text);
    ExpectRefused(c);
    Visit(Answer::Yes);
    p.Record().GM2 = 0.3;
  }
}

TEST_F(ReferenceEntry, WhatIsRefusedByEnterIsToldAndNotCompared) {
  for (const Case& c : refused) {
    p.Enter(c.box, c.text);
    ExpectRefused(c);
    Visit(Answer::Yes);
    p.Record().GM2 = 0.3;
  }
}

TEST_F(ReferenceEntry, WhatIsRefusedByTheMouseIsToldAndKeepsTheFocus) {
  for (const Case& c : refused) {
    p.TypeAndClickAway(c.box, c.text);
    ExpectRefused(c);
    Visit(Answer::Yes);
    p.Record().GM2 = 0.3;
  }
}

TEST_F(ReferenceEntry, TheEndsOfEachRangeAreAccepted) {
  for (const auto& [box, text] : {std::pair("SampSizTxB2", "2"), std::pair("SampSizTxB2", "30000"),
                                  std::pair("GMTxB2", "0.0001"), std::pair("GMTxB2", "10000"),
                                  std::pair("GSDTxB2", "1.001"), std::pair("GSDTxB2", "1000")}) {
    p.TypeAndClickAway(box, text);
    EXPECT_EQ(p.Record().InputState, 0) << box << " " << text;
    p.Enter(box, text);
    EXPECT_TRUE(Results()) << box << " " << text;
  }
  for (const screen::Message& message : p.box.shown)
    EXPECT_EQ(message.title, "GSDs from the same population?");
}

TEST_F(ReferenceEntry, AnEmptySampleSizeChangesNothing) {
  p.Type("SampSizTxB2", "");
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(p.Record().M2, 10);
  EXPECT_EQ(form.SampSizTxB2.text, "10");
  EXPECT_FALSE(Results()) << "there was no entry to compare";
  EXPECT_NE(form.focusWanted, &form.SampSizTxB2);
}

TEST_F(ReferenceEntry, AnEmptyGeometricMeanOrDeviationKeepsItsValueAndIsTold) {
  p.Type("GMTxB2", "");
  EXPECT_EQ(TakeBox().text, "Enter a GM value between 0,0001 and 10000");
  EXPECT_EQ(form.GMTxB2.text, "0.3");
  p.Type("GSDTxB2", "");
  EXPECT_EQ(TakeBox().text, "Enter a GSD value between 1,001 and 1000");
  EXPECT_EQ(form.GSDTxB2.text, "2");
  EXPECT_FALSE(Results());
}

TEST_F(ReferenceEntry, WhileOneValueIsOutOfRangeNoOtherComparesAndThereIsNoButton) {
  p.TypeAndClickAway("GMTxB2", "20000");
  EXPECT_FALSE(form.CalcCmb.visible);
  p.box.shown.clear();
  p.Enter("SampSizTxB2", "25");
  EXPECT_TRUE(p.box.shown.empty());
  ExpectNoResults("a good size beside a mean out of range");
  EXPECT_FALSE(form.CalcCmb.visible);
  p.Enter("GMTxB2", "0.5");
  EXPECT_TRUE(Results());
}

TEST_F(ReferenceEntry, OfAPopulationTheSampleSizeDoesNotMatter) {
  p.Click("PopOpt");
  p.Record().M2 = 0;
  p.Enter("GMTxB2", "0.5");
  EXPECT_TRUE(Results());
  p.Click("SampOpt");
  EXPECT_FALSE(form.CalcCmb.visible);
}

TEST_F(ReferenceEntry, AButtonPressedOverAnEntryOutOfRangeTellsItAndComparesNothing) {
  p.TypeAndClickAway("GMTxB2", "20000");
  p.TypeAndClickAway("SampSizTxB2", "25");
  p.box.shown.clear();
  p.At("SampSizTxB2").Change();
  ASSERT_TRUE(form.CalcCmb.visible) << "while a text is being typed";
  Calculate();
  EXPECT_EQ(TakeBox().text, "GM value too large");
  EXPECT_EQ(form.focusWanted, &form.GMTxB2);
  ExpectNoResults("a press of the button");
}

// The user has just been told; the value that was set instead is looked at before it is compared.
TEST_F(ReferenceEntry, TheButtonThatTookTheFocusFromARefusedEntryComparesAtTheNextPress) {
  p.TypeAndClickAway("GSDTxB2", "5000");
  EXPECT_EQ(TakeBox().text, "GSD value too large");
  EXPECT_TRUE(form.CalcCmb.visible);
  Calculate();
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_FALSE(Results());
  Calculate();
  EXPECT_TRUE(Results());
}

TEST_F(ReferenceEntry, TabThroughUntouchedBoxesComparesOnceAndThenOnlyMovesOn) {
  p.Visit("SampSizTxB2");
  EXPECT_TRUE(Results());
  p.Visit("GMTxB2");
  p.Visit("GSDTxB2");
  EXPECT_EQ(p.box.shown.size(), 1u);
  p.Click("EqualOpt");
  p.Visit("GSDTxB2");
  EXPECT_EQ(p.box.shown.size(), 2u) << "no result stands behind another choice";
}

TEST_F(ReferenceEntry, AnEntryThatWasToldIsNotToldAgainByTabOrByLeavingIt) {
  p.Type("GMTxB2", "20000");
  EXPECT_EQ(TakeBox().text, "GM value too large");
  form.focusWanted = nullptr;
  p.Visit("GMTxB2");
  screen::Guarded(p.ports, form.GMTxB2.LostFocus);
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(form.focusWanted, nullptr) << "nothing keeps the user in the box";
  ExpectNoResults("a refused entry");
  EXPECT_EQ(p.Text("GMTxB2"), "20000");
}

TEST_F(ReferenceEntry, AnEntryThatWasToldIsToldAgainWhereItIsTypedAgainOrIsToBeCompared) {
  p.Type("GMTxB2", "20000");
  EXPECT_EQ(TakeBox().text, "GM value too large");
  p.Type("GMTxB2", "20000");
  EXPECT_EQ(TakeBox().text, "GM value too large");
  p.Visit("GMTxB2");
  p.Click("CalcCmb");
  EXPECT_EQ(TakeBox().text, "GM value too large") << "by the button";
  screen::Guarded(p.ports, form.GMTxB2.EnterKey);
  EXPECT_EQ(TakeBox().text, "GM value too large") << "by the Enter key";
}

TEST_F(ReferenceEntry, AValueOutOfRangeThatNobodyTypedIsToldOnce) {
  p.Record().GM2 = 20000;
  p.Visit("GMTxB2");
  EXPECT_EQ(TakeBox().text, "GM value too large");
  p.Visit("GMTxB2");
  EXPECT_TRUE(p.box.shown.empty());
  p.Record().GM2 = 30000;
  p.Visit("GMTxB2");
  EXPECT_EQ(TakeBox().text, "GM value too large") << "another value";
}

// The record may still hold the result of the values that came back; the screen shows none.
TEST_F(ReferenceEntry, TabComparesWhereAStepAndTheStepBackHaveTakenTheResultsAway) {
  Calculate();
  ASSERT_TRUE(Results());
  const std::string probability = form.GMInfTxb.text;
  p.Up("SampSiz2_UpD");
  p.Down("SampSiz2_UpD");
  ASSERT_EQ(p.Record().M2, 10);
  ExpectNoResults("the steps");
  p.Visit("GMTxB2");
  EXPECT_TRUE(Results());
  EXPECT_EQ(form.GMInfTxb.text, probability);
}

TEST_F(ReferenceEntry, LookingAtARoundedValueDoesNotChangeIt) {
  p.Record().SigDigits = 3;
  p.Enter("GMTxB2", "0.123456789");
  const std::string shown = form.GMTxB2.text;
  EXPECT_NE(shown, "0.123456789");
  p.Visit("GMTxB2");
  EXPECT_EQ(p.Record().GM2, 0.123456789);
  EXPECT_EQ(form.GMTxB2.text, shown);
}

TEST_F(ReferenceEntry, ATabClickTakesOverWhatIsBeingTyped) {
  form.GMTxB2.text = "0.8";
  form.GMTxB2.touched = true;
  EXPECT_TRUE(p.Tab("descript"));
  EXPECT_EQ(p.Record().GM2, 0.8);
}

}  // namespace
