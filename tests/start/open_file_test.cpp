#include <gmock/gmock.h>

#include <filesystem>

#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// Opening a raw data file from the start screen.
namespace {

using support::ProgramSession;

// A way in which a file can be refused.
struct Refusal {
  const char* what;
  std::string bytes;
  const char* text;
  int lines;
};

std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += i % 2 ? "1.5\r\n" : "2.5\r\n";
  return text;
}

const std::vector<Refusal>& Refusals() {
  static const std::vector<Refusal> all = {
      {"empty", "", "File contains less than 2 records.", 0},
      {"one line", "1.5\r\n", "File contains less than 2 records.", 1},
      {"a bad first line", "<0.5\r\n1\r\n2\r\n", "File contains less than 2 records.", 1},
      {"a word", "1\r\n2\r\nabc\r\n4\r\n", "File contains values <1D-10 or >1D+10. ", 3},
      {"a blank last line", "1\r\n2\r\n\r\n", "File contains values <1D-10 or >1D+10. ", 3},
      {"too small", "1\r\n9E-11\r\n", "File contains values <1D-10 or >1D+10. ", 2},
      {"too large", "1\r\n1.1E+10\r\n", "File contains values <1D-10 or >1D+10. ", 2},
      {"2001 lines", Lines(2001), "File contains more than 2000 records ", 2001},
      {"2001 lines, one bad", Lines(1999) + "0\r\n1\r\n", "File contains values <1D-10 or >1D+10. ",
       2000}};
  return all;
}

TEST(OpenFile, TheDialogShowsRawDataFilesAndItsHelp) {
  ProgramSession user;
  user.Click("menuopen");
  ASSERT_EQ(user.dialog.asked.size(), 1u);
  const screen::FileDialog::Request& asked = user.dialog.asked[0];
  EXPECT_FALSE(asked.save);
  EXPECT_EQ(asked.filter, "Valkorin Files (*.vkr)|*.vkr");
  EXPECT_EQ(asked.helpFile, "Valkowin.chm");
  EXPECT_EQ(asked.helpContext, 100170);
}

TEST(OpenFile, ACancelledDialogSaysThatNoFileWasLoaded) {
  ProgramSession user;
  user.Click("menuopen");
  EXPECT_EQ(user.LastBox().text, "No file loaded!");
  EXPECT_EQ(user.LastBox().title, "Open a *. VKR file from disk");
  EXPECT_EQ(user.LastBox().icon, screen::Icon::None);
  EXPECT_EQ(user.LastBox().buttons, screen::Buttons::Ok);
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Shown().name, "BasisForm");
}

TEST(OpenFile, ACancelledDialogKeepsTheLoadedSeries) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  const ExposureSession before = user.Record();
  user.Click("menuopen");
  EXPECT_EQ(user.Record().Name, before.Name);
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_EQ(user.Record().C, before.C);
}

TEST(OpenFile, ARefusedFileSaysWhyAndLeavesItsNameAndLineCount) {
  for (const Refusal& refusal : Refusals()) {
    SCOPED_TRACE(refusal.what);
    ProgramSession user;
    const std::string path = support::WriteTemporary("refused.vkr", refusal.bytes);
    user.OpenFile(path);
    ASSERT_EQ(user.box.shown.size(), 1u);
    EXPECT_EQ(user.LastBox().text, refusal.text);
    EXPECT_EQ(user.LastBox().title, "Loading  the *.VKR file " + path);
    EXPECT_EQ(user.LastBox().icon, screen::Icon::Exclamation);
    EXPECT_EQ(user.Record().Name, path);
    EXPECT_EQ(user.Record().M, refusal.lines);
    EXPECT_FALSE(user.Record().IdentOk || user.Record().DescOk);
    EXPECT_EQ(user.Shown().name, "BasisForm");
  }
}

TEST(OpenFile, ARefusedFileLeavesALoadedSeriesWhole) {
  for (const Refusal& refusal : Refusals()) {
    SCOPED_TRACE(refusal.what);
    ProgramSession user;
    user.OpenSeries({1, 2, 4, 8});
    user.Tab("basis");
    const ExposureSession before = user.Record();
    user.OpenFile(support::WriteTemporary("refused.vkr", refusal.bytes));
    EXPECT_EQ(user.box.shown.size(), 1u);
    EXPECT_EQ(user.Record().Name, before.Name);
    EXPECT_EQ(user.Record().M, 4);
    EXPECT_EQ(user.Record().df, 3);
    EXPECT_EQ(user.Record().C, before.C);
    EXPECT_EQ(user.Record().LnC, before.LnC);
    EXPECT_TRUE(user.Record().DescOk);
    EXPECT_EQ(user.Text("NameTxB"), before.Name);
    EXPECT_TRUE(user.At("TabBasis").visible);
    EXPECT_FALSE(user.program.Unsaved());
  }
}

TEST(OpenFile, ARefusedFileLeavesASeriesWithARefusedSampleSizeWhole) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  user.Type("SampSizTxB", "1");
  const std::string name = user.Record().Name;
  user.box.answers = {screen::Answer::Yes, screen::Answer::Yes};
  user.OpenFile(support::WriteTemporary("refused.vkr", "abc\r\n"));
  EXPECT_EQ(user.Record().Name, name);
  EXPECT_EQ(user.Record().M, 1);
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 1, 2, 4, 8}));
}

TEST(OpenFile, TheMessageFrameNamesTheRefusedLineAndWhatStandsThere) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("refused.vkr", "1.5\r\n2.5\r\n<0.5\r\n3\r\n"));
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr("Line 3 "));
  EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr("\"<0.5\""));
  EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr("detection range"));
}

TEST(OpenFile, TheMessageFrameNamesTheLineAlsoWithASeriesLoaded) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  user.OpenFile(support::WriteTemporary("refused.vkr", "abc\r\n1\r\n"));
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr("Line 1 holds \"abc\""));
}

TEST(OpenFile, AFileThatCannotBeReadEndsWithoutABox) {
  const std::string folder =
      std::filesystem::path(support::WriteTemporary("x.vkr", "")).parent_path().string();
  for (const std::string& path : {folder, folder + "/missing.vkr"}) {
    SCOPED_TRACE(path);
    ProgramSession user;
    user.OpenSeries({1, 2, 4, 8});
    user.Tab("basis");
    const ExposureSession before = user.Record();
    user.OpenFile(path);
    EXPECT_TRUE(user.box.shown.empty());
    EXPECT_EQ(user.Record().Name, before.Name);
    EXPECT_EQ(user.Record().C, before.C);
    EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr(path));
    EXPECT_FALSE(user.Shown().busyPointer);
  }
}

TEST(OpenFile, TheStartScreenStaysUsableAfterARefusal) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("refused.vkr", "abc\r\n"));
  EXPECT_TRUE(user.At("menuopen").enabled);
  user.OpenSeries({1, 2, 4, 8});
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_TRUE(user.Record().DescOk);
}

// Its path and the number of its lines are not the beginning of another series.
TEST(OpenFile, ARefusedFileIsNoBaseForANewSeriesAndNoFileToSaveTo) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("refused.vkr", "1\r\n2\r\nabc\r\n"));
  user.Click("MenuExit");
  EXPECT_EQ(user.LastBox().text, "Are you sure you want  to close and quit VALKORIN ?");
  EXPECT_FALSE(user.At("IdentFrame").visible);
  EXPECT_FALSE(user.At("CmdContinu").visible);
  EXPECT_FALSE(user.At("MenuSave").enabled);
  EXPECT_THAT(user.Text("BoodschLbl"), testing::HasSubstr("Line 3 "));
  EXPECT_THAT(user.program.Title(), testing::Not(testing::HasSubstr("refused")));
  user.Click("MenuNewVkrFil");
  EXPECT_EQ(user.Text("NameTxB"), "");
  user.Type("NameTxB", "Solvent");
  user.Type("SampSizTxB", "2");
  user.Click("CmdContinu");
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  for (const int row : {0, 1}) grid.Write(row, 2, row == 0 ? "1" : "2");
  user.Click("MenuSave");
  EXPECT_EQ(user.dialog.asked.back().fileName, "Solvent");
}

TEST(OpenFile, ClosingEndsTheHalfChangedStateOfARefusal) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("refused.vkr", "1\r\n2\r\nabc\r\n"));
  user.Click("Menuclose");
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Record().M, 0);
  EXPECT_THAT(user.Text("BoodschLbl"), testing::StartsWith(" What kind of exposure data"));
}

TEST(OpenFile, ALoadedSeriesIsSortedAndShownOnTheDataControlScreen) {
  ProgramSession user;
  const std::string path = support::WriteTemporary("good.vkr", "8\r\n1,5\r\n12.5 mg/m3\r\n");
  user.OpenFile(path);
  const ExposureSession& record = user.Record();
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(record.Mode, DataMode::Raw);
  EXPECT_EQ(record.Name, path);
  EXPECT_EQ(record.M, 3);
  EXPECT_EQ(record.C, (std::vector<double>{8, 1.5, 8, 12.5}));
  EXPECT_EQ(record.SortOrder, "Ascending");
  EXPECT_EQ(record.LOQ, 0.95 * 1.5);
  EXPECT_EQ(record.URR, 1.05 * 12.5);
  EXPECT_EQ(record.FirstInRange, 1);
  EXPECT_EQ(record.LastInRange, 3);
  EXPECT_EQ(record.NInRange, 3);
  EXPECT_TRUE(record.IdentOk && record.DescOk);
  EXPECT_FALSE(record.DetecOn || record.RegressionOn || record.RawIncomplete);
  EXPECT_TRUE(user.At("BasisForm.RawOpt").ticked);
}

TEST(OpenFile, AnotherFileDropsTheDetectionRangeOfTheFirst) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8, 16});
  user.Click("DetecChB");
  user.Type("DetecLTxb", "2");
  user.Tab("basis");
  user.OpenSeries({3, 5, 9, 12});
  EXPECT_FALSE(user.Record().DetecOn);
  EXPECT_FALSE(user.At("DetecChB").ticked);
  EXPECT_FALSE(user.At("FrmDetec").visible);
  EXPECT_EQ(user.Record().LOQ, 0.95 * 3);
  EXPECT_EQ(user.Record().NInRange, 4);
}

TEST(OpenFile, TwoThousandLinesLoad) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("long.vkr", Lines(2000)));
  EXPECT_EQ(user.Record().M, 2000);
  EXPECT_TRUE(user.Record().DescOk);
  EXPECT_TRUE(user.box.shown.empty());
}

// With which message the data control screen closes a series that has been read; empty for none.
// The table judges by the outcomes alone; a GSD of 10000 or more is too large a range as well.
std::string ClosingMessage(const support::Row& row) {
  if (!row.Text("activation").empty()) return row.Text("activation");
  return row.Number("GSD") >= 10000 ? "1510" : "";
}

void ExpectSeriesOf(const support::Row& row, const ExposureSession& record) {
  EXPECT_EQ(record.M, row.Number("M"));
  EXPECT_EQ(record.C[0], row.Number("median"));
  EXPECT_EQ(record.SigDigits, row.Number("SigDigits_after_grid"));
  EXPECT_EQ(record.LOQ, row.Number("LOQ"));
  EXPECT_EQ(record.URR, row.Number("URR"));
  EXPECT_LT(support::RelativeError(record.GM, row.Number("GM")), 1E-12) << record.GM;
  EXPECT_LT(support::RelativeError(record.GSD, row.Number("GSD")), 1E-12) << record.GSD;
}

// What the record holds after opening a file, or the message under which it ends.
TEST(OpenFile, EveryReferenceFileEndsAsItsTableSays) {
  for (const support::Row& row : support::ReadTable("raw_files/expected.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("file"));
    ProgramSession user;
    user.OpenFile(std::string(VALKORIN_TEST_DATA) + "/raw_files/" + row.Text("file"));
    const std::string message =
        row.Text("result") == "loads" ? ClosingMessage(row) : row.Text("result");
    EXPECT_EQ(user.Shown().name, message.empty() ? "DataCtrlForm" : "BasisForm");
    ASSERT_EQ(user.box.shown.size(), message.empty() ? 0u : 1u);
    if (message.empty())
      ExpectSeriesOf(row, user.Record());
    else
      EXPECT_EQ(user.LastBox().text, LoadResString(static_cast<int>(GlobalBAS::Val(message))));
  }
}

}  // namespace
