// The plot screen: transformations, range, mouse, tabs, kinds, saving.
#include "plots/plot_form.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "analysis/transformations.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "tests/analysis/fit_data.h"
#include "tests/plots/plot_screen.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using plot_screen::kTen;
using support::Row;

class PlotScreen : public testing::Test {
 protected:
  plot_screen::User p;
  ExposureSession& s = p.Record();
};

}  // namespace

TEST_F(PlotScreen, OpensOnTheLogarithmicScaleWithTheLineThroughAllOutcomes) {
  p.See(kTen);
  EXPECT_EQ(p.Shown().name, "PlotForm");
  EXPECT_EQ(s.CurrentTab, ScreenId::Plot);
  EXPECT_EQ(p.Plot().state.Transformation, "Log(x)");
  EXPECT_TRUE(p.At("MenuLog").ticked);
  EXPECT_EQ(p.Text("WindnrLbl"), "17a");
  EXPECT_EQ(p.Text("LblDescrip"), "Sample size\rM= 10");
  EXPECT_FALSE(p.At("LblLnLOQ").visible);
  EXPECT_FALSE(p.At("LblMedian").visible);
  EXPECT_FALSE(p.At("VScLowLimit").visible);
  EXPECT_FALSE(p.At("MemuOtherPlots").visible);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotScreen, ANameThatIsTooLongForTheHeadlineStandsInTheTip) {
  p.See(kTen);
  EXPECT_EQ(p.Plot().PicPlot.tip, "");
  s.Name = std::string(150, 'W');
  p.Click("MenuRedraw");
  EXPECT_EQ(p.Plot().PicPlot.tip, s.Name);
}

TEST_F(PlotScreen, LaysTheSeriesOutAfreshEachTimeItOpens) {
  p.See(kTen);
  p.Click("MenuSqrt");
  p.Tab("basis");
  p.OpenSeries({1, 4, 9, 16});
  ASSERT_TRUE(p.Tab("plot"));
  EXPECT_EQ(p.Plot().state.Transformation, "Sqr(x)");
  const std::vector<double>& laidOut = p.Plot().state.CTransf;
  EXPECT_EQ(std::vector<double>(laidOut.begin() + 1, laidOut.begin() + 5),
            (std::vector<double>{1, 2, 3, 4}));
  EXPECT_EQ(s.LnC[2], std::log(4.0)) << "the record's logarithms are no matter of the scale";
}

TEST_F(PlotScreen, FallsBackToTheLogarithmWhereTheScaleDoesNotFitTheSeries) {
  p.See({2, 3, 5, 9});
  p.Click("MenuDubLog");
  EXPECT_EQ(p.Plot().state.Transformation, "Lg(Lg(x))");
  p.Tab("basis");
  p.OpenSeries(kTen);
  ASSERT_TRUE(p.Tab("plot"));
  EXPECT_EQ(p.Plot().state.Transformation, "Log(x)");
  EXPECT_NEAR(p.Plot().state.CTransf[1], std::log(0.21), 1e-15);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotScreen, RefusesTheDoubleLogarithmOfALowestOutcomeOfExactlyOne) {
  p.See({1, 2, 3, 4});
  const std::vector<double> before = p.Plot().state.CTransf;
  p.Click("MenuDubLog");
  EXPECT_EQ(p.LastBox().title, "Invalid transformation");
  EXPECT_EQ(p.LastBox().text,
            "Some of the exposure data are less than unity.\r"
            "Double logarithmic transformation is invalid");
  EXPECT_EQ(p.Plot().state.Transformation, "Log(x)");
  EXPECT_TRUE(p.At("MenuLog").ticked);
  EXPECT_EQ(p.Plot().state.CTransf, before);
  EXPECT_FALSE(p.Shown().busyPointer);
}

TEST_F(PlotScreen, AcceptsTheExponentialOfAHighestOutcomeOfExactlyFortyFour) {
  p.See({1, 2, 3, 44});
  p.Click("MenuExp");
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(p.Plot().state.Transformation, "Exp(x)");
  plot_screen::User q;
  q.See({1, 2, 3, 44.1});
  q.Click("MenuExp");
  EXPECT_EQ(
      q.LastBox().text,
      "Some of the exposure data are more than 44.\rExponential transformation is impossible");
  EXPECT_EQ(q.Plot().state.Transformation, "Log(x)");
}

TEST_F(PlotScreen, TransformationMenusAnswerAsTheReferenceTableSays) {
  int rows = 0;
  for (const Row& row : support::ReadTable("transform_menus.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series") + " " + row.Text("menu"));
    const std::vector<double>& series = fit_data::SortedSeries().at(row.Text("series"));
    plot_screen::User user;
    user.OpenSeries({series.begin() + 1, series.end()});
    if (!user.Tab("plot") || user.Record().M != static_cast<double>(series.size() - 1)) continue;
    user.Click(row.Text("menu"));
    ++rows;
    if (row.Text("accepted") == "1") {
      EXPECT_TRUE(user.box.shown.empty());
      EXPECT_EQ(user.Plot().state.Transformation, row.Text("Transformation"));
      continue;
    }
    EXPECT_EQ(user.Plot().state.Transformation, "Log(x)");
    EXPECT_EQ(user.LastBox().title, row.Text("MsgTitle"));
    EXPECT_EQ(user.LastBox().text, fit_data::Unescaped(row.Text("MsgText")));
  }
  EXPECT_GE(rows, 15);
}

TEST_F(PlotScreen, ShowsTheTransformedOutcomesOfTheReferenceTable) {
  std::string open;
  int rows = 0;
  plot_screen::User user;
  for (const Row& row : support::ReadTable("ctransf.csv")) {
    const std::string now = row.Text("series") + row.Text("menu");
    if (now != open) {
      const std::vector<double>& series = fit_data::SortedSeries().at(row.Text("series"));
      user.Tab("basis");
      user.OpenSeries({series.begin() + 1, series.end()});
      ASSERT_TRUE(user.Tab("plot"));
      user.Click(row.Text("menu"));
      open = now;
    }
    const auto i = static_cast<std::size_t>(row.Number("i"));
    if (i == 0) continue;  // no point
    table::Expect(row, {"series", "menu", "i"}, "CTransf (element 0 was -5 before)", 1e-13,
                  [&] { return user.Plot().state.CTransf.at(i); });
    ++rows;
  }
  EXPECT_GE(rows, 180);
}

// The digits with which the reference tables show each series.
std::map<std::string, std::int16_t> TableDigits() {
  std::map<std::string, std::int16_t> digits;
  for (const Row& row : support::ReadTable("shapiro.csv"))
    digits[row.Text("series")] = static_cast<std::int16_t>(row.Number("SigDigits"));
  return digits;
}

// Which estimates the label names, as the reference table writes it.
std::string NamesOfEstimates(const std::string& text) {
  const bool geometric = text.find("\rGMg=") < text.find("\rGSDg=");
  const bool linear = text.find("\rx=") < text.find("\rs=");
  EXPECT_EQ(geometric || linear, text.find("Rankit\restimates:\r") != std::string::npos);
  return geometric ? "GMg=;GSDg=" : linear ? "x=;s=" : "";
}

// The two lines of the estimates that the label must show.
std::string ShownEstimates(const Row& row, const ExposureSession& s) {
  const auto line = [&](const char* name, const char* column) {
    return name + GlobalBAS::Shown(s, row.Number(column)) + "\r";
  };
  if (row.Text("estimates").empty()) return {};
  return row.Text("GMg").empty() ? line("\rx=", "a") + line("s=", "b")
                                 : line("\rGMg=", "GMg") + line("GSDg=", "GSDg");
}

// The tests and estimates of the reference series, as the labels show them.
TEST_F(PlotScreen, ShowsFitAndEstimatesOfTheReferenceTable) {
  const auto digits = TableDigits();
  std::string open;
  int rows = 0;
  for (const Row& row : support::ReadTable("regression.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series") + " " + row.Text("menu"));
    const std::vector<double>& series = fit_data::SortedSeries().at(row.Text("series"));
    if (row.Text("series") != open) {
      p.Tab("basis");
      p.OpenSeries({series.begin() + 1, series.end()});
      open = row.Text("series");
      p.Tab("plot");
    }
    if (p.Shown().name != "PlotForm" || row.Number("LOQ") > row.Number("URR")) continue;
    p.Click("MenuRemDetec");
    p.Click(row.Text("menu"));
    s.SigDigits = digits.at(row.Text("series"));
    s.DetecOn = !row.Text("LOQ_in").empty() || !row.Text("URR_in").empty();
    s.FirstInRange = static_cast<std::int16_t>(row.Number("First"));
    s.LastInRange = static_cast<std::int16_t>(row.Number("Last"));
    s.LOQ = row.Number("LOQ");
    s.URR = row.Number("URR");
    s.NInRange = static_cast<std::int16_t>(row.Number("NInRange"));
    DegreesOfFreedom(s);
    p.Click("MenuRedraw");
    if (p.Plot().state.Transformation != fit_data::NameOfMenu(row.Text("menu"))) continue;
    // Two outcomes always lie on a line: there is nothing to test.
    EXPECT_EQ(p.Text("LblShapiro"),
              s.NInRange < 3 ? "Shapiro's test\rGoodness-of-fit\rprobability: \rnot possible\r"
                             : fit_data::Unescaped(row.Text("text")));
    EXPECT_EQ(NamesOfEstimates(p.Text("LblDescrip")), row.Text("estimates"));
    // The record's own width is back by now: the line has changed what the statistics rest on.
    ExposureSession drawn = s;
    drawn.SigDigits = digits.at(row.Text("series"));
    EXPECT_NE(p.Text("LblDescrip").find(ShownEstimates(row, drawn)), std::string::npos)
        << p.Text("LblDescrip") << " lacks " << ShownEstimates(row, drawn);
    table::Expect(row, {"series", "menu"}, "GM", 1e-12, [&] { return s.GM; });
    table::Expect(row, {"series", "menu"}, "GSD", 1e-12, [&] { return s.GSD; });
    ++rows;
  }
  EXPECT_GE(rows, 400);
}

TEST_F(PlotScreen, OfThreeOutcomesShowsTheNegativeProbabilityOfTheMethod) {
  p.See({1, 2, 5});
  EXPECT_NE(p.Text("LblShapiro").find("A(W)=-"), std::string::npos) << p.Text("LblShapiro");
  EXPECT_TRUE(p.At("LblMedian").visible);
}
