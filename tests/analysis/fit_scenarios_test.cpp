// Sequences of user actions around the plot screen, as far as they are calculations: the record
// after each step. Steps on other screens are taken from the table.
#include <gtest/gtest.h>

#include <optional>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/transformations.h"
#include "session/limit_checks.h"
#include "session/moments.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using analysis::FitState;
using analysis::Regression;
using support::Row;

double LowestLimit(const ExposureSession& s) { return 0.95 * s.C[1]; }
double HighestLimit(const ExposureSession& s) { return 1.05 * s.C.back(); }

// One user with one plot screen.
struct Player {
  ExposureSession s;
  FitState state;
  std::optional<Regression> drawn;  // by the last step
  std::string result;

  void Draw() { drawn = ProbabilityRegression(s, state); }

  void Transform(const std::string& menu) {
    const std::string name = fit_data::NameOfMenu(menu);
    if (!analysis::FillCTransf(s, name)) {
      result = "REFUSED";
      return;
    }
    state.Transformation = name;
    Draw();
  }

  void ActivatePlot() {
    state.RankitTable = analysis::RankitsForSampleSize(static_cast<int>(s.M));
    if (state.Transformation.empty())
      Transform("MenuLog");
    else
      Draw();
  }

  void MoveBar(const std::string& bar, double v) {
    s.MsgText.clear();
    const double span = s.LnC.back() - s.LnC[1];
    const double t = s.LnC.back() - v * span / 100;
    const double limit = analysis::InverseTransform(state.Transformation, t);
    if (bar == "VScLowLimit")
      ControleOndergrens(s, limit);
    else
      ControleBovengrens(s, limit);
    if (s.MsgText.empty())
      Draw();
    else
      result = "MESSAGE " + s.MsgText;
  }

  void StartLowerLimit() {
    s.DetecOn = true;
    const bool stands =
        LowestLimit(s) <= s.LOQ && s.LOQ <= s.C.at(static_cast<std::size_t>(s.LastInRange - 2));
    if (!stands) s.LOQ = LowestLimit(s);
    Draw();
  }

  void StartUpperLimit() {
    s.DetecOn = true;
    const bool stands =
        s.C.at(static_cast<std::size_t>(s.FirstInRange + 2)) < s.URR && s.URR <= HighestLimit(s);
    if (!stands) s.URR = HighestLimit(s);
    Draw();
  }

  void RemoveRange() {
    s.DetecOn = false;
    s.RegressionOn = false;
    s.LOQ = LowestLimit(s);
    s.URR = HighestLimit(s);
    s.FirstInRange = 1;
    s.LastInRange = s.NInRange = static_cast<std::int16_t>(s.M);
    DegreesOfFreedom(s);
    LogMoments(s, s.GM, s.GSD);
    Draw();
  }
};

// What a step on another screen leaves in the record.
void Adopt(ExposureSession& s, const Row& row) {
  const auto whole = [&](const char* column) {
    return static_cast<std::int16_t>(row.Number(column));
  };
  s.DetecOn = row.Text("DetecOn") == "1";
  s.RegressionOn = row.Text("RegressionOn") == "1";
  s.LOQ = row.Number("LOQ");
  s.URR = row.Number("URR");
  s.FirstInRange = whole("FirstInRange");
  s.LastInRange = whole("LastInRange");
  s.NInRange = whole("NInRange");
  s.InputState = whole("InputState");
  s.df = row.Number("df");
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.GMu = row.Number("GMu");
  s.SDu = row.Number("SDu");
}

// Plays a step of the plot screen; false when it is one of another screen.
bool Play(Player& user, const Row& row) {
  const std::string& op = row.Text("op");
  user.drawn.reset();
  user.result.clear();
  if (op == "PlotActivate")
    user.ActivatePlot();
  else if (op == "PlotStatus")
    user.Draw();
  else if (op == "MenuLowLim")
    user.StartLowerLimit();
  else if (op == "MenuUpLim")
    user.StartUpperLimit();
  else if (op == "MenuRemDetec")
    user.RemoveRange();
  else if (op == "VScLowLimit" || op == "VScUplimit")
    user.MoveBar(op, row.Number("arg"));
  else if (op.starts_with("Menu"))
    user.Transform(op);
  else
    return false;
  return true;
}

void ExpectRange(const Row& row, const ExposureSession& s) {
  EXPECT_EQ(s.DetecOn, row.Text("DetecOn") == "1");
  EXPECT_NEAR(s.LOQ, row.Number("LOQ"), 1e-14 * s.LOQ);
  EXPECT_NEAR(s.URR, row.Number("URR"), 1e-14 * s.URR);
  EXPECT_EQ(s.FirstInRange, row.Number("FirstInRange"));
  EXPECT_EQ(s.LastInRange, row.Number("LastInRange"));
  EXPECT_EQ(s.NInRange, row.Number("NInRange"));
  EXPECT_EQ(s.RegressionOn, row.Text("RegressionOn") == "1");
  EXPECT_EQ(s.RegressionLabel, row.Text("RegressionLabel"));
  EXPECT_EQ(s.df, row.Number("df"));
  EXPECT_EQ(s.InputState, row.Number("InputState"));
}

void ExpectStatistics(const Row& row, const ExposureSession& s) {
  const auto expect = [&](const char* column, double result) {
    table::Expect(row, {"op", "arg"}, column, 1e-12, [&] { return result; });
  };
  expect("GM", s.GM);
  // The table's removal divides by the df of the range that goes; here by that of all outcomes.
  if (row.Text("op") == "MenuRemDetec") return;
  expect("GSD", s.GSD);
  expect("GMu", s.GMu);
  expect("SDu", s.SDu);
}

void ExpectDrawn(const Row& row, const std::optional<Regression>& drawn) {
  ASSERT_EQ(drawn.has_value(), !row.Text("a").empty());
  if (!drawn) return;
  const auto expect = [&](const char* column, double result) {
    table::Expect(row, {"op", "arg"}, column, 1e-9, [&] { return result; });
  };
  expect("a", drawn->a);
  expect("b", drawn->b);
  expect("W", drawn->test.W);
  expect("PW", drawn->test.PW);
  EXPECT_EQ(drawn->test.fault, row.Number("fault"));
}

TEST(PlotScenarios, LeaveTheRecordAsTheTableSaysAfterEachStep) {
  table::LoadDelivered();
  Player user;
  int played = 0;
  for (const Row& row : support::ReadTable("scenarios.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("scenario") + ": " + row.Text("op"));
    const auto series = fit_data::SortedSeries().find(row.Text("series"));
    if (series == fit_data::SortedSeries().end()) continue;  // its outcomes are not known
    if (row.Text("op") == "open_series")
      user = Player{fit_data::Opened(series->second), {}, {}, {}};
    if (!Play(user, row)) {
      Adopt(user.s, row);
      continue;
    }
    ++played;
    // A range with nothing in front of it takes the first outcome, where the table has the median.
    if (user.s.M == 3 && !user.result.empty()) {
      EXPECT_EQ(user.s.LOQ, user.s.C[1]);
      user.s.LOQ = row.Number("LOQ");
    }
    EXPECT_EQ(user.result, fit_data::Unescaped(row.Text("result")));
    EXPECT_EQ(user.state.Transformation, row.Text("Transformation"));
    EXPECT_EQ(user.state.weights.ShapiroN, user.s.M);
    ExpectRange(row, user.s);
    ExpectStatistics(row, user.s);
    ExpectDrawn(row, user.drawn);
  }
  EXPECT_GE(played, 84);
}

TEST(PlotScenarios, RemovingTheRangeGivesTheSampleEstimatorsAtOnce) {
  table::LoadDelivered();
  Player user{fit_data::Opened(fit_data::SortedSeries().at("Seq9")), {}, {}, {}};
  user.ActivatePlot();
  const ExposureSession whole = user.s;
  user.StartLowerLimit();
  user.MoveBar("VScLowLimit", 70);
  EXPECT_NE(user.s.GSD, whole.GSD);
  user.RemoveRange();
  EXPECT_EQ(user.s.GM, whole.GM);
  EXPECT_EQ(user.s.GSD, whole.GSD);
  EXPECT_EQ(user.s.GMu, whole.GMu);
  EXPECT_EQ(user.s.LOQ, whole.LOQ);
  EXPECT_EQ(user.s.URR, whole.URR);
  EXPECT_EQ(user.s.NInRange, 9);
}

}  // namespace
