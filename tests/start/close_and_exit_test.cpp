#include <gmock/gmock.h>

#include "tests/support/program_session.h"

// Closing the data and leaving the program.
namespace {

using screen::Answer;
using support::ProgramSession;

void ExpectNothingIsLeft(const ExposureSession& record) {
  EXPECT_EQ(record.Name + record.Unit + record.RefPeriod + record.Duration, "");
  EXPECT_EQ(record.MsgText + record.MsgTitle + record.LogName, "");
  for (double number : {record.M, record.df, record.GM, record.GSD}) EXPECT_EQ(number, 0);
  EXPECT_EQ(record.SortOrder, "Onbekend");
  EXPECT_EQ(record.InputState, 0);
  for (bool flag : {record.DetecOn, record.RegressionOn, record.IdentOk, record.DescOk,
                    record.LimitsOk, record.RawIncomplete, record.ModifyMode})
    EXPECT_FALSE(flag);
}

void ExpectOpeningScreen(ProgramSession& user) {
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_THAT(user.Text("BoodschLbl"), testing::StartsWith(" What kind of exposure data"));
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_TRUE(user.At("DesRawFrame").visible);
  EXPECT_TRUE(user.At("RawOpt").ticked);
  EXPECT_FALSE(user.At("DesOpt").ticked);
  for (const char* name : {"DesRawFrame", "menuopen", "MenuNewVkrFil"})
    EXPECT_TRUE(user.At(name).enabled) << name;
  EXPECT_FALSE(user.At("menuExtrPol").enabled);
  for (const char* name : {"IdentFrame", "DescriptFrame", "menuTools", "OriModiCmd", "CmdContinu",
                           "TabBasis", "MenuPlot"})
    EXPECT_FALSE(user.At(name).visible) << name;
  for (const char* name : {"NameTxB", "SampSizTxB", "GMTxB", "GSDTxB", "DegreesLbl"})
    EXPECT_EQ(user.Text(name), "") << name;
  EXPECT_FALSE(user.At("NameTxB").locked);
  EXPECT_FALSE(user.At("SampSizTxB").locked);
  EXPECT_EQ(user.Text("OriModiCmd"), "&Modify");
}

TEST(CloseAllData, EndsASeriesWithNoKindOfDataChosen) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Click("DetecChB");
  user.Tab("basis");
  user.Record().LogName = "series.LOG";
  user.Record().RegressionOn = true;
  user.Record().InputState = 4;
  user.Record().MsgText = user.Record().MsgTitle = "an old message";
  user.Click("Menuclose");
  EXPECT_EQ(user.Record().Mode, DataMode::None);
  EXPECT_EQ(user.Record().C.size(), 1u);
  EXPECT_EQ(user.Record().LnC.size(), 1u);
  EXPECT_TRUE(user.Record().GridData.empty()) << "a row of it for each of the grid";
  EXPECT_EQ(static_cast<screen::Grid&>(user.At("DataCtrlForm.DBGridVkr")).rowCount, 0);
  EXPECT_EQ(user.Text("StatusLbl"), "");
  EXPECT_EQ(user.Text("WindnrLbl"), "2");
  ExpectNothingIsLeft(user.Record());
  ExpectOpeningScreen(user);
}

// The option for raw data gets ticked, and that is a choice.
TEST(CloseAllData, EndsKnownStatisticsWithRawDataChosen) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.box.answers = {Answer::Yes};
  user.Click("Menuclose");
  EXPECT_EQ(user.Record().Mode, DataMode::Raw);
  EXPECT_EQ(user.Text("WindnrLbl"), "8");
  ExpectNothingIsLeft(user.Record());
  ExpectOpeningScreen(user);
}

TEST(CloseAllData, KeepsTheLimitsForTheNextData) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Record().OELV = 25;
  user.Record().U = 90;
  user.Record().D = 80;
  user.box.answers = {Answer::Yes};
  user.Click("Menuclose");
  EXPECT_EQ(user.Record().OELV, 25);
  EXPECT_FALSE(user.Record().LimitsOk);
  user.OpenSeries({1, 2, 4, 8});
  EXPECT_TRUE(user.Record().LimitsOk);
  EXPECT_EQ(user.Record().OELV, 25);
  EXPECT_EQ(user.Record().U, 90);
  EXPECT_EQ(user.Record().D, 80);
}

TEST(CloseAllData, FromAnotherScreenLeadsToTheStartScreen) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  ASSERT_EQ(user.Shown().name, "DataCtrlForm");
  user.Click("Menuclose");
  EXPECT_EQ(user.Record().CurrentTab, ScreenId::Basis);
  ExpectNothingIsLeft(user.Record());
  ExpectOpeningScreen(user);
}

void ExpectQuestion(const screen::Message& box, const std::string& text, screen::Icon icon,
                    screen::Buttons buttons, Answer defaultAnswer) {
  EXPECT_EQ(box.text, text);
  EXPECT_EQ(box.title, "Exit");
  EXPECT_EQ(box.icon, icon);
  EXPECT_EQ(box.buttons, buttons);
  EXPECT_EQ(box.defaultAnswer, defaultAnswer);
}

void ExpectMenuAsks(ProgramSession& user, const std::string& text) {
  user.Click("MenuExit");
  ExpectQuestion(user.LastBox(), text, screen::Icon::None, screen::Buttons::YesNo, Answer::No);
  EXPECT_FALSE(user.program.EndRequested());
  EXPECT_EQ(user.Shown().name, "BasisForm");
}

TEST(Exit, BeforeAnyDataTheMenuAsksAboutTheProgramOnly) {
  ProgramSession user;
  ExpectMenuAsks(user, "Are you sure you want  to close and quit VALKORIN ?");
}

TEST(Exit, WithASeriesTheMenuNamesItsFile) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  ExpectMenuAsks(user,
                 "Are you sure you want  to close " + user.Record().Name + " and quit VALKORIN ?");
}

TEST(Exit, WithKnownStatisticsTheMenuNamesTheAnalysis) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  ExpectMenuAsks(user, "Are you sure you want stop analyzing Welders and quit VALKORIN ?");
}

TEST(Exit, YesEndsTheProgramAtOnce) {
  ProgramSession user;
  user.box.answers = {Answer::Yes};
  user.Click("MenuExit");
  EXPECT_TRUE(user.program.EndRequested());
  EXPECT_TRUE(user.program.MayUnload());
  EXPECT_EQ(user.box.shown.size(), 1u) << "one question is enough";
}

TEST(Exit, NoOnAnotherScreenShowsTheStartScreenWithTheDataKept) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Click("MenuExit");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_TRUE(user.Record().DescOk);
}

TEST(Exit, ClosingTheWindowAsksWithOkAndCancel) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.box.answers = {Answer::Cancel};
  EXPECT_FALSE(user.program.MayUnload());
  ExpectQuestion(user.LastBox(), "Are you sure you want stop analyzing Welders and quit VALKORIN ?",
                 screen::Icon::Question, screen::Buttons::OkCancel, Answer::Ok);
  EXPECT_FALSE(user.program.EndRequested());
  user.box.answers = {Answer::Ok};
  EXPECT_TRUE(user.program.MayUnload());
}

// An edited series, and the three ways on from the question about it.
class ExitUnsaved : public testing::Test {
 protected:
  ExitUnsaved() {
    user.OpenSeries({1, 2, 4, 8});
    auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
    grid.Write(0, 2, "1.5");
  }
  // Exit by its menu, or by the window's button.
  void Leave(bool byMenu, Answer behind) {
    user.box.shown.clear();
    user.box.answers = {byMenu ? Answer::Yes : Answer::Ok, behind};
    if (byMenu)
      user.Click("MenuExit");
    else
      user.program.MayUnload();
  }
  ProgramSession user;
};

TEST_F(ExitUnsaved, TheQuestionSaysThatChangesAreNotSaved) {
  user.Click("MenuExit");
  EXPECT_EQ(user.LastBox().advice, "Changes of this series are not saved.");
  EXPECT_EQ(user.LastBox().title, "Exit");
  user.box.answers = {Answer::Cancel};
  user.program.MayUnload();
  EXPECT_EQ(user.LastBox().advice, "Changes of this series are not saved.");
}

TEST_F(ExitUnsaved, NothingOfThatIsSaidOfASavedSeries) {
  user.dialog.answers = {support::WriteTemporary("saved.vkr", "")};
  user.Click("MenuSave");
  user.Click("MenuExit");
  EXPECT_EQ(user.LastBox().advice, "");
  user.box.answers = {Answer::Yes};
  user.Click("MenuExit");
  EXPECT_TRUE(user.program.EndRequested());
}

TEST_F(ExitUnsaved, YesOrOkBringsSaveDontSaveAndCancel) {
  for (const bool byMenu : {true, false}) {
    Leave(byMenu, Answer::Cancel);
    ASSERT_EQ(user.box.shown.size(), 2u);
    EXPECT_EQ(user.LastBox().text, "Save the changes of " + user.Record().Name + "?");
    EXPECT_EQ(user.LastBox().buttons, screen::Buttons::SaveDiscardCancel);
    EXPECT_EQ(user.LastBox().defaultAnswer, Answer::Save);
  }
}

TEST_F(ExitUnsaved, CancelStaysWhereTheUserIs) {
  for (const bool byMenu : {true, false}) {
    Leave(byMenu, Answer::Cancel);
    EXPECT_FALSE(user.program.EndRequested());
    EXPECT_EQ(user.Shown().name, "DataCtrlForm");
    EXPECT_TRUE(user.program.Unsaved());
  }
}

TEST_F(ExitUnsaved, DontSaveEndsAndLeavesTheFile) {
  Leave(true, Answer::Discard);
  EXPECT_TRUE(user.program.EndRequested());
  EXPECT_TRUE(user.program.Unsaved());
  EXPECT_TRUE(user.program.MayUnload());
  EXPECT_EQ(user.box.shown.size(), 2u) << "asked once";
}

TEST_F(ExitUnsaved, SaveWritesTheSeriesAndEnds) {
  user.dialog.answers = {support::WriteTemporary("saved.vkr", "")};
  Leave(false, Answer::Save);
  EXPECT_TRUE(user.program.EndRequested());
  EXPECT_FALSE(user.program.Unsaved());
}

TEST_F(ExitUnsaved, ASaveThatIsCancelledOrFailsStays) {
  for (const std::string& path : {std::string(), support::WriteTemporary("x", "") + "/y.vkr"}) {
    user.dialog.answers = {path};
    Leave(true, Answer::Save);
    EXPECT_FALSE(user.program.EndRequested());
    EXPECT_TRUE(user.program.Unsaved());
  }
}

TEST_F(ExitUnsaved, SaveOfASeriesWithAnEmptyRowLeadsToItsRows) {
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  grid.Write(1, 2, "0");
  user.Tab("basis");
  Leave(true, Answer::Save);
  EXPECT_FALSE(user.program.EndRequested());
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(user.LastBox().text,
            "A series with empty rows can't be saved. Fill these rows or delete them.");
  EXPECT_TRUE(user.dialog.asked.size() == 1) << "none but that of the open";
}

}  // namespace
