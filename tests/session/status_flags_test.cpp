#include <gtest/gtest.h>

#include <string>

#include "session/global_bas.h"
#include "tests/support/csv.h"

using GlobalBAS::StatusFlags;

namespace {

ExposureSession FromRow(const support::Row& row) {
  ExposureSession s;
  s.Name = row.Text("Name");
  s.M = row.Number("M");
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  if (row.Text("OELV") != "unset") s.OELV = row.Number("OELV");
  s.U = row.Number("U");
  s.D = row.Number("D");
  s.RefPeriod = row.Text("RefPeriod");
  s.Duration = row.Text("Duration");
  return s;
}

ExposureSession Described() {
  ExposureSession s;
  s.Name = "lead";
  s.M = 10;
  s.GM = 1.5;
  s.GSD = 2;
  return s;
}

}  // namespace

TEST(StatusFlags, EveryStateOfTheTableGivesItsFlagsAndDefaults) {
  for (const support::Row& row : support::ReadTable("status.csv")) {
    ExposureSession s = FromRow(row);
    StatusFlags(s);
    const std::string where = row.Where() + " " + row.Text("id") + ": " + row.Text("note");
    EXPECT_EQ(s.IdentOk, row.Number("IdentOk") == 1) << where;
    EXPECT_EQ(s.DescOk, row.Number("DescOk") == 1) << where;
    EXPECT_EQ(s.LimitsOk, row.Number("LimitsOk") == 1) << where;
    EXPECT_EQ(s.OELV, row.Number("OELV_after")) << where;
    EXPECT_EQ(s.U, row.Number("U_after")) << where;
    EXPECT_EQ(s.D, row.Number("D_after")) << where;
    EXPECT_EQ(s.RefPeriod, row.Text("RefPeriod_after")) << where;
    EXPECT_EQ(s.Duration, row.Text("Duration_after")) << where;
  }
}

TEST(StatusFlags, OneOutcomeIsNoSampleAndTwoThousandIsTheLargest) {
  ExposureSession s = Described();
  for (const auto& [M, valid] :
       {std::pair{1.0, false}, {2.0, true}, {2000.0, true}, {2001.0, false}}) {
    s.M = M;
    StatusFlags(s);
    EXPECT_EQ(s.IdentOk, valid) << M;
    EXPECT_EQ(s.DescOk, valid) << M;
  }
}

TEST(StatusFlags, WithoutANameNothingIsIdentified) {
  ExposureSession s = Described();
  s.Name.clear();
  StatusFlags(s);
  EXPECT_FALSE(s.IdentOk);
  EXPECT_FALSE(s.DescOk);
}

// The screens rely on the limits turning valid after the first visit.
TEST(StatusFlags, ALimitOutOfRangeBecomesOneAndCountsAsSetAtTheNextLook) {
  ExposureSession s = Described();
  s.OELV = 2E+10;
  StatusFlags(s);
  EXPECT_EQ(s.OELV, 1);
  EXPECT_FALSE(s.LimitsOk);
  StatusFlags(s);
  EXPECT_EQ(s.OELV, 1);
  EXPECT_TRUE(s.LimitsOk);
  EXPECT_EQ(s.U, 95);
  EXPECT_EQ(s.D, 70);
}

TEST(StatusFlags, ALimitKeptFromAnEarlierSessionCountsAsSetForTheNextDataSet) {
  ExposureSession s = Described();
  s.OELV = 5;
  StatusFlags(s);
  s.Name.clear();
  s.M = 0;
  s.LimitsOk = false;
  StatusFlags(s);
  EXPECT_FALSE(s.IdentOk);
  EXPECT_TRUE(s.LimitsOk);
  EXPECT_EQ(s.OELV, 5);
}
