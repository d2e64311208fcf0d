#include <gmock/gmock.h>

#include "tests/support/start_screen.h"

// The choice between a raw series and known descriptive statistics.
namespace {

using screen::Answer;
using support::ProgramSession;

// A series with one outcome changed since it was read.
void OpenAndEdit(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  support::EditOutcome(user, 0, "1.5");
  ASSERT_TRUE(user.Tab("basis"));
}

// What a mouse does: the focus comes first, the click after it.
void MouseClick(ProgramSession& user, const std::string& name) {
  screen::Guarded(user.ports, user.At(name).GotFocus);
  user.Click(name);
}

void ExpectTypedQuestion(const screen::Message& box) {
  EXPECT_EQ(box.text, "Are you sure you want stop analyzing Welders ?");
  EXPECT_EQ(box.title, "Descriptive statistics");
  EXPECT_EQ(box.icon, screen::Icon::Question);
  EXPECT_EQ(box.buttons, screen::Buttons::YesNo);
  EXPECT_EQ(box.defaultAnswer, Answer::No);
  EXPECT_EQ(box.advice, "What was typed is not kept in any file.");
}

TEST(DataType, RawDataAsksForTheFile) {
  ProgramSession user;
  user.Click("RawOpt");
  ExpectKindOfData(user, "R", "8",
                   "Analyze a series sampling outcome. Click on &File and make your choice.\r");
  EXPECT_TRUE(user.At("menuopen").enabled);
  EXPECT_TRUE(user.At("MenuNewVkrFil").enabled);
  EXPECT_FALSE(user.At("menuExtrPol").enabled);
  EXPECT_FALSE(user.At("IdentFrame").visible);
}

TEST(DataType, KnownStatisticsAskForNameAndSampleSize) {
  ProgramSession user;
  user.Click("DesOpt");
  ExpectKindOfData(user, "D", "7",
                   "Analyze a Lognormal distribution using his descriptive statistics. "
                   "Enter a name and the sample size.\r");
  for (const char* menu : {"menuopen", "MenuNewVkrFil", "menuExtrPol", "MenuPlot"})
    EXPECT_FALSE(user.At(menu).enabled) << menu;
  EXPECT_TRUE(user.At("IdentFrame").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_FALSE(user.At("DescriptFrame").visible);
  EXPECT_FALSE(user.At("CmdContinu").visible);
  EXPECT_FALSE(user.At("TabBasis").visible);
  EXPECT_EQ(Focus(user), "NameTxB");
}

// The Tab key and the arrows pass by.
TEST(DataType, TheFocusAloneChoosesNothing) {
  for (const char* option : {"RawOpt", "DesOpt"}) {
    ProgramSession user;
    OpenAndEdit(user);
    screen::Guarded(user.ports, user.At(option).GotFocus);
    screen::Guarded(user.ports, user.At(option).LostFocus);
    EXPECT_EQ(user.Record().Mode, DataMode::Raw) << option;
    EXPECT_EQ(user.Record().M, 4) << option;
    EXPECT_TRUE(user.box.shown.empty()) << option;
  }
}

TEST(DataType, RawDataAsksOnceBeforeTypedStatisticsGo) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Click("RawOpt");
  ASSERT_EQ(user.box.shown.size(), 1u);
  ExpectTypedQuestion(user.LastBox());
  EXPECT_EQ(user.Record().Mode, DataMode::Statistics);
  EXPECT_EQ(user.Record().GM, 1.5);
  EXPECT_TRUE(user.At("DesOpt").ticked);
  EXPECT_FALSE(user.At("RawOpt").ticked);
  user.box.answers = {Answer::Yes};
  user.Click("RawOpt");
  EXPECT_EQ(user.box.shown.size(), 2u);
  EXPECT_EQ(user.Record().Mode, DataMode::Raw);
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Record().GM, 0);
  EXPECT_EQ(user.Text("WindnrLbl"), "8");
  EXPECT_THAT(user.Text("BoodschLbl"), testing::StartsWith("Analyze a series"));
  EXPECT_FALSE(user.At("TabBasis").visible);
}

TEST(DataType, ANameAloneIsTypedToo) {
  ProgramSession user;
  user.Click("DesOpt");
  user.Type("NameTxB", "Welders");
  user.Click("Menuclose");
  ASSERT_EQ(user.box.shown.size(), 1u);
  ExpectTypedQuestion(user.LastBox());
  EXPECT_EQ(user.Record().Name, "Welders");
}

TEST(DataType, WhereNothingWasTypedNothingIsAsked) {
  ProgramSession user;
  user.Click("DesOpt");
  user.Click("RawOpt");
  EXPECT_EQ(user.Record().Mode, DataMode::Raw);
  user.Click("DesOpt");
  EXPECT_EQ(user.Record().Mode, DataMode::Statistics);
  user.Click("Menuclose");
  ExpectNoSeries(user);
}

// The name field is left by the click, and tells what is missing; the choice takes it away.
TEST(DataType, GoingBackToRawDataTellsOnceThatTheNameIsMissing) {
  ProgramSession user;
  user.Click("DesOpt");
  screen::Guarded(user.ports, user.At("NameTxB").LostFocus);
  EXPECT_EQ(user.box.shown.size(), 1u);
  user.Click("RawOpt");
  EXPECT_FALSE(user.At("IdentFrame").visible);
  screen::Guarded(user.ports, user.At("NameTxB").LostFocus);
  EXPECT_EQ(user.box.shown.size(), 1u);
  EXPECT_FALSE(user.At("IdentFrame").visible);
}

TEST(DataType, RawDataWithoutASeriesShowsNoNameAndNoSizeAlsoBehindADeclinedExit) {
  ProgramSession user;
  user.Click("RawOpt");
  user.Click("MenuExit");
  EXPECT_FALSE(user.program.EndRequested());
  EXPECT_FALSE(user.At("IdentFrame").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_THAT(user.Text("BoodschLbl"), testing::StartsWith("Analyze a series"));
}

TEST(DataType, KnownStatisticsEndASavedSeriesWithoutAQuestion) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Click("DesOpt");
  EXPECT_EQ(user.Record().Mode, DataMode::Statistics);
  EXPECT_EQ(user.Text("NameTxB"), "");
  EXPECT_EQ(user.Record().C.size(), 1u);
  ExpectNoSeries(user);
}

TEST(DataType, RawDataEndsASavedSeriesWithoutAQuestion) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Click("RawOpt");
  EXPECT_EQ(user.Record().Mode, DataMode::Raw);
  EXPECT_FALSE(user.At("IdentFrame").visible);
  ExpectNoSeries(user);
}

TEST(DataType, EitherChoiceAsksBeforeUnsavedOutcomesGo) {
  for (const char* option : {"RawOpt", "DesOpt"}) {
    ProgramSession user;
    OpenAndEdit(user);
    user.box.answers = {Answer::Yes};
    user.Click(option);
    ASSERT_EQ(user.box.shown.size(), 1u) << option;
    EXPECT_EQ(user.Record().M, 0) << option;
    EXPECT_EQ(user.Record().Mode,
              std::string(option) == "RawOpt" ? DataMode::Raw : DataMode::Statistics);
  }
}

TEST(DataType, NoKeepsTheUnsavedSeriesAndItsOption) {
  for (const char* option : {"RawOpt", "DesOpt"}) {
    ProgramSession user;
    OpenAndEdit(user);
    user.Click(option);
    EXPECT_EQ(user.box.shown.size(), 1u) << option;
    EXPECT_EQ(user.Record().Mode, DataMode::Raw) << option;
    EXPECT_EQ(user.Record().M, 4) << option;
    EXPECT_EQ(user.Record().C[1], 1.5) << option;
    EXPECT_TRUE(user.At("RawOpt").ticked) << option;
    EXPECT_FALSE(user.At("DesOpt").ticked) << option;
  }
}

// One wish, one question, and the answer must not stick to the next wish.
TEST(DataType, AMouseClickOnKnownStatisticsAsksOnceEachTime) {
  ProgramSession user;
  OpenAndEdit(user);
  MouseClick(user, "DesOpt");
  EXPECT_EQ(user.box.shown.size(), 1u);
  EXPECT_EQ(Focus(user), "RawOpt");
  MouseClick(user, "DesOpt");
  EXPECT_EQ(user.box.shown.size(), 2u);
  EXPECT_EQ(user.Record().Mode, DataMode::Raw);
  user.box.answers = {Answer::Yes};
  MouseClick(user, "DesOpt");
  EXPECT_EQ(user.box.shown.size(), 3u);
  EXPECT_EQ(user.Record().Mode, DataMode::Statistics);
}

TEST(DataType, ChoosingKnownStatisticsAgainKeepsWhatWasEntered) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  Focus(user);
  screen::Guarded(user.ports, user.At("DesOpt").GotFocus);
  EXPECT_EQ(Focus(user), "") << "the keyboard passes by";
  user.Click("DesOpt");
  EXPECT_EQ(user.Record().Name, "Welders");
  EXPECT_EQ(user.Record().M, 12);
  EXPECT_EQ(user.Record().GM, 1.5);
  EXPECT_EQ(user.Record().GSD, 2.5);
  EXPECT_EQ(Focus(user), "NameTxB");
}

}  // namespace
