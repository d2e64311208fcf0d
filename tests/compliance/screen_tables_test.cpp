#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "catalog/catalog.h"
#include "tests/compliance/compliance_screen.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"
#include "tests/support/record.h"

// The tables of whole sessions on the screen: every text to the character.
namespace {

using support::Row;

class TablesOnTheComplianceScreen : public ComplianceScreen {
 protected:
  void OpenRow(const Row& row) {
    const ExposureSession s = support::RecordOf(row);
    Open(s.M, s.GM, s.GSD, s.OELV.value(), s.U, row.Has("D") ? s.D : 70);
    p.Record().df = s.df;
    Open();
    p.box.shown.clear();
  }

  // "value:x" is x as the screen shows it, "text:..." the text.
  std::string Box(const std::string& field) {
    if (field.starts_with("text:3")) return Caption(field.substr(5));
    if (field.starts_with("text:")) return field.substr(5);
    const Row plain({{"value", field.substr(6)}}, field);
    return Number(plain.Number("value"));
  }
  static std::string Caption(const std::string& row) { return LoadResString(std::stoi(row)); }

  // "3403+CR+3442" as the text that it stands for.
  std::string Composed(const std::string& parts) const {
    std::string text;
    for (std::size_t from = 0; from < parts.size();) {
      const std::size_t to = std::min(parts.find('+', from), parts.size());
      const std::string part = parts.substr(from, to - from);
      text += part == "CR" ? "\r" : Caption(part);
      from = to + 1;
    }
    return text;
  }

  void ExpectLeidel(const Row& row) {
    p.Click("LeidelCmb");
    EXPECT_EQ(form.PercExTxB0.text, Box(row.Text("Le_box0"))) << row.Where();
    EXPECT_EQ(form.PercExTxB1.text, Number(row.Number("Le_UTL"))) << row.Where();
    EXPECT_EQ(form.ComplianceLbl.text, Caption(row.Text("Le_label"))) << row.Where();
    EXPECT_EQ(Green(form.ComplianceLbl), row.Text("Le_label") == "2307") << row.Where();
  }

  void ExpectWilks(const Row& row) {
    const double before = p.Record().UTL;
    p.Click("WilksCmb");
    if (row.Number("Wi_robust") == 1) {
      EXPECT_EQ(form.PercExTxB0.text, Box(row.Text("Wi_box0"))) << row.Where();
    }
    const bool clamped = !row.Text("Wi_clamp").empty();
    const double limit = clamped ? before : row.Number("Wi_UTL");
    EXPECT_EQ(form.PercExTxB1.text, Number(limit)) << row.Where();
    EXPECT_EQ(form.ComplianceLbl.text, Caption(row.Text("Wi_label"))) << row.Where();
    EXPECT_EQ(Green(form.ComplianceLbl), row.Text("Wi_label") == "2309") << row.Where();
  }

  void ExpectEN689(const Row& row) {
    p.Click("TuggleCmb");
    EXPECT_EQ(form.PercExTxB0.text, Number(row.Number("Tu_PercEx"))) << row.Where();
    EXPECT_EQ(form.PercExTxB1.text, Box(row.Text("Tu_box1"))) << row.Where();
    const std::string& label = row.Text("Tu_label");
    EXPECT_EQ(form.ComplianceLbl.visible, p.Record().df > 4) << row.Where();
    if (!label.empty()) {
      EXPECT_EQ(form.ComplianceLbl.text, Caption(label)) << row.Where();
      EXPECT_EQ(Green(form.ComplianceLbl), label == "2305") << row.Where();
    }
  }

  // The columns of the frame have a prefix of their own in each table.
  void ExpectFrame(const Row& row, const char* comment, const char* degrees, const char* degreesBox,
                   const char* percent, const char* percentBox, const char* sample,
                   const char* sampleBox) {
    EXPECT_TRUE(form.SampsizeFrm.visible) << row.Where();
    EXPECT_EQ(form.ComMinLbl.text, Composed(row.Text(comment))) << row.Where();
    EXPECT_EQ(form.DegrMinLbl.text, Caption(row.Text(degrees))) << row.Where();
    EXPECT_EQ(form.DegrMinTxb.text, Box(row.Text(degreesBox))) << row.Where();
    EXPECT_EQ(form.PercExLbl3.text, Caption(row.Text(percent))) << row.Where();
    EXPECT_EQ(form.PercExTxB3.text, Box(row.Text(percentBox))) << row.Where();
    if (!row.Text(sample).empty()) {
      EXPECT_EQ(form.SampMinLbl.text, Caption(row.Text(sample))) << row.Where();
    }
    EXPECT_EQ(form.SampMinTxB.text, Box(row.Text(sampleBox))) << row.Where();
  }
};

// Rows whose plain search for the fraction never ends, or ends in the text of the other end.
bool FractionEndsOtherwise(const Row& row) {
  const std::string& note = row.Text("note");
  return row.Text("Tu_state") != "ok" || note == "edge 6.4: GM well below the limit" ||
         note.starts_with("6.3: text");
}

}  // namespace

TEST_F(TablesOnTheComplianceScreen, EverySessionShowsItsThreeVerdicts) {
  int fractions = 0;
  int limits = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    OpenRow(row);
    EXPECT_EQ(form.VkrValLbl1.text, Number(row.Number("OELV")) + " ppm \\  8 hours");
    ExpectLeidel(row);
    ExpectWilks(row);
    if (row.Text("Tu_margin").empty()) continue;
    // A confidence met in the very step is exact in the table and on the screen alike.
    if (row.Number("Tu_margin") > 1e-7) {
      ExpectEN689(row);
      ++limits;
    } else {
      p.Click("TuggleCmb");
    }
    if (row.Number("Tu_robust") != 1 || FractionEndsOtherwise(row)) continue;
    EXPECT_EQ(form.PercExTxB2.text, Box(row.Text("Tu_box2"))) << row.Where();
    ++fractions;
    EXPECT_TRUE(p.box.shown.empty()) << row.Where();
  }
  EXPECT_GT(limits, 30);
  EXPECT_GT(fractions, 25);
}

TEST_F(TablesOnTheComplianceScreen, EverySessionShowsItsSmallestSample) {
  int looked = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    OpenRow(row);
    p.Click("WilksCmb");
    Tick();
    ExpectFrame(row, "Opt_ComMin", "Opt_DegrLbl", "Opt_Degr", "Opt_PercLbl", "Opt_Perc",
                "Opt_SampLbl", "Opt_Samp");
    EXPECT_EQ(p.box.shown.size(), row.Text("Opt_case") == "7.4" ? 1u : 0u) << row.Where();
    ++looked;
  }
  EXPECT_GT(looked, 30);
}

TEST_F(TablesOnTheComplianceScreen, EverySearchForTheSmallestSampleShowsItsFrame) {
  for (const Row& row : support::ReadTable("sample_size_optimisation.csv")) {
    OpenRow(row);
    p.Record().NInRange = static_cast<std::int16_t>(row.Number("NInRange"));
    p.Record().RegressionOn = row.Number("RegressionOn") == 1;
    p.Click("WilksCmb");
    ASSERT_EQ(p.Record().TestTag, support::TagOf(row.Text("TestTag"))) << row.Where();
    Tick();
    ExpectFrame(row, "ComMinLbl", "DegrMinLbl", "DegrMinTxb", "PercExLbl3", "PercExTxB3",
                "SampMinLbl", "SampMinTxB");
    ASSERT_EQ(p.box.shown.size(), row.Text("messages").empty() ? 0u : 1u) << row.Where();
    if (p.box.shown.empty()) continue;
    ASSERT_EQ(row.Text("messages"), "3400|3442");
    EXPECT_EQ(p.LastBox().title, LoadResString(3400));
    EXPECT_EQ(p.LastBox().text, LoadResString(3442));
  }
}

// After each step of the sequences the screen takes the estimates that stand in the record, and
// words them by the regression.
TEST_F(TablesOnTheComplianceScreen, EveryStepOfTheScenariosShowsInTheHeader) {
  int withRegression = 0;
  int without = 0;
  for (const Row& row : support::ReadTable("scenarios.csv")) {
    if (!row.Text("fault").empty() || row.Text("GM").empty()) continue;
    ExposureSession& s = p.Record();
    s.RegressionOn = row.Number("RegressionOn") == 1;
    s.RegressionLabel = row.Text("RegressionLabel");
    s.df = row.Number("df");
    s.GM = row.Number("GM");
    s.GSD = row.Number("GSD");
    Open();
    EXPECT_EQ(form.DegreesLbl.text, Number(row.Number("df"))) << row.Where();
    EXPECT_EQ(form.GMLbl.text, Number(row.Number("GM"))) << row.Where();
    EXPECT_EQ(form.GSDLbl.text, Number(row.Number("GSD"))) << row.Where();
    const std::string words = row.Text("RegressionLabel") + " Rankit estimate ";
    EXPECT_EQ(form.GMLbl0.text, s.RegressionOn ? words + "GMg=" : "Geometric Mean GM=");
    EXPECT_EQ(form.GSDLbl0.text,
              s.RegressionOn ? words + "GSDg=" : "Geometric Standard Deviation GSD=");
    ++(s.RegressionOn ? withRegression : without);
  }
  EXPECT_GT(withRegression, 20);
  EXPECT_GT(without, 20);
}
