#include <gmock/gmock.h>

#include <cmath>
#include <map>

#include "rawdata/data_ctrl_form.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// The detection range on the data control screen.
namespace {

using support::ProgramSession;

rawdata::DataCtrlForm& DataControl(ProgramSession& user) {
  return dynamic_cast<rawdata::DataCtrlForm&>(*user.program.FormByName("DataCtrlForm"));
}

// The operator column from the first row to the last.
std::string Operators(ProgramSession& user) {
  const screen::Grid& grid = DataControl(user).DBGridVkr;
  std::string operators;
  for (int row = 0; row < grid.rowCount; ++row) operators += grid.Cell(row, 1);
  return operators;
}

void OpenWithRange(ProgramSession& user, const std::vector<double>& series) {
  user.OpenSeries(series);
  user.Click("DetecChB");
}

TEST(DetectionRange, TickedItCoversTheWholeSeriesAtFirst) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6});
  EXPECT_TRUE(user.Record().DetecOn);
  EXPECT_TRUE(user.At("FrmDetec").visible);
  EXPECT_EQ(user.Record().FirstInRange, 1);
  EXPECT_EQ(user.Record().LastInRange, 6);
  EXPECT_EQ(user.Record().NInRange, 6);
  EXPECT_EQ(user.Record().df, 5);
  EXPECT_EQ(user.Text("DegreesLbl"), "6");
  EXPECT_EQ(user.Record().LOQ, 0.95);
  EXPECT_EQ(user.Record().URR, 1.05 * 6);
  EXPECT_EQ(Operators(user), "======");
}

TEST(DetectionRange, TheFieldsShowTheLimitsThroughTheirMask) {
  ProgramSession user;
  OpenWithRange(user, {1.25, 2, 4.75});
  EXPECT_EQ(user.Text("DetecLTxb"), GlobalBAS::ShownTrimmed(user.Record(), user.Record().LOQ));
  EXPECT_EQ(user.Text("DetecUTxb"), GlobalBAS::ShownTrimmed(user.Record(), user.Record().URR));
  EXPECT_NE(user.Text("DetecLTxb"), "");
}

TEST(DetectionRange, UnsetLimitsAndBordersGetTheirDefaultsWhenItIsTicked) {
  ProgramSession user;
  user.OpenSeries({1, 2, 3, 4});
  user.Record().LOQ = 0;
  user.Record().URR = 0;
  user.Record().FirstInRange = 0;
  user.Record().LastInRange = 99;
  user.Click("DetecChB");
  EXPECT_EQ(user.Record().LOQ, 0.95);
  EXPECT_EQ(user.Record().URR, 1.05 * 4);
  EXPECT_EQ(user.Record().FirstInRange, 1);
  EXPECT_EQ(user.Record().LastInRange, 4);
}

TEST(DetectionRange, TheOperatorsTellWhatLiesOutside) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2.5");
  user.Type("DetecUTxb", "6.5");
  EXPECT_EQ(Operators(user), "<<====>>");
  EXPECT_EQ(user.Record().FirstInRange, 3);
  EXPECT_EQ(user.Record().LastInRange, 6);
  EXPECT_EQ(user.Record().NInRange, 4);
  EXPECT_EQ(user.Text("DegreesLbl"), "4");
  EXPECT_EQ(user.Record().df, 5);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(DetectionRange, AnOutcomeEqualToTheLowerLimitIsEqualAndOneEqualToTheUpperIsGreater) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2");
  user.Type("DetecUTxb", "7");
  EXPECT_EQ(Operators(user), "<=====>>");
}

TEST(DetectionRange, UntickedItGivesTheWholeSeriesBack) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2.5");
  user.Record().GM = 99;
  user.Record().RegressionOn = true;
  user.Click("DetecChB");
  EXPECT_FALSE(user.Record().DetecOn);
  EXPECT_FALSE(user.Record().RegressionOn);
  EXPECT_FALSE(user.At("FrmDetec").visible);
  for (const char* name : {"DegreesLbl", "DetecLTxb", "DetecUTxb"}) EXPECT_EQ(user.Text(name), "");
  EXPECT_EQ(user.Record().FirstInRange, 1);
  EXPECT_EQ(user.Record().LastInRange, 8);
  EXPECT_EQ(user.Record().NInRange, 8);
  EXPECT_EQ(user.Record().LOQ, 0.95);
  EXPECT_EQ(user.Record().URR, 1.05 * 8);
  EXPECT_EQ(user.Record().df, 7);
  EXPECT_LT(user.Record().GM, 8);
  EXPECT_EQ(Operators(user), "========");
}

// After a change of the program state a limit is shown anew on focus, and looking changes nothing.
TEST(DetectionRange, LookingAtALimitKeepsItToTheLastDigit) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2.123456789012");
  screen::Guarded(user.ports, user.At("DetecLTxb").GotFocus);
  EXPECT_TRUE(user.At("DetecLTxb").selectAll);
  user.Visit("DetecLTxb");
  user.Visit("DetecUTxb");
  EXPECT_EQ(user.Record().LOQ, 2.123456789012);
  EXPECT_EQ(user.Record().URR, 1.05 * 8);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(DetectionRange, ADecimalCommaIsRead) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Enter("DetecLTxb", "2,5");
  EXPECT_EQ(user.Record().LOQ, 2.5);
}

struct Refusal {
  const char* field;
  const char* entry;
  const char* title;
  std::string text;
  double limit;  // what stands in its place
};

TEST(DetectionRange, ARefusedLimitIsCorrectedUnderAMessageAndKeepsTheFocus) {
  const Refusal refusals[] = {
      {"DetecLTxb", "8", "Invalid LOQ", " 8 Invalid  regression range. LOQ set at 95% of the",
       0.95},
      {"DetecLTxb", "6.5", "Invalid LOQ", " 6.5 This Limit of Quantification (LOQ) makes", 5},
      {"DetecLTxb", ".5", "Invalid LOQ", " .5 The entered limit of quantification (LOQ) is", 0.95},
      {"DetecLTxb", "", "Invalid LOQ", " 0 The entered limit of quantification (LOQ) is", 0.95},
      {"DetecUTxb", "1", "Invalid regression range.", " 1 Invalid regression range.", 1.05 * 8},
      {"DetecUTxb", "2.5", "Invalid regression range.", " 2.5 Less than 3 values included", 4},
      {"DetecUTxb", "9", "Invalid regression range.", " 9 The entered upper regression", 1.05 * 8}};
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(std::string(refusal.field) + " " + refusal.entry);
    ProgramSession user;
    OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
    user.Type(refusal.field, refusal.entry);
    ASSERT_EQ(user.box.shown.size(), 1u);
    EXPECT_THAT(user.LastBox().title, testing::StartsWith(refusal.title));
    EXPECT_THAT(user.LastBox().text, testing::StartsWith(refusal.text));
    EXPECT_EQ(user.LastBox().icon, screen::Icon::Exclamation);
    const bool lower = std::string(refusal.field) == "DetecLTxb";
    const double limit = lower ? user.Record().LOQ : user.Record().URR;
    EXPECT_EQ(limit, refusal.limit);
    EXPECT_EQ(user.Text(refusal.field), GlobalBAS::ShownTrimmed(user.Record(), limit));
    EXPECT_EQ(user.Shown().focusWanted, &user.At(refusal.field));
  }
}

TEST(DetectionRange, OverAnotherScreenItStaysAsItWas) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2.5");
  user.Tab("basis");
  user.Tab("raw");
  EXPECT_TRUE(user.At("DetecChB").ticked);
  EXPECT_TRUE(user.At("FrmDetec").visible);
  EXPECT_EQ(user.Text("DetecLTxb"), "2.5");
  EXPECT_EQ(user.Text("DegreesLbl"), "6");
  EXPECT_EQ(Operators(user), "<<======");
}

TEST(DetectionRange, AfterAnEditTheOutcomesWithinItAreCountedAnew) {
  ProgramSession user;
  OpenWithRange(user, {1, 2, 3, 4, 5, 6, 7, 8});
  user.Type("DetecLTxb", "2.5");
  user.Type("DetecUTxb", "6.5");
  screen::Grid& grid = DataControl(user).DBGridVkr;
  ASSERT_TRUE(grid.Write(0, 2, "5.5"));
  EXPECT_EQ(user.Record().FirstInRange, 2);
  EXPECT_EQ(user.Record().LastInRange, 6);
  EXPECT_EQ(user.Record().NInRange, 5);
  EXPECT_EQ(user.Text("DegreesLbl"), "5");
  EXPECT_EQ(user.Record().df, 5);
  EXPECT_EQ(Operators(user), "<=====>>");
}

// One step of a scenario that the data control screen knows; false for another screen's.
bool Play(ProgramSession& user, const support::Row& row, const std::string& file) {
  const std::string& op = row.Text("op");
  if (op == "open_series")
    user.OpenFile(support::WriteTemporary("series.vkr", file));
  else if (op == "DetecChB" && row.Text("arg") == "1")
    user.Click("DetecChB");
  else if (op == "LOQ field")
    user.Type("DetecLTxb", row.Text("arg"));
  else if (op == "URR field")
    user.Type("DetecUTxb", row.Text("arg"));
  else
    return false;
  return true;
}

// The table evaluates a range when the descriptive screen is looked at, and keeps the whole
// sample's GSD until then; in the record it follows at once. One sum of squares has both: that of
// the row in which the series was opened. Without a degree of freedom there is no GSD.
double GSDInStep(const support::Row& row, const support::Row& opened) {
  const double df = row.Number("df");
  if (df < 1) return 0;
  const double lnGSD = std::log(opened.Number("GSD"));
  return std::exp(std::sqrt(lnGSD * lnGSD * opened.Number("df") / df));
}

void ExpectRecord(const support::Row& row, const support::Row& opened,
                  const ExposureSession& record) {
  const std::pair<const char*, double> exact[] = {{"DetecOn", record.DetecOn},
                                                  {"LOQ", record.LOQ},
                                                  {"URR", record.URR},
                                                  {"FirstInRange", record.FirstInRange},
                                                  {"LastInRange", record.LastInRange},
                                                  {"NInRange", record.NInRange},
                                                  {"RegressionOn", record.RegressionOn},
                                                  {"InputState", record.InputState},
                                                  {"df", record.df}};
  for (const auto& [column, value] : exact) EXPECT_EQ(value, row.Number(column)) << column;
  EXPECT_LT(support::RelativeError(record.GM, row.Number("GM")), 1E-12) << record.GM;
  EXPECT_EQ(record.noEstimates, row.Number("df") < 1);
  EXPECT_LT(support::RelativeError(record.GSD, GSDInStep(row, opened)), 1E-12) << record.GSD;
}

// What the table has once it has evaluated is what the record holds before the look already.
void ExpectEvaluated(const support::Row& row, const ExposureSession& record) {
  EXPECT_EQ(record.df, row.Number("df"));
  EXPECT_LT(support::RelativeError(record.GM, row.Number("GM")), 1E-12) << record.GM;
  EXPECT_LT(support::RelativeError(record.GSD, row.Number("GSD")), 1E-12) << record.GSD;
}

// The table takes the median for an outcome before the first, where the checks take the first.
bool ReachesBeyondTheSeries(const support::Row& row, const ExposureSession& record) {
  if (row.Text("op") == "LOQ field") return record.LastInRange < 4;
  return row.Text("op") == "URR field" && record.FirstInRange + 3 > record.M;
}

// Each scenario from its opened file on, up to the first step on another screen.
TEST(DetectionRange, SequencesOfLimitsLeaveTheRecordAsTheirTableSays) {
  std::map<std::string, std::string> files;
  for (const support::Row& row : support::ReadTable("series.csv"))
    files[row.Text("series")] += row.Text("value_as_entered") + "\r\n";
  std::unique_ptr<ProgramSession> user;
  int limits = 0;
  int evaluated = 0;
  const support::Row* opened = nullptr;
  const std::vector<support::Row> rows = support::ReadTable("scenarios.csv");
  for (const support::Row& row : rows) {
    SCOPED_TRACE(row.Where() + " " + row.Text("scenario") + ": " + row.Text("op"));
    if (row.Text("op") == "open_series") opened = &row;
    if (row.Text("op") == "open_series")
      user = files.count(row.Text("series")) ? std::make_unique<ProgramSession>() : nullptr;
    if (user) user->box.shown.clear();
    if (user && row.Text("op") == "DescriptActivate") {
      ExpectEvaluated(row, user->Record());
      ++evaluated;
    }
    if (!user || ReachesBeyondTheSeries(row, user->Record()) ||
        !Play(*user, row, files.at(row.Text("series")))) {
      user.reset();
      continue;
    }
    ExpectRecord(row, *opened, user->Record());
    const std::string told = user->box.shown.empty() ? "" : "MESSAGE " + user->LastBox().text;
    EXPECT_EQ(told, row.Text("result"));
    if (row.Text("op").ends_with(" field")) ++limits;
  }
  EXPECT_GE(limits, 9) << "steps played";
  EXPECT_GE(evaluated, 2);
}

}  // namespace
