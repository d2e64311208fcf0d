#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/start_screen.h"
#include "tests/support/temp_folder.h"

// Whether the series differs from its file, and the question before it goes.
namespace {

using screen::Answer;
using support::ProgramSession;

void OpenAndEdit(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  EditOutcome(user, 0, "1.5");
}

void Save(ProgramSession& user, const std::string& path) {
  user.dialog.answers.push_back(path);
  user.Click("MenuSave");
}

TEST(Unsaved, AnOpenedSeriesIsSavedAlsoWhenItsFileWasNotSorted) {
  ProgramSession user;
  EXPECT_FALSE(user.program.Unsaved());
  user.OpenSeries({8, 1, 4, 2});
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(Unsaved, AnEditMakesItUnsavedAndTakingItBackSavedAgain) {
  ProgramSession user;
  OpenAndEdit(user);
  EXPECT_TRUE(user.program.Unsaved());
  EditOutcome(user, 0, "1");
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(Unsaved, AtAnEndWithoutQuestionsItIsKeptBesideItsFileWhichStays) {
  TempFolder folder;
  ProgramSession user;
  const std::string path = folder.Write("weld.vkr", "1\r\n2\r\n4\r\n8\r\n");
  user.OpenFile(path);
  user.program.EndUnasked();
  EXPECT_THAT(folder.Names(), testing::ElementsAre("weld.vkr")) << "nothing has changed";
  EditOutcome(user, 0, "1.5");
  user.program.EndUnasked();
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_EQ(TempFolder::Bytes(path), "1\r\n2\r\n4\r\n8\r\n");
  ProgramSession later;
  later.OpenFile(folder.Path("weld unsaved.vkr"));
  EXPECT_THAT(later.Record().C, testing::ElementsAre(testing::_, 1.5, 2, 4, 8));
}

TEST(Unsaved, SavingEndsIt) {
  ProgramSession user;
  OpenAndEdit(user);
  Save(user, support::WriteTemporary("saved.vkr", ""));
  EXPECT_FALSE(user.program.Unsaved());
  user.Click("Menuclose");
  EXPECT_TRUE(user.box.shown.empty());
}

// The user must not believe that the series is safe.
TEST(Unsaved, AFailedSaveLeavesItUnsavedUnderItsOldNameAndSaysSo) {
  ProgramSession user;
  OpenAndEdit(user);
  const std::string name = user.Record().Name;
  Save(user, support::WriteTemporary("no_folder", "") + "/series.vkr");
  EXPECT_TRUE(user.program.Unsaved());
  EXPECT_EQ(user.Record().Name, name);
  EXPECT_THAT(user.Text("StatusLbl"), testing::HasSubstr("not saved"));
  EXPECT_FALSE(user.Shown().busyPointer);
}

TEST(Unsaved, ACancelledSaveLeavesItUnsaved) {
  ProgramSession user;
  OpenAndEdit(user);
  Save(user, "");
  EXPECT_TRUE(user.program.Unsaved());
}

TEST(Unsaved, ANewSeriesWithNothingTypedHasNothingToLose) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  user.Click("CmdContinu");
  EXPECT_FALSE(user.program.Unsaved());
  EditOutcome(user, 1, "2.5");
  EXPECT_TRUE(user.program.Unsaved());
}

TEST(Unsaved, KnownStatisticsNeverAreForTheyHaveNoFileYetClosingThemAsks) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  EXPECT_FALSE(user.program.Unsaved());
  user.Click("Menuclose");
  ASSERT_EQ(user.box.shown.size(), 1u);
  EXPECT_EQ(user.Record().GM, 1.5);
}

TEST(Unsaved, ClosingANewSeriesThatHasOnlyANameAsks) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  user.Click("Menuclose");
  ASSERT_EQ(user.box.shown.size(), 1u);
  EXPECT_EQ(user.LastBox().text, "Are you sure you want  to close Solvent ?");
  EXPECT_EQ(user.LastBox().advice, "What was typed is not kept in any file.");
  EXPECT_EQ(user.Record().Name, "Solvent");
}

TEST(UnsavedQuestion, NamesTheSeriesAndOffersNoFirst) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Click("Menuclose");
  const screen::Message& box = user.LastBox();
  EXPECT_EQ(box.text, "Are you sure you want  to close " + user.Record().Name + " ?");
  EXPECT_EQ(box.title, "No file saved!");
  EXPECT_EQ(box.icon, screen::Icon::Question);
  EXPECT_EQ(box.buttons, screen::Buttons::YesNo);
  EXPECT_EQ(box.defaultAnswer, Answer::No);
}

TEST(UnsavedQuestion, NoKeepsTheSeriesAndItsScreen) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Click("Menuclose");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 1.5, 2, 4, 8}));
  EXPECT_TRUE(user.program.Unsaved());
}

TEST(UnsavedQuestion, YesClosesTheSeries) {
  ProgramSession user;
  OpenAndEdit(user);
  user.box.answers = {Answer::Yes};
  user.Click("Menuclose");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_EQ(user.Record().M, 0);
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(UnsavedQuestion, ComesBeforeTheDialogOfAnotherFileAndNoAsksForNone) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Tab("basis");
  user.dialog.asked.clear();
  user.Click("menuopen");
  EXPECT_EQ(user.box.shown.size(), 1u);
  EXPECT_TRUE(user.dialog.asked.empty());
  user.box.answers = {Answer::Yes};
  user.OpenSeries({3, 5, 9});
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_EQ(user.box.shown.size(), 2u);
}

TEST(UnsavedQuestion, YesAndThenACancelledDialogStillKeepsTheSeries) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Tab("basis");
  user.box.answers = {Answer::Yes};
  user.Click("menuopen");
  EXPECT_EQ(user.LastBox().text, "No file loaded!");
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_TRUE(user.program.Unsaved());
}

TEST(WindowTitle, CarriesTheNameOfTheData) {
  ProgramSession user;
  EXPECT_THAT(user.program.Title(), testing::HasSubstr("VALKORIN version"));
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  EXPECT_THAT(user.program.Title(), testing::EndsWith(" - Welders"));
}

}  // namespace
