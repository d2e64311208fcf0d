#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "session/derivation.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// The descriptive statistics screen against tables of states: what it shows and what it leaves.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using support::Row;

constexpr double kTolerance = 1e-12;
constexpr double kNeverComputed = -7;  // what the table's record holds in a field before its start
const std::string kRegression = " Rankit estimate GMg=";

std::int16_t Whole(double value) { return static_cast<std::int16_t>(value); }

// Outcomes and logarithms in order; index 0 is the median.
void LoadSeries(ExposureSession& s, const std::string& name) {
  s.C.clear();
  s.LnC.clear();
  for (const Row& row : support::ReadTable("series_sorted.csv")) {
    if (row.Text("series") != name) continue;
    s.C.push_back(row.Number("C"));
    s.LnC.push_back(row.Number("LnC"));
  }
  s.M = static_cast<double>(s.C.size()) - 1;
  s.Mode = DataMode::Raw;
  s.Name = name;
  s.Unit = "mg/m3";
  s.SigDigits = ConsequencesOf(s).derived.SigDigits;
  s.SDlin = s.AMmv = kNeverComputed;
  s.InputState = 0;
}

void SetRange(ExposureSession& s, const Row& row) {
  s.DetecOn = row.Text("shown WindnrLbl") == "20c";
  s.NInRange = Whole(row.Number(s.DetecOn ? "shown DegreesLbl(11)" : "shown DegreesLbl(5)"));
  if (!s.DetecOn) return;
  s.LOQ = row.Number("shown DetecLTxb");
  s.URR = row.Number("shown DetecUTxb");
  s.FirstInRange = Whole(row.Number("shown DegreesLbl(5)") + 1);
  s.LastInRange = Whole(s.M - row.Number("shown DegreesLbl(9)"));
  const std::string label = row.Text("shown GMLbl");
  const std::size_t words = label.find(kRegression);
  s.RegressionOn = words != std::string::npos;
  s.inForce = Estimates::RangeDegrees;
  if (!s.RegressionOn) return;
  s.RegressionLabel = label.substr(0, words);
  s.regression = RegressionEstimates{row.Number("GM"), row.Number("GSD")};
  s.inForce = Estimates::Regression;
}

// A sample without spread gives no estimates.
bool NoSpread(const Row& row) { return row.Number("InputState") == 4; }

// The table also has states in which GSD is still that of the whole sample beside the degrees of
// freedom of a range. Only a script can make them now.
bool OutOfStep(const Row& row) { return row.Number("GSD_before") != row.Number("GSD"); }

void SetState(ExposureSession& s, const Row& row) {
  LoadSeries(s, row.Text("series"));
  s.df = row.Number("df");
  s.GM = row.Number("GM_before");
  s.GSD = row.Number("GSD_before");
  s.AMmv = row.Number("AMmv_before");
  s.noEstimates = NoSpread(row);
  SetRange(s, row);
}

struct Field {
  const char* name;
  double ExposureSession::*value;
};

constexpr Field kRecord[] = {{"GM", &ExposureSession::GM},       {"GSD", &ExposureSession::GSD},
                             {"GMu", &ExposureSession::GMu},     {"LnGM", &ExposureSession::LnGM},
                             {"LnGSD", &ExposureSession::LnGSD}, {"AMml", &ExposureSession::AMml},
                             {"AMu", &ExposureSession::AMu},     {"AMmv", &ExposureSession::AMmv},
                             {"XM", &ExposureSession::XM},       {"SDu", &ExposureSession::SDu},
                             {"SDlin", &ExposureSession::SDlin}};

void ExpectClose(double result, double truth, const std::string& where) {
  EXPECT_LE(support::RelativeError(result, truth), kTolerance)
      << where << ": result " << GlobalBAS::GeneralText(result) << ", table "
      << GlobalBAS::GeneralText(truth) << ", relative error "
      << GlobalBAS::GeneralText(support::RelativeError(result, truth));
}

class DescriptiveTable : public testing::Test {
 protected:
  void ExpectShown(const Row& row, const std::string& column, const std::string& control) {
    EXPECT_EQ(p.Text(control), GlobalBAS::Shown(p.Record(), row.Number(column)))
        << row.Where() << " " << row.Text("series") << ", " << row.Text("state") << ": " << control;
  }

  void ExpectBoxes(const Row& row) {
    for (const char* box :
         {"GMTxB", "GMuTxB", "GSDTxB", "AMmlTxb", "AMuTxb", "SDUTxb", "AmlinTxb", "SDlinTxb"}) {
      if (NoSpread(row))
        EXPECT_EQ(p.Text(box), "   unknown") << row.Where() << " " << box;
      else
        ExpectShown(row, std::string("shown ") + box, box);
    }
    if (NoSpread(row) || row.Number("df") <= 3)
      EXPECT_EQ(p.Text("AMmvTxb"), "   unknown") << row.Where();
    else
      ExpectShown(row, "shown AMmvTxb", "AMmvTxb");
  }

  void ExpectRange(const Row& row) {
    ExpectShown(row, "shown DegreesLbl(5)", "DegreesLbl(5)");
    EXPECT_EQ(p.Text("WindnrLbl"), row.Text("shown WindnrLbl")) << row.Where();
    EXPECT_EQ(p.Text("GMLbl"), row.Text("shown GMLbl")) << row.Where();
    EXPECT_EQ(p.Text("GSDLbl"), row.Text("shown GSDLbl")) << row.Where();
    EXPECT_EQ(p.At("DetecFrame").visible, p.Record().DetecOn) << row.Where();
    if (!p.Record().DetecOn) {
      EXPECT_EQ(p.Text("DetecLTxb"), "none") << row.Where();
      EXPECT_EQ(p.Text("DetecUTxb"), "none") << row.Where();
      return;
    }
    for (const char* shown :
         {"DetecLTxb", "DetecUTxb", "DegreesTxb", "DegreesLbl(9)", "DegreesLbl(11)"})
      ExpectShown(row, std::string("shown ") + shown, shown);
    EXPECT_EQ(p.Text("DegreesLbl(6)"),
              GlobalBAS::FormatNumber(row.Number("shown fraction"), "   ##0.##") + " %")
        << row.Where();
  }

  void ExpectRecord(const Row& row) {
    for (const Field& field : kRecord)
      ExpectClose(
          p.Record().*field.value, row.Number(field.name),
          row.Where() + " " + row.Text("series") + ", " + row.Text("state") + ": " + field.name);
    EXPECT_EQ(p.Record().InputState, row.Number("InputState")) << row.Where();
  }

  // The look has put GM and GSD in step; what was computed from others is gone. The next look has
  // the numbers of the row behind, which begins where this one ends.
  void ExpectInStep(const Row& row, const Row& next) {
    const ExposureSession& s = p.Record();
    ExpectClose(s.GM, row.Number("GM"), row.Where() + " GM");
    ExpectClose(s.GSD, row.Number("GSD"), row.Where() + " GSD");
    for (const Field& field : std::span(kRecord).subspan(2))
      EXPECT_EQ(s.*field.value, 0) << row.Where() << " " << field.name;
    ASSERT_EQ(next.Text("series") + next.Text("state"), row.Text("series") + "activated again");
    p.Record().AMmv = next.Number("AMmv_before");
    p.program.Open(ScreenId::Descript);
    ExpectBoxes(next);
    ExpectRange(next);
    ExpectRecord(next);
  }

  // Without spread there is a mean, and nothing else.
  void ExpectMeanAlone(const Row& row) {
    const ExposureSession& s = p.Record();
    ExpectClose(s.GM, row.Number("GM"), row.Where() + " GM");
    for (const Field& field : std::span(kRecord).subspan(1))
      EXPECT_EQ(s.*field.value, 0) << row.Where() << " " << field.name;
    EXPECT_EQ(s.InputState, 4) << row.Where();
  }

  ProgramSession p;
};

}  // namespace

TEST_F(DescriptiveTable, EveryStateShowsItsEstimatorsAndLeavesThemInTheRecord) {
  const std::vector<Row> rows = support::ReadTable("descriptive.csv");
  int outOfStep = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Row& row = rows[i];
    ASSERT_EQ(row.Text("fault"), "") << row.Where();
    p.Record() = ExposureSession();
    SetState(p.Record(), row);
    p.program.Open(ScreenId::Descript);
    ExpectBoxes(row);
    ExpectRange(row);
    if (NoSpread(row)) {
      ExpectMeanAlone(row);
    } else if (OutOfStep(row)) {
      ++outOfStep;
      ExpectInStep(row, rows.at(i + 1));
    } else {
      ExpectRecord(row);
    }
  }
  EXPECT_GT(outOfStep, 10);
}

// Known statistics are judged as they were entered: the estimators of the sample's own statistics,
// with the moments that follow from them.
TEST_F(DescriptiveTable, TheSameStatisticsEnteredByHandGiveTheSameEstimators) {
  Row sample({}, "");
  for (const Row& row : support::ReadTable("descriptive.csv")) {
    if (row.Text("state") == "opened") sample = row;
    if (row.Text("state") != "DetecOn, whole range, RegressionOn false") continue;
    ASSERT_EQ(sample.Text("series"), row.Text("series"));
    ExposureSession& s = p.Record();
    s = ExposureSession();
    SetState(s, sample);
    s.Mode = DataMode::Statistics;
    p.program.Open(ScreenId::Descript);
    for (const Field& field : kRecord) {
      const std::string name = field.name;
      const Row& truth = name == "XM" || name == "SDlin" ? row : sample;
      ExpectClose(s.*field.value, truth.Number(name), truth.Where() + " by hand: " + name);
    }
    EXPECT_EQ(p.Text("WindnrLbl"), "20a");
  }
}

TEST_F(DescriptiveTable, RealisticSeriesGiveTheirEstimatorsFromTheFileOn) {
  for (const Row& row : support::ReadTable("realistic.csv")) {
    ExposureSession series;
    LoadSeries(series, row.Text("series"));
    p.OpenSeries({series.C.begin() + 1, series.C.end()});
    ASSERT_TRUE(p.Tab("descript"));
    EXPECT_EQ(p.Record().M, row.Number("M"));
    for (const char* name : {"GM", "GSD", "GMu", "AMml", "AMu", "AMmv", "SDu", "XM", "SDlin"})
      for (const Field& field : kRecord)
        if (std::string(name) == field.name)
          ExpectClose(p.Record().*field.value, row.Number(name), row.Where() + " " + name);
    p.Tab("basis");
  }
}

TEST_F(DescriptiveTable, RegressionEstimatesOfRealisticSeriesFlowIntoAllOthers) {
  for (const Row& row : support::ReadTable("realistic.csv")) {
    ExposureSession& s = p.Record();
    s = ExposureSession();
    LoadSeries(s, row.Text("series"));
    s.DetecOn = s.RegressionOn = true;
    s.inForce = Estimates::Regression;
    s.regression = RegressionEstimates{row.Number("range GM"), row.Number("range GSD")};
    s.RegressionLabel = "Double censored";
    s.LOQ = row.Number("LOQ");
    s.URR = row.Number("URR");
    s.FirstInRange = Whole(row.Number("First"));
    s.LastInRange = Whole(row.Number("Last"));
    s.NInRange = Whole(row.Number("NInRange"));
    DegreesOfFreedom(s);
    EXPECT_EQ(s.df, row.Number("df")) << row.Where();
    s.GM = row.Number("range GM");
    s.GSD = row.Number("range GSD");
    p.program.Open(ScreenId::Descript);
    EXPECT_EQ(p.Text("GMLbl"), "Double censored Rankit estimate GMg=");
    EXPECT_EQ(s.GM, row.Number("range GM")) << "the sample's own must not come back";
    for (const char* name : {"GMu", "AMml", "AMu", "AMmv", "SDu", "XM", "SDlin"})
      for (const Field& field : kRecord)
        if (std::string(name) == field.name)
          ExpectClose(s.*field.value, row.Number(std::string("then ") + name),
                      row.Where() + " then " + name);
  }
}
