#include <gmock/gmock.h>

#include "tests/support/start_screen.h"

// Name, sample size, and in mode "D" the geometric mean and standard deviation.
namespace {

using support::ProgramSession;

TEST(KnownStatistics, EachValidEntryOpensTheNextStep) {
  ProgramSession user;
  user.Click("DesOpt");
  user.Type("NameTxB", "Welders");
  EXPECT_FALSE(user.At("DescriptFrame").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  Focus(user);
  user.Type("SampSizTxB", "12");
  EXPECT_TRUE(user.At("DescriptFrame").visible);
  EXPECT_FALSE(user.At("BoodschFrame").visible);
  EXPECT_EQ(user.Text("DegreesLbl"), "11");
  EXPECT_EQ(user.Record().df, 11);
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_EQ(Focus(user), "GMTxB");
  user.Type("GMTxB", "1.5");
  EXPECT_EQ(Focus(user), "GSDTxB");
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_FALSE(user.At("OriModiCmd").visible);
  user.Type("GSDTxB", "2.5");
  EXPECT_TRUE(user.Record().IdentOk && user.Record().DescOk && user.Record().LimitsOk);
  EXPECT_TRUE(user.At("TabBasis").visible);
  EXPECT_TRUE(user.At("OriModiCmd").visible);
  EXPECT_TRUE(user.At("menuTools").visible);
  EXPECT_TRUE(user.At("menuExtrPol").enabled);
  EXPECT_FALSE(user.At("MenuPlot").visible);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(KnownStatistics, WhileGMIsOutOfRangeTheTabsAreHiddenAndTheFocusGoesToGM) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  ASSERT_TRUE(user.At("TabBasis").visible);
  user.Type("GMTxB", "20000");
  EXPECT_EQ(user.LastBox().text, "GM value too large");
  EXPECT_EQ(user.LastBox().title, "Geometric Mean");
  EXPECT_EQ(user.LastBox().icon, screen::Icon::Exclamation);
  EXPECT_EQ(user.Record().GM, 20000);
  EXPECT_EQ(user.Text("GMTxB"), "");
  EXPECT_FALSE(user.Record().DescOk);
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_FALSE(user.At("menuTools").visible);
  EXPECT_FALSE(user.At("OriModiCmd").visible);
  EXPECT_EQ(Focus(user), "GMTxB");
}

TEST(KnownStatistics, WhoWasToldThatGMIsTooLargeMayGoAndMendTheSize) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "20000", "2.5");
  ASSERT_EQ(user.LastBox().text, "GM value too large");
  const std::size_t told = user.box.shown.size();
  user.Visit("GMTxB");
  EXPECT_EQ(user.box.shown.size(), told);
  EXPECT_EQ(Focus(user), "");
  user.Type("GMTxB", "30000");
  EXPECT_EQ(user.box.shown.size(), told + 1) << "another error";
}

TEST(KnownStatistics, ARefusedGSDIsPulledToItsLimitAndKeepsTheFocus) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2000");
  EXPECT_EQ(user.LastBox().text, "GSD value too large");
  EXPECT_EQ(user.Record().GSD, 1000);
  EXPECT_EQ(user.Text("GSDTxB"), "1000");
  EXPECT_TRUE(user.Record().DescOk);
  EXPECT_EQ(Focus(user), "GSDTxB");
}

TEST(KnownStatistics, TheLongestAcceptedNumberSetsTheDecimals) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.2345", "2.5");
  EXPECT_EQ(user.Record().SigDigits, 6);
  EXPECT_EQ(user.Text("GMTxB"), "1.2345");
  user.Type("GSDTxB", "1000.12345678");
  EXPECT_EQ(user.Record().SigDigits, 6) << "a refused entry is no measure";
}

TEST(KnownStatistics, LookingAtAFieldChangesNothing) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Record().GM = 1.2345678901;
  user.Visit("GMTxB");
  EXPECT_EQ(user.Record().GM, 1.2345678901);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(Identification, EachFieldShowsItsWindowNumber) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  const std::pair<const char*, const char*> fields[] = {
      {"NameTxB", "4"}, {"SampSizTxB", "3a"}, {"GMTxB", "14"}, {"GSDTxB", "20"}};
  for (const auto& [field, window] : fields) {
    screen::Guarded(user.ports, user.At(field).GotFocus);
    EXPECT_EQ(user.Text("WindnrLbl"), window) << field;
  }
}

TEST(Identification, TheEnterKeyValidatesAsLeavingDoes) {
  ProgramSession user;
  user.Click("DesOpt");
  user.Enter("NameTxB", "Welders");
  user.Enter("SampSizTxB", "12");
  user.Enter("GMTxB", "1,5");
  user.Enter("GSDTxB", "2,5");
  EXPECT_EQ(user.Record().Name, "Welders");
  EXPECT_EQ(user.Record().GM, 1.5);
  EXPECT_TRUE(user.Record().DescOk);
}

TEST(Identification, ANameThatStartsWithADigitIsEmptiedAndAskedForAgain) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Type("NameTxB", "3 welders");
  EXPECT_EQ(user.LastBox().text, "Start exposure name with a letter");
  EXPECT_EQ(user.LastBox().title, "Name");
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Text("NameTxB"), "");
  EXPECT_FALSE(user.Record().IdentOk);
  EXPECT_FALSE(user.At("DescriptFrame").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_EQ(Focus(user), "NameTxB");
}

// A series from a file goes by its path, which may begin with what a typed name may not.
TEST(Identification, ANameThatTheUserDidNotChangeIsNeverRefused) {
  ProgramSession user;
  OpenAndReturn(user);
  const std::string path = user.Record().Name;
  ASSERT_EQ(path.front(), '/');
  user.Visit("NameTxB");
  user.At("NameTxB").text = "/as/a/field/may/show/it";
  screen::Guarded(user.ports, user.At("NameTxB").LostFocus);
  EXPECT_EQ(user.Record().Name, path);
  EXPECT_EQ(user.Text("NameTxB"), path);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(Identification, APathCanBeEditedWithoutLosingItsBeginning) {
  ProgramSession user;
  OpenAndReturn(user);
  const std::string path = user.Record().Name;
  user.Type("NameTxB", path + ", night shift");
  EXPECT_EQ(user.Record().Name, path + ", night shift");
  EXPECT_TRUE(user.box.shown.empty());
  user.Type("NameTxB", "3 welders");
  EXPECT_EQ(user.LastBox().text, "Start exposure name with a letter");
}

// The next field that is needed, not the next of those that were there before the entry.
TEST(NextField, BehindTheSizeOfANewSeriesIsContinue) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  Focus(user);
  user.Type("SampSizTxB", "3");
  EXPECT_EQ(Focus(user), "CmdContinu");
}

TEST(NextField, BehindARefusedSizeIsTheSizeAgain) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  Focus(user);
  user.Type("SampSizTxB", "1");
  EXPECT_EQ(Focus(user), "SampSizTxB");
  EXPECT_EQ(user.box.shown.size(), 1u);
}

TEST(NextField, BehindTheFirstValidGSDAreTheTabs) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "abc");
  EXPECT_EQ(Focus(user), "GSDTxB");
  user.Type("GSDTxB", "2.5");
  EXPECT_EQ(Focus(user), "TabBasis");
}

TEST(NextField, BehindOneThatIsOnlyLookedAtIsThatOfTheEye) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  for (const char* field : {"NameTxB", "SampSizTxB", "GMTxB", "GSDTxB"}) {
    Focus(user);
    user.Visit(field);
    EXPECT_EQ(Focus(user), "") << field;
  }
}

TEST(Identification, TheSampleSizeRunsFromTwoToTwoThousand) {
  const std::tuple<const char*, bool, const char*> entries[] = {
      {"1", false, "A Sample size M of less than two is too small"},
      {"2", true, ""},
      {"2000", true, ""},
      {"2001", false, "A Sample size M of more than two thousand  is too large"}};
  for (const auto& [entry, valid, message] : entries) {
    SCOPED_TRACE(entry);
    ProgramSession user;
    user.Click("DesOpt");
    user.Type("NameTxB", "Welders");
    user.Type("SampSizTxB", entry);
    EXPECT_EQ(user.Record().IdentOk, valid);
    EXPECT_EQ(user.At("DescriptFrame").visible, valid);
    EXPECT_EQ(user.box.shown.empty(), valid);
    if (valid) continue;
    EXPECT_EQ(user.LastBox().text, message);
    EXPECT_EQ(Focus(user), "SampSizTxB");
  }
}

TEST(Identification, TheUpDownPairStepsTheSampleSizeByOneWithinItsLimits) {
  ProgramSession user;
  user.Click("DesOpt");
  user.Type("NameTxB", "Welders");
  user.Up("SampSize_UpD");
  EXPECT_EQ(user.Record().M, 2);
  user.Up("SampSize_UpD");
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_EQ(user.Text("SampSizTxB"), "3");
  EXPECT_EQ(user.Record().df, 2);
  user.Down("SampSize_UpD");
  user.Down("SampSize_UpD");
  EXPECT_EQ(user.Record().M, 2);
  user.Type("SampSizTxB", "2000");
  user.Up("SampSize_UpD");
  EXPECT_EQ(user.Record().M, 2000);
}

TEST(Identification, InModeRALargerSampleLeavesTheSeriesIncompleteUntilItIsFilled) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "6");
  EXPECT_EQ(user.Record().C.size(), 7u);
  EXPECT_EQ(user.Record().LnC.size(), 7u);
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_FALSE(user.Record().DescOk);
  EXPECT_EQ(user.Record().df, 0) << "no estimates yet, so no degrees of freedom";
  EXPECT_TRUE(user.At("TabBasis").visible);
  EXPECT_TRUE(user.At("CmdContinu").visible);
  EXPECT_FALSE(user.At("OriModiCmd").visible);
}

TEST(Identification, InModeRASmallerSampleDropsNoOutcomeYet) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "3");
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_FALSE(user.Record().RawIncomplete);
  user.Type("SampSizTxB", "4");
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 1, 2, 4, 8}));
  EXPECT_FALSE(user.Record().RawIncomplete);
}

TEST(Identification, ARefusedSampleSizeLeavesTheSeriesAloneAndHidesContinue) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "1");
  EXPECT_EQ(user.Record().C.size(), 5u);
  EXPECT_FALSE(user.Record().IdentOk);
  EXPECT_FALSE(user.At("CmdContinu").visible);
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  user.Type("SampSizTxB", "4");
  EXPECT_TRUE(user.At("CmdContinu").visible);
  EXPECT_TRUE(user.At("TabBasis").visible);
}

TEST(Identification, InModeRNameAndSampleSizeShowAndCanBeChanged) {
  ProgramSession user;
  OpenAndReturn(user);
  EXPECT_EQ(user.Text("NameTxB"), user.Record().Name);
  EXPECT_EQ(user.Text("SampSizTxB"), "4");
  for (const char* field : {"NameTxB", "SampSizTxB"}) EXPECT_FALSE(user.At(field).locked) << field;
  EXPECT_TRUE(user.At("IdentFrame").visible);
  EXPECT_FALSE(user.At("BoodschFrame").visible);
  EXPECT_FALSE(user.At("DescriptFrame").visible);
  EXPECT_TRUE(user.At("CmdContinu").visible);
  EXPECT_TRUE(user.At("OriModiCmd").visible);
}

TEST(Limits, ALimitOutOfRangeBecomesOneAndCountsFromTheNextLook) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Record().OELV = 2E+10;
  user.Visit("NameTxB");
  EXPECT_EQ(user.Record().OELV, 1);
  EXPECT_FALSE(user.Record().LimitsOk);
  EXPECT_EQ(user.Record().RefPeriod, "8 hours");
  EXPECT_EQ(user.Record().Duration, "8 hours");
  user.Visit("NameTxB");
  EXPECT_TRUE(user.Record().LimitsOk);
  EXPECT_EQ(user.Record().U, 95);
  EXPECT_EQ(user.Record().D, 70);
}

}  // namespace
