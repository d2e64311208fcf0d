#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "session/global_bas.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// Whole button presses on the screen of the mean, against tables made without this program.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using support::Row;

class MeanScreenTables : public testing::Test {
 protected:
  void Open(const Row& row) {
    ExposureSession& s = p.Record();
    p.program.Open(ScreenId::Basis);
    s = ExposureSession{};
    s.CR = "\r";
    s.Mode = DataMode::Statistics;
    s.Name = "Welders";
    s.M = row.Number("M");
    s.df = row.Number("df");
    s.GM = row.Number("GM");
    s.GSD = row.Number("GSD");
    s.OELV = row.Number("OELV");
    s.D = row.Number("D");
    s.IdentOk = s.DescOk = s.LimitsOk = true;
    p.box.shown.clear();
    p.program.Open(ScreenId::UCL);
  }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }

  // What the screen shows of a limit held as a logarithm: a number, or a box.
  void ExpectLimit(const Row& row, double UCL) {
    if (UCL < 701) {
      EXPECT_EQ(p.Text("UCLTxB"), Number(std::exp(UCL))) << row.Where();
      EXPECT_TRUE(p.box.shown.empty()) << row.Where();
      return;
    }
    EXPECT_EQ(p.Text("UCLTxB"), "") << row.Where();
    ASSERT_EQ(p.box.shown.size(), 1u) << row.Where();
    EXPECT_EQ(p.LastBox().text,
              "One-sided upper confidence limit of the Lognormal mean is Exp(" + Number(UCL) + ").")
        << row.Where();
    EXPECT_EQ(p.LastBox().title, "UCL");
  }
  void ExpectJahr(const Row& row, double AMu, double UCL, double PercEx, bool robustZero) {
    const ExposureSession& s = p.Record();
    EXPECT_LE(support::RelativeError(s.AMu, AMu), 1e-13) << row.Where();
    EXPECT_NEAR(s.UCL, UCL, 1e-13 * std::max(1.0, std::abs(UCL))) << row.Where();
    EXPECT_NEAR(s.PercEx, PercEx, 2e-12 * std::max(1.0, PercEx)) << row.Where();
    ExpectLimit(row, UCL);
    if (PercEx > 0) {
      EXPECT_EQ(p.Text("PercExTxB"), Number(PercEx)) << row.Where();
    } else if (robustZero) {
      EXPECT_EQ(p.Text("PercExTxB"), "    <1E-16") << row.Where();
    }
  }

  ProgramSession p;
};

}  // namespace

TEST_F(MeanScreenTables, JahrShowsTheTablesLimitsAndProbabilities) {
  for (const Row& row : support::ReadTable("jahr.csv")) {
    Open(row);
    p.Click("JahrCmb");
    ExpectJahr(row, row.Number("AMu"), row.Number("UCL"), row.Number("PercEx"), true);
  }
}

TEST_F(MeanScreenTables, JahrShowsTheLimitsOfWholeSessions) {
  int played = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    if (row.Text("Ja_state") != "ok") continue;
    ++played;
    Open(row);
    p.Click("JahrCmb");
    ExpectJahr(row, row.Number("Ja_AMu"), row.Number("Ja_UCL"), row.Number("Ja_PercEx"),
               row.Text("Ja_robust") == "1");
  }
  EXPECT_GT(played, 30);
}

TEST_F(MeanScreenTables, LandShowsTheLimitsOfWholeSessionsOrWhyItRefuses) {
  for (const Row& row : support::ReadTable("land_sessions.csv")) {
    Open(row);
    EXPECT_EQ(p.At("LandCmb").visible, row.Text("gate") == "offered") << row.Where();
    p.Click("MenuLand");
    const std::string& message = row.Text("message");
    if (!message.empty()) {
      EXPECT_EQ(p.LastBox().text, message) << row.Where();
      EXPECT_EQ(p.Record().TestTag, Extrapolation::None) << row.Where();
      continue;
    }
    EXPECT_EQ(p.Record().TestTag, Extrapolation::Land) << row.Where();
    const double UCL = row.Number("fixed_UCL");
    EXPECT_NEAR(p.Record().UCL, UCL, 1e-12 * std::abs(UCL)) << row.Where();
    EXPECT_NEAR(p.Record().PercEx, row.Number("PercEx"), 2e-12) << row.Where();
    EXPECT_EQ(p.Text("PercExTxB"), Number(row.Number("fixed_A"))) << row.Where();
    ExpectLimit(row, UCL);
  }
}
