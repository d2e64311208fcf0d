#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "rawdata/data_ctrl_form.h"
#include "tests/support/data_table.h"

// Editing the series in the grid, and saving it.
namespace {

using support::GridOf;
using support::OpenTable;
using support::ProgramSession;
using testing::ElementsAre;

std::string Content(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(Grid, HasNumberOperatorConcentrationAndUnit) {
  ProgramSession user;
  user.OpenSeries({1.5, 2.25, 12});
  const screen::Grid& grid = GridOf(user);
  std::vector<std::string> captions;
  std::vector<int> widths;
  std::vector<bool> editable;
  for (const screen::Grid::Column& column : grid.columns) {
    captions.push_back(column.caption);
    widths.push_back(column.widthTwips);
    editable.push_back(column.editable);
  }
  EXPECT_THAT(captions, ElementsAre("Number", "Operator", "Concentration", "Unit"));
  EXPECT_THAT(widths, ElementsAre(700, 700, 2700, 1000));
  EXPECT_THAT(editable, ElementsAre(false, false, true, false));
  EXPECT_EQ(grid.rowCount, 3);
  EXPECT_EQ(grid.text, user.Record().Name);
  EXPECT_EQ(grid.Cell(1, 0), "     2");
  EXPECT_EQ(grid.Cell(1, 1), "=");
  EXPECT_EQ(grid.Cell(1, 2), "    2.25");
  EXPECT_EQ(grid.Cell(1, 3), "mg/m3");
  EXPECT_THAT(user.Record().GridData[1], ElementsAre("     2", "=", "    2.25", "mg/m3"));
}

TEST(Grid, ARowThatIsNotThereReadsAsMinusNineThousand) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  EXPECT_EQ(GridOf(user).Cell(-1, 2), "-9999");
  EXPECT_EQ(GridOf(user).Cell(3, 2), "-9999");
}

TEST(Grid, OnlyTheConcentrationCanBeWritten) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  for (int column : {0, 1, 3}) EXPECT_FALSE(GridOf(user).Write(0, column, "9")) << column;
  EXPECT_FALSE(GridOf(user).Write(3, 2, "9"));
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4}));
  EXPECT_TRUE(GridOf(user).Write(1, 2, "1.234,5"));
  EXPECT_EQ(user.Record().C, (std::vector<double>{4, 1, 4, 1234.5})) << "in its place at once";
}

TEST(Grid, AValueThatNoFileCouldHoldIsRefusedAndTheOldOneStays) {
  for (const char* entry : {"1.1E+10", "9E-11", "1E400"}) {
    SCOPED_TRACE(entry);
    ProgramSession user;
    user.OpenSeries({1, 2, 4});
    EXPECT_FALSE(GridOf(user).Write(1, 2, entry));
    EXPECT_EQ(user.LastBox().text, "File contains values <1D-10 or >1D+10. ");
    EXPECT_EQ(user.LastBox().icon, screen::Icon::Exclamation);
    EXPECT_EQ(user.Record().C[2], 2);
    EXPECT_FALSE(GridOf(user).AddRow(entry));
    EXPECT_EQ(user.Record().M, 3);
  }
}

TEST(Grid, TheBordersOfTheValuesAreTaken) {
  for (const auto& [entry, series] :
       {std::pair{"1E+10", std::vector<double>{4, 1, 4, 1E+10}}, {"1E-10", {1, 1E-10, 1, 4}}}) {
    ProgramSession user;
    user.OpenSeries({1, 2, 4});
    EXPECT_TRUE(GridOf(user).Write(1, 2, entry));
    EXPECT_EQ(user.Record().C, series);
    EXPECT_TRUE(user.box.shown.empty());
  }
}

// The series gets shorter on another screen, and a view of the table asks before the table is told.
TEST(Grid, ARowThatTheSeriesHasNoMoreIsNoRow) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  user.Tab("basis");
  user.Record().C.resize(3);
  EXPECT_EQ(grid.Cell(3, 2), "-9999");
  EXPECT_EQ(GlobalBAS::Trim(grid.Cell(1, 2)), "2");
}

// A range is laid over the four, three of them are the sample, and the whole sample's degrees of
// freedom are in force.
GivenSeries ThreeOfFour(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  user.Click("DetecChB");
  user.Type("DetecLTxb", "1.5");
  user.Tab("basis");
  user.Type("SampSizTxB", "3");
  user.Tab("raw");
  return user.Record();
}

TEST(Grid, TheSameValueInAnotherNotationIsNoEdit) {
  ProgramSession user;
  const GivenSeries before = ThreeOfFour(user);
  ASSERT_EQ(before.C.size(), 5u);
  for (const char* entry : {"2.0", "2,0", "+0.2E1", " 2 "}) {
    SCOPED_TRACE(entry);
    EXPECT_TRUE(GridOf(user).Write(1, 2, entry));
    EXPECT_TRUE(before == user.Record());
    EXPECT_EQ(user.Text("MenuUndo"), "&Undo sample size 3");
  }
}

TEST(AddedRow, JoinsTheSeriesInItsOrder) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  EXPECT_TRUE(GridOf(user).AddRow("1,5"));
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_EQ(user.Record().C, (std::vector<double>{1.75, 1, 1.5, 2, 4}));
  EXPECT_EQ(user.Record().LnC.size(), 5u);
  EXPECT_EQ(user.Record().df, 3);
  EXPECT_EQ(user.Record().NInRange, 4);
  EXPECT_EQ(GridOf(user).rowCount, 4);
  EXPECT_EQ(user.Text("SampSzLbl"), "4");
}

TEST(AddedRow, GivesASampleOfTwoItsPlot) {
  ProgramSession user;
  user.OpenSeries({1, 2});
  EXPECT_FALSE(user.At("MenuPlot").visible);
  EXPECT_TRUE(GridOf(user).AddRow("4"));
  EXPECT_TRUE(user.At("MenuPlot").visible);
  EXPECT_THAT(user.TabKeys(), testing::Contains("plot"));
}

TEST(AddedRow, BeyondTwoThousandIsRefused) {
  ProgramSession user;
  std::vector<double> outcomes(2000, 1.5);
  outcomes[0] = 1;
  user.OpenSeries(outcomes);
  ASSERT_EQ(user.Record().M, 2000);
  EXPECT_FALSE(GridOf(user).AddRow("2"));
  EXPECT_EQ(user.LastBox().text, "A Sample size M of more than two thousand  is too large");
  EXPECT_EQ(user.Record().M, 2000);
  EXPECT_EQ(user.Record().C.size(), 2001u);
}

TEST(AddedRow, TheMenuLeadsToTheEmptyLineAtTheEnd) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Click("MenuAddRow");
  EXPECT_EQ(GridOf(user).currentRow, 3);
  EXPECT_EQ(user.Record().M, 3);
}

TEST(DeletedRow, LeavesTheOthersInTheirOrder) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).GoTo(1);
  user.Click("MenuDeleteRow");
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_EQ(user.Record().C, (std::vector<double>{4, 1, 4, 8}));
  EXPECT_EQ(user.Record().df, 2);
  EXPECT_EQ(user.Record().LastInRange, 3);
  EXPECT_EQ(GridOf(user).rowCount, 3);
}

TEST(DeletedRow, OfTwoRowsNoneGoes) {
  ProgramSession user;
  user.OpenSeries({1, 2});
  GridOf(user).DeleteRows({0});
  EXPECT_EQ(user.Record().M, 2);
  EXPECT_THAT(user.Record().C, ElementsAre(1.5, 1, 2));
  EXPECT_EQ(GridOf(user).rowCount, 2);
}

TEST(DeletedRow, OnTheEmptyLineNoneGoes) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Click("MenuAddRow");
  user.Click("MenuDeleteRow");
  EXPECT_EQ(user.Record().M, 3);
}

TEST(DeletedRow, OnTheEmptyLineLeavesTheEstimatesInForce) {
  ProgramSession user;
  const GivenSeries before = ThreeOfFour(user);
  user.Click("MenuAddRow");
  user.Click("MenuDeleteRow");
  EXPECT_TRUE(before == user.Record());
}

TEST(DeletedRow, AnUnfilledOneCompletesTheSeries) {
  ProgramSession user;
  OpenTable(user, "3");
  for (int row : {0, 1}) ASSERT_TRUE(GridOf(user).Write(row, 2, row == 0 ? "4" : "2"));
  EXPECT_TRUE(user.Record().RawIncomplete);
  GridOf(user).DeleteRows({2});
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 2, 4}));
}

TEST(Save, OffersTheNameOfTheSeries) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  const std::string name = user.Record().Name;
  user.Click("MenuSave");
  const screen::FileDialog::Request& asked = user.dialog.asked.back();
  EXPECT_TRUE(asked.save);
  EXPECT_EQ(asked.fileName, name);
  EXPECT_EQ(asked.filter, "Valkorin Files (*.vkr)|*.vkr");
  EXPECT_EQ(asked.helpFile, "Valkowin.chm");
  EXPECT_EQ(asked.helpContext, 100260);
}

TEST(Save, ACancelledDialogSaysSoAndKeepsTheName) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  const std::string name = user.Record().Name;
  user.Click("MenuSave");
  EXPECT_EQ(user.LastBox().text, "Save the raw data as a *.VKR delimited file");
  EXPECT_EQ(user.LastBox().title, "No file saved!");
  EXPECT_EQ(user.LastBox().icon, screen::Icon::None);
  EXPECT_EQ(user.Record().Name, name);
}

TEST(Save, WritesTheSortedSeriesAndTakesTheNewName) {
  ProgramSession user;
  user.OpenSeries({4, 0.537, 2});
  const std::string path = support::WriteTemporary("new name.vkr", "old content");
  user.dialog.answers = {"  " + path + " "};
  user.Click("MenuSave");
  EXPECT_EQ(Content(path), "0.537\r\n2\r\n4\r\n");
  EXPECT_EQ(user.Record().Name, path);
  EXPECT_EQ(GridOf(user).text, path);
  EXPECT_EQ(user.Record().MsgText, "");
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_FALSE(user.Shown().busyPointer);
}

TEST(Save, WritesOnlyTheOutcomesThatTheSampleSizeCounts) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  user.Type("SampSizTxB", "3");
  user.Tab("raw");
  const std::string path = support::WriteTemporary("three.vkr", "");
  user.dialog.answers = {path};
  user.Click("MenuSave");
  EXPECT_EQ(Content(path), "1\r\n2\r\n4\r\n");
  EXPECT_EQ(user.Record().C.size(), 4u);
}

TEST(ReadingLine, TellsHowTheFileWasUnderstood) {
  ProgramSession user;
  user.OpenFile(support::WriteTemporary("notes.vkr", "1.5\r\n12.5 mg/m3\r\n1.234,5\r\n3 x\r\n"));
  EXPECT_EQ(user.Text("StatusLbl"),
            "4 outcomes read. Text behind the number on line 2 and 4 was passed over. Both comma "
            "and point on line 3: the last one was read as the decimal sign.");
}

TEST(ReadingLine, IsShortForAPlainFileAndEmptyForATypedSeries) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  EXPECT_EQ(user.Text("StatusLbl"), "3 outcomes read.");
  user.Tab("basis");
  OpenTable(user, "3");
  EXPECT_EQ(user.Text("StatusLbl"), "All 3 rows are empty: type or paste the outcomes.");
}

}  // namespace
