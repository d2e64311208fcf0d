#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "tests/session/escapes.h"
#include "tests/support/csv.h"

using namespace GlobalBAS;

namespace {

struct Box {
  std::string text;
  std::string title;
  bool operator==(const Box&) const = default;
};

// A field with its validator, and the boxes that it has shown.
struct Field {
  ExposureSession s;
  double value = 0;
  std::vector<Box> boxes;
  std::string advice;  // of the last box

  Notify Port() {
    return [this](const Complaint& complaint) {
      boxes.push_back({complaint.text, complaint.title});
      advice = complaint.advice;
    };
  }

  void Run(const std::string& routine, const Entry& entry) {
    if (routine == "CheckU") return CheckU(s, entry, value, Port());
    if (routine == "CheckD") return CheckD(s, entry, value, Port());
    if (routine == "CheckGM") return CheckGM(s, entry, value, Port());
    if (routine == "CheckGSD") return CheckGSD(s, entry, value, Port());
    if (routine == "CheckM") return CheckM(s, entry, value, Port());
    if (routine == "CheckMRef") return CheckMRef(s, entry, value, Port());
    ASSERT_EQ(routine, "CheckOELV");
    std::optional<double> limit = value;
    CheckOELV(s, entry, limit, Port());
    value = limit.value();
  }
};

std::string Words(const std::string& id) {
  if (id.empty()) return {};
  if (id == "381") return "A Sample size M of more than thirty thousand is too large";
  return LoadResString(std::stoi(id));
}

void CheckMessages(const support::Row& row, const Field& field, const std::string& where) {
  EXPECT_EQ(field.s.MsgTitle, Words(row.Text("MsgTitle"))) << where;
  EXPECT_EQ(field.s.MsgText, Words(row.Text("MsgText"))) << where;
  std::vector<Box> boxes;
  if (row.Text("box") == "yes")
    boxes.push_back({Words(row.Text("MsgText")), Words(row.Text("MsgTitle"))});
  EXPECT_EQ(field.boxes, boxes) << where << ": boxes shown";
}

constexpr std::int16_t kBefore = 7;  // an InputState that no validator gives

int StateOf(const support::Row& row) {
  return row.Text("InputState") == "unchanged" ? kBefore
                                               : static_cast<int>(row.Number("InputState"));
}

}  // namespace

// A user who mistypes learns what is wrong in these words, and the field ends with this value.
TEST(Validators, EveryEntryOfTheTableIsJudgedAsItStandsThere) {
  for (const support::Row& row : support::ReadTable("validators.csv")) {
    const std::string where = row.Where() + " " + row.Text("id") + " " + row.Text("routine") +
                              " '" + row.Text("entry") + "': " + row.Text("note");
    const std::string entry = Unescaped(row.Text("entry"));
    Field field;
    field.s.InputState = kBefore;
    if (row.Text("routine") == "CheckName") {
      std::string name = Unescaped(row.Text("before"));
      CheckName(field.s, entry, name, field.Port());
      EXPECT_EQ(name, Unescaped(row.Text("after"))) << where;
    } else {
      field.value = row.Number("before");
      field.Run(row.Text("routine"), {entry});
      EXPECT_EQ(field.value, row.Number("after")) << where;
    }
    EXPECT_EQ(field.s.InputState, StateOf(row)) << where;
    CheckMessages(row, field, where);
  }
}

// Below the complaint stands what can be entered, and what the field is left with.
TEST(Validators, AComplaintTellsTheAllowedRangeAndTheValueThatNowStands) {
  struct Case {
    const char* routine;
    double before;
    const char* entry;
    const char* advice;
  };
  constexpr Case kCases[] = {
      {"CheckU", 95, "0.001", "Allowed: 0.01 to 99.99. 0.01 now stands."},
      {"CheckU", 90, "", "Allowed: 0.01 to 99.99. 90 now stands."},
      {"CheckU", 90, "abc", "Allowed: 0.01 to 99.99. 95 now stands."},
      {"CheckD", 80, "0", "Allowed: 0.01 to 99.99. 70 now stands."},
      {"CheckD", 80, "100", "Allowed: 0.01 to 99.99. 99.99 now stands."},
      {"CheckOELV", 5, "1e11", "Allowed: 1E-10 to 1E+10. 1E+10 now stands."},
      {"CheckOELV", 5, "abc", "Allowed: 1E-10 to 1E+10. 1 now stands."},
      {"CheckGM", 2, "20000", "Allowed: 0.0001 to 10000. No valid value stands now."},
      {"CheckGM", 2, "", "Allowed: 0.0001 to 10000. 2 now stands."},
      {"CheckGSD", 2, "1", "Allowed: 1.001 to 1000. 1.001 now stands."},
      {"CheckGSD", 2, "abc", "Allowed: 1.001 to 1000. No valid value stands now."},
      {"CheckM", 12, "1", "Allowed: 2 to 2000. No valid value stands now."},
      {"CheckM", 12, "12.5", "Allowed: 2 to 2000. 12 now stands."},
      {"CheckMRef", 12, "abc", "Allowed: 2 to 30000. 2 now stands."},
      {"CheckMRef", 12, "40000", "Allowed: 2 to 30000. 30000 now stands."}};
  for (const Case& one : kCases) {
    Field field;
    field.value = one.before;
    field.Run(one.routine, {one.entry});
    ASSERT_EQ(field.boxes.size(), 1U) << one.routine << " " << one.entry;
    EXPECT_EQ(field.advice, one.advice) << one.routine << " " << one.entry;
  }
}

TEST(Validators, ANameMayBeginAsTheOneDidThatItTakesThePlaceOf) {
  Field field;
  std::string name = "/home/hygiene/welders.vkr";
  CheckName(field.s, "/home/hygiene/welders, night.vkr", name, field.Port());
  EXPECT_EQ(name, "/home/hygiene/welders, night.vkr");
  EXPECT_TRUE(field.boxes.empty());
  CheckName(field.s, "-welders", name, field.Port());
  EXPECT_EQ(name, "");
  EXPECT_EQ(field.advice, "No name stands now.");
}

TEST(Validators, AWordReadsAsZeroAndBringsTheHint) {
  Field field;
  field.value = 95;
  field.Run("CheckU", {"abc"});
  EXPECT_EQ(field.s.InputState, 2);
  EXPECT_EQ(field.value, 0);
  ASSERT_EQ(field.boxes.size(), 1U);
  EXPECT_EQ(field.boxes[0].text, "Enter a `Desired percentage U=` value between .01% and 99.99%");
}

TEST(Validators, ASampleSizeOfTwelveAndAHalfBecomesTwelveWithTheHint) {
  for (const char* text : {"12.5", "12,5", "12.00001"}) {
    Field field;
    field.Run("CheckM", {text});
    EXPECT_EQ(field.value, 12) << text;
    EXPECT_EQ(field.s.InputState, 1) << text;
    EXPECT_EQ(field.s.MsgText, "Enter a Sample size integer value between 2 and 2000") << text;
  }
  Field whole;
  whole.Run("CheckM", {"12"});
  EXPECT_EQ(whole.value, 12);
  EXPECT_EQ(whole.s.InputState, 0);
  EXPECT_TRUE(whole.boxes.empty());
}

TEST(Validators, ACoverOfOneHundredIsPulledTo9999) {
  Field field;
  field.Run("CheckU", {"100"});
  EXPECT_EQ(field.value, 99.99);
  EXPECT_EQ(field.s.MsgText, "U value too large");
}

// GSD is pulled back to its limit, GM keeps what was typed and is then no description.
TEST(Validators, AGeometricMeanOfTwentyThousandStaysAndMakesTheDescriptionInvalid) {
  Field field;
  field.s.Name = "lead";
  field.s.M = 10;
  field.s.GSD = 2;
  field.Run("CheckGM", {"20000"});
  EXPECT_EQ(field.value, 20000);
  EXPECT_EQ(field.s.MsgText, "GM value too large");
  field.s.GM = field.value;
  StatusFlags(field.s);
  EXPECT_TRUE(field.s.IdentOk);
  EXPECT_FALSE(field.s.DescOk);
}

TEST(Validators, ALimitOfTenToTheTenthIsAcceptedAndMoreIsPulledBack) {
  Field exact;
  exact.Run("CheckOELV", {"1E+10"});
  EXPECT_EQ(exact.value, 1E+10);
  EXPECT_EQ(exact.s.InputState, 0);
  Field more;
  more.Run("CheckOELV", {"1.1E+10"});
  EXPECT_EQ(more.value, 1E+10);
  EXPECT_EQ(more.s.InputState, 4);
}

TEST(Validators, AnEmptyReferenceSampleSizeChangesNothingAtAll) {
  Field field;
  field.value = 12;
  field.s.InputState = 3;
  field.s.MsgText = "old";
  field.Run("CheckMRef", {"  "});
  EXPECT_EQ(field.value, 12);
  EXPECT_EQ(field.s.InputState, 3);
  EXPECT_EQ(field.s.MsgText, "old");
  EXPECT_TRUE(field.boxes.empty());
}

TEST(Validators, AReferenceSampleSizeAboveThirtyThousandIsPulledBackInItsOwnWords) {
  Field field;
  field.Run("CheckMRef", {"30001"});
  EXPECT_EQ(field.value, 30000);
  EXPECT_EQ(field.boxes,
            (std::vector<Box>{{"A Sample size M of more than thirty thousand is too large",
                               LoadResString(370)}}));
}

// A field shows a rounded text; looking at it must not round the value behind it.
TEST(Validators, LeavingAFieldUntouchedNeverChangesTheValueBehindItsRoundedText) {
  Field field;
  field.value = 2.123456789;
  field.Run("CheckGSD", {"2.1", false});
  EXPECT_EQ(field.value, 2.123456789);
  EXPECT_EQ(field.s.InputState, 0);
  EXPECT_TRUE(field.boxes.empty());
}

TEST(Validators, LeavingAFieldUntouchedStillJudgesTheValueBehindIt) {
  Field large;
  large.value = 100;
  large.Run("CheckU", {"100", false});
  EXPECT_EQ(large.value, 99.99);
  EXPECT_EQ(large.s.InputState, 4);
  Field empty;
  empty.value = 95;
  empty.Run("CheckU", {"", false});
  EXPECT_EQ(empty.value, 95);
  EXPECT_EQ(empty.s.InputState, 1);
}

TEST(Validators, ALimitThatWasNeverSetIsReadFromItsFieldAndStaysAbsentWhenEmpty) {
  ExposureSession s;
  const Notify quiet = [](const Complaint&) {};
  std::optional<double> limit;
  CheckOELV(s, {""}, limit, quiet);
  EXPECT_FALSE(limit.has_value());
  EXPECT_EQ(s.InputState, 1);
  CheckOELV(s, {"2,5", false}, limit, quiet);
  EXPECT_EQ(limit, 2.5);
}

TEST(Validators, ANumberBeyondADoubleIsTooLargeEverywhere) {
  for (const char* routine :
       {"CheckU", "CheckD", "CheckOELV", "CheckGM", "CheckGSD", "CheckM", "CheckMRef"}) {
    Field field;
    field.value = 5;
    field.Run(routine, {"1E400"});
    EXPECT_EQ(field.s.InputState, 4) << routine;
    EXPECT_EQ(field.boxes.size(), 1U) << routine;
  }
}

// Both sides of every limit and the limit itself.
TEST(Validators, LimitsThemselvesAreAcceptedAndTheNextNumberIsNot) {
  struct Range {
    const char* routine;
    double lower;
    double upper;
  };
  for (const Range& range : std::vector<Range>{{"CheckU", 0.01, 99.99},
                                               {"CheckD", 0.01, 99.99},
                                               {"CheckGM", 0.0001, 10000},
                                               {"CheckGSD", 1.001, 1000},
                                               {"CheckOELV", 1E-10, 1E+10}}) {
    const double above = std::nextafter(range.upper, 1E+300);
    const double below = std::nextafter(range.lower, 0);
    const std::map<double, int> cases = {
        {range.lower, 0}, {range.upper, 0}, {above, 4}, {below, 3}};
    for (const auto& [value, state] : cases) {
      Field field;
      field.value = value;
      field.Run(range.routine, {"shown", false});
      EXPECT_EQ(field.s.InputState, state) << range.routine << " " << value;
    }
  }
}
