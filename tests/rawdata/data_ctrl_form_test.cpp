#include "rawdata/data_ctrl_form.h"

#include <gmock/gmock.h>

#include <cmath>

#include "catalog/catalog.h"
#include "session/derivation.h"
#include "tests/support/csv.h"
#include "tests/support/data_table.h"

// The data control screen: its activation, its states, unit and width of numbers.
namespace {

using support::OpenTable;
using support::ProgramSession;
using testing::ElementsAre;

rawdata::DataCtrlForm& DataControl(ProgramSession& user) {
  return dynamic_cast<rawdata::DataCtrlForm&>(*user.program.FormByName("DataCtrlForm"));
}

void Edit(ProgramSession& user, int row, const std::string& text) {
  screen::Grid& grid = DataControl(user).DBGridVkr;
  ASSERT_TRUE(grid.Write(row, 2, text));
}

// The table of a new series of `rows` outcomes.
TEST(DataControl, ShowsTheSeriesItsRangeAndItsSize) {
  ProgramSession user;
  user.OpenSeries({8, 1.5, 4, 2});
  EXPECT_EQ(user.Record().CurrentTab, ScreenId::DataCtrl);
  EXPECT_EQ(user.Shown().strip->selected, "raw");
  EXPECT_EQ(user.Text("WindnrLbl"), "15");
  EXPECT_TRUE(user.At("RangeFrame").visible);
  EXPECT_EQ(user.Text("C1Lbl"), "    1.5");
  EXPECT_EQ(user.Text("CnLbl"), "     8");
  EXPECT_EQ(user.Text("SampSzLbl"), "4");
  EXPECT_TRUE(user.At("DetecChB").visible);
  EXPECT_FALSE(user.At("FrmDetec").visible);
  EXPECT_TRUE(user.At("MenuSave").enabled);
  EXPECT_TRUE(user.At("menuTools").visible);
  EXPECT_EQ(user.Record().df, 3);
  EXPECT_TRUE(user.Record().IdentOk && user.Record().DescOk);
}

TEST(DataControl, TakesMilligramsUntilAUnitIsChosen) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  EXPECT_EQ(user.Record().Unit, "mg/m3");
  EXPECT_EQ(user.Text("DimCbo"), "mg/m3");
  user.Pick("DimCbo", "ppm");
  EXPECT_EQ(user.Record().Unit, "ppm");
  EXPECT_EQ(user.Text("WindnrLbl"), "3b");
  EXPECT_EQ(DataControl(user).DBGridVkr.Cell(0, 3), "ppm");
  user.Tab("basis");
  user.Tab("raw");
  EXPECT_EQ(user.Text("DimCbo"), "ppm");
  EXPECT_EQ(user.Text("WindnrLbl"), "15");
}

TEST(DataControl, AFreeTextIsAUnitToo) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Type("DimCbo", "spores/m3");
  EXPECT_EQ(user.Record().Unit, "spores/m3");
}

TEST(DataControl, ForgetsTheWishForATest) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Tab("basis");
  user.Record().TestTag = Extrapolation::Leidel;
  user.Tab("raw");
  EXPECT_EQ(user.Record().TestTag, Extrapolation::None);
}

// The labels of the results tell whose they are: here they are the whole sample's again.
TEST(DataControl, PutsTheSampleInThePlaceOfARegression) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Tab("basis");
  user.Record().GM = 99;
  user.Record().GSD = 9;
  user.Record().RegressionOn = true;
  user.Tab("raw");
  EXPECT_NEAR(user.Record().GM, 2, 1E-15);
  EXPECT_NEAR(user.Record().GSD, 2, 1E-14);
  EXPECT_FALSE(user.Record().RegressionOn);
}

TEST(Incomplete, ShowsTheTableOnly) {
  ProgramSession user;
  OpenTable(user, "3");
  for (const char* name : {"FrmDetec", "RangeFrame", "DetecChB", "menuTools"})
    EXPECT_FALSE(user.At(name).visible) << name;
  EXPECT_FALSE(user.At("MenuSave").enabled);
  EXPECT_FALSE(user.Record().DescOk);
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_TRUE(user.Shown().strip->visible);
}

TEST(Incomplete, AnEmptiedCellMakesTheSeriesIncompleteAndAValueCompletesIt) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Click("DetecChB");
  Edit(user, 1, "");
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_FALSE(user.Record().DescOk);
  for (const double statistic : {user.Record().GM, user.Record().GSD, user.Record().df})
    EXPECT_EQ(statistic, 0) << "nothing outlives the series that it came from";
  EXPECT_TRUE(user.box.shown.empty());
  for (const char* name : {"FrmDetec", "RangeFrame", "DetecChB"})
    EXPECT_FALSE(user.At(name).visible) << name;
  Edit(user, 1, "3");
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_TRUE(user.Record().DescOk);
  EXPECT_NEAR(user.Record().GM, std::cbrt(12), 1E-14);
  EXPECT_EQ(user.Record().df, 2);
  for (const char* name : {"FrmDetec", "RangeFrame", "DetecChB"})
    EXPECT_TRUE(user.At(name).visible) << name;
}

TEST(Incomplete, FilledRowsStayWhereTheyWereTypedOverAnotherScreen) {
  ProgramSession user;
  OpenTable(user, "3");
  Edit(user, 0, "4");
  user.Tab("basis");
  user.Tab("raw");
  EXPECT_THAT(user.Record().C, ElementsAre(0, 4, 0, 0));
}

// Nothing shown is older than the series: an edit sorts, and everything follows.
TEST(Status, AnEditSortsTheSeriesAndEverythingFollows) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  Edit(user, 0, "8");
  EXPECT_EQ(user.Record().C, (std::vector<double>{4, 2, 4, 8}));
  EXPECT_EQ(user.Record().SortOrder, "Ascending");
  EXPECT_DOUBLE_EQ(user.Record().LnC[1], std::log(2.0));
  EXPECT_DOUBLE_EQ(user.Record().LnC[3], std::log(8.0));
  EXPECT_EQ(user.Text("C1Lbl"), "     2");
  EXPECT_EQ(user.Text("CnLbl"), "     8");
  EXPECT_EQ(user.Record().LOQ, 0.95 * 2);
  EXPECT_EQ(user.Record().URR, 1.05 * 8);
  EXPECT_NEAR(user.Record().GM, 4, 1E-14);
  EXPECT_EQ(DataControl(user).DBGridVkr.Cell(0, 2), "     2");
}

TEST(Status, TwoOutcomesInTheWrongOrderChangePlaces) {
  ProgramSession user;
  user.OpenSeries({4, 1});
  EXPECT_EQ(user.Record().C, (std::vector<double>{2.5, 1, 4}));
  Edit(user, 0, "9");
  EXPECT_EQ(user.Record().C, (std::vector<double>{6.5, 4, 9}));
  EXPECT_EQ(user.Text("C1Lbl"), "     4");
}

std::vector<double> Numbers(const std::string& text) {
  std::vector<double> values;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    values.push_back(GlobalBAS::Val(text.substr(at, end - at)));
    at = end + 1;
  }
  return values;
}

// The table's other columns are of a scan that stopped early; nobody can see its widths any more.
TEST(Status, TheWidthOfNumbersIsThatOfTheLongestOutcome) {
  for (const support::Row& row : support::ReadTable("sigdigits.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series"));
    Given given;
    given.Mode = DataMode::Raw;
    given.C = Numbers(row.Text("series"));
    given.M = static_cast<double>(given.C.size());
    given.C.insert(given.C.begin(), 0);
    EXPECT_EQ(ConsequencesOf(given).derived.SigDigits, row.Number("after_grid"));
  }
}

TEST(Status, TheWidthOfNumbersFollowsTheOutcomesAtOnce) {
  int typed = 0;
  for (const support::Row& row : support::ReadTable("sigdigits.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series"));
    const std::vector<double> outcomes = Numbers(row.Text("series"));
    if (std::ranges::max(outcomes) > 1E+10) continue;  // no cell takes it
    ProgramSession user;
    OpenTable(user, GlobalBAS::GeneralText(static_cast<double>(outcomes.size())));
    std::size_t longest = 1;
    for (std::size_t i = 0; i < outcomes.size(); ++i, ++typed) {
      Edit(user, static_cast<int>(i), GlobalBAS::FileText(outcomes[i]));
      longest = std::max(longest, GlobalBAS::GeneralText(outcomes[i]).size());
      EXPECT_EQ(user.Record().SigDigits, longest) << outcomes[i];
    }
    EXPECT_EQ(user.Record().SigDigits, row.Number("after_grid"));
  }
  EXPECT_GT(typed, 15);
}

// The series of the table of opened series, in the order in which they were entered.
std::map<std::string, std::string> FilesOfSeries() {
  std::map<std::string, std::string> files;
  for (const support::Row& row : support::ReadTable("series.csv"))
    files[row.Text("series")] += row.Text("value_as_entered") + "\r\n";
  return files;
}

// The width of the longest outcome of a file.
int LongestLine(const std::string& file) {
  std::size_t longest = 0;
  for (std::size_t at = 0; at < file.size(); at = file.find('\n', at) + 1) {
    const std::string line = file.substr(at, file.find('\r', at) - at);
    longest = std::max(longest, GlobalBAS::GeneralText(GlobalBAS::ReadNumber(line)).size());
  }
  return static_cast<int>(longest);
}

TEST(Status, TheRecordOfEachReferenceSeriesIsAsItsTableSays) {
  const auto files = FilesOfSeries();
  for (const support::Row& row : support::ReadTable("series_opened.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series"));
    ProgramSession user;
    user.OpenFile(support::WriteTemporary("series.vkr", files.at(row.Text("series"))));
    const ExposureSession& record = user.Record();
    // A series whose range is refused has been closed under its message.
    if (row.Number("InputState") != 0) {
      EXPECT_EQ(user.box.shown.size(), 1u);
      EXPECT_EQ(record.M, 0);
      continue;
    }
    EXPECT_TRUE(user.box.shown.empty());
    EXPECT_EQ(record.M, row.Number("M"));
    EXPECT_EQ(record.df, row.Number("df"));
    EXPECT_LT(support::RelativeError(record.GM, row.Number("GM")), 1E-12) << record.GM;
    EXPECT_LT(support::RelativeError(record.GSD, row.Number("GSD")), 1E-12) << record.GSD;
    EXPECT_EQ(record.SortOrder, row.Text("SortOrder"));
    EXPECT_EQ(record.LOQ, row.Number("LOQ"));
    EXPECT_EQ(record.URR, row.Number("URR"));
    EXPECT_EQ(record.SigDigits, LongestLine(files.at(row.Text("series"))));
    EXPECT_GE(record.SigDigits, row.Number("SigDigits")) << "the table has the last one's width";
  }
}

}  // namespace
