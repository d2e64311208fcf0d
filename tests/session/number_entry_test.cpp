#include <gtest/gtest.h>

#include <string>

#include "session/global_bas.h"
#include "tests/support/csv.h"

using namespace GlobalBAS;

namespace {

constexpr int kSigDigits = 6;

// Runs the validator of `field` on `text` typed over `value`.
void Enter(ExposureSession& s, const std::string& field, const std::string& text, double& value) {
  const Notify quiet = [](const Complaint&) {};
  if (field == "U") return CheckU(s, {text}, value, quiet);
  if (field == "D") return CheckD(s, {text}, value, quiet);
  if (field == "GM") return CheckGM(s, {text}, value, quiet);
  if (field == "GSD") return CheckGSD(s, {text}, value, quiet);
  if (field == "M") return CheckM(s, {text}, value, quiet);
  if (field == "M2") return CheckMRef(s, {text}, value, quiet);
  std::optional<double> limit = value;
  CheckOELV(s, {text}, limit, quiet);
  value = limit.value();
}

}  // namespace

// One row says what a typed text is worth, and what the field shows for it afterwards.
TEST(NumberEntry, ATypedTextIsTakenOrRefusedAndShownAgainAsTheTableSays) {
  for (const support::Row& row : support::ReadTable("number_entry.csv")) {
    const std::string where = row.Where() + " " + row.Text("field") + " '" + row.Text("text") + "'";
    ExposureSession s;
    s.SigDigits = kSigDigits;
    double value = 5;
    Enter(s, row.Text("field"), row.Text("text"), value);
    EXPECT_EQ(s.InputState == 0 ? "yes" : "no", row.Text("valid")) << where;
    EXPECT_EQ(value, row.Number("value")) << where;
    EXPECT_EQ(ShownTrimmed(s, value), row.Text("shown")) << where;
  }
}

TEST(NumberEntry, WhatAFieldShowsForAnAcceptedEntryIsReadBackAsTheSameValue) {
  for (const support::Row& row : support::ReadTable("number_entry.csv")) {
    if (row.Text("valid") != "yes") continue;
    const std::string where =
        row.Where() + " " + row.Text("field") + " '" + row.Text("shown") + "'";
    ExposureSession s;
    double value = 5;
    Enter(s, row.Text("field"), row.Text("shown"), value);
    EXPECT_EQ(s.InputState, 0) << where;
    EXPECT_EQ(value, row.Number("value")) << where;
  }
}
