#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "tests/support/csv.h"
#include "tests/support/program_session.h"

// What is typed into the boxes of the limits screen, and what comes of it.
namespace {

using navigation::ScreenId;
using support::ProgramSession;

constexpr screen::Colour kBlue{0, 0, 255};
const std::vector<std::string> kWithTests = {"basis",         "grenzen", "descript",
                                             "extrapolation", "mean",    "Compare"};
const std::vector<std::string> kWithoutTests = {"basis", "grenzen", "descript", "Compare"};

class LimitsScreenEntry : public testing::Test {
 protected:
  LimitsScreenEntry() {
    p.EnterStatistics("Welders", "10", "0.3", "2");
    EXPECT_TRUE(p.Tab("grenzen"));
    p.box.shown.clear();
  }

  void ExpectBox(const std::string& title, const std::string& text) {
    ASSERT_EQ(p.box.shown.size(), 1u);
    EXPECT_EQ(p.LastBox().title, title);
    EXPECT_EQ(p.LastBox().text, text);
    EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
    EXPECT_EQ(p.LastBox().buttons, screen::Buttons::Ok);
    p.box.shown.clear();
  }

  ProgramSession p;
};

// Field and value of the record that a validator of the table works on.
struct Box {
  std::string field;
  double untouchedDefault;  // what the flags put in the place of a refused value of 0
};

const Box* BoxOf(const std::string& routine) {
  static const Box u{"AlphaTxb", 95};
  static const Box d{"DeltaTxb", 70};
  static const Box oelv{"VkrValTxB", 1};
  if (routine == "CheckU") return &u;
  if (routine == "CheckD") return &d;
  return routine == "CheckOELV" ? &oelv : nullptr;
}

double Value(const ExposureSession& s, const std::string& field) {
  if (field == "AlphaTxb") return s.U;
  return field == "DeltaTxb" ? s.D : s.OELV.value_or(-1);
}

std::string Words(const std::string& id) {
  return id.empty() ? std::string() : LoadResString(std::stoi(id));
}

}  // namespace

// An emptied limit box is a case of its own; the validators' table has it for the other two.
TEST_F(LimitsScreenEntry, EveryEntryOfTheTableEndsInItsValueAndItsMessage) {
  int tried = 0;
  for (const support::Row& row : support::ReadTable("validators.csv")) {
    const Box* box = BoxOf(row.Text("routine"));
    const std::string entry = row.Text("entry");
    if (!box || row.Number("before") == 0) continue;
    if (box->field == "VkrValTxB" && GlobalBAS::Trim(entry).empty()) continue;
    ++tried;
    ExposureSession& s = p.Record();
    s.U = 95;
    s.D = 70;
    s.OELV = 1;
    p.program.Open(ScreenId::Grenzen);
    p.box.shown.clear();
    p.Type(box->field, entry);
    const double after = row.Number("after");
    const std::string where = row.Where() + " " + box->field + " '" + entry + "'";
    EXPECT_EQ(Value(s, box->field), after == 0 ? box->untouchedDefault : after) << where;
    EXPECT_EQ(s.MsgTitle, Words(row.Text("MsgTitle"))) << where;
    EXPECT_EQ(s.MsgText, Words(row.Text("MsgText"))) << where;
    ASSERT_EQ(p.box.shown.size(), row.Text("box") == "yes" ? 1u : 0u) << where;
    EXPECT_EQ(p.Text(box->field), GlobalBAS::ShownTrimmed(s, Value(s, box->field))) << where;
    EXPECT_EQ(p.Shown().focusWanted, p.box.shown.empty() ? nullptr : &p.At(box->field)) << where;
  }
  EXPECT_GT(tried, 40);
}

TEST_F(LimitsScreenEntry, ACoverageTooLargeIsPulledBackWithTheWordsOfU) {
  p.Type("AlphaTxb", "100");
  ExpectBox("Exceedance percentage", "U value too large");
  EXPECT_EQ(p.Record().U, 99.99);
  EXPECT_EQ(p.Text("AlphaTxb"), "99.99");
}

TEST_F(LimitsScreenEntry, AConfidenceTooSmallIsPulledBackWithTheWordsOfD) {
  p.Type("DeltaTxb", "0.001");
  ExpectBox("Confidence Level", "D value too small");
  EXPECT_EQ(p.Record().D, 0.01);
}

TEST_F(LimitsScreenEntry, AnEmptiedPercentageStaysAndAsksForAValue) {
  p.Type("AlphaTxb", "  ");
  ExpectBox("Exceedance percentage",
            "Enter a `Desired percentage U=` value between .01% and 99.99%");
  EXPECT_EQ(p.Record().U, 95);
  EXPECT_EQ(p.Text("AlphaTxb"), "95");
}

TEST_F(LimitsScreenEntry, BlanksAroundALimitDoNotCount) {
  p.Type("VkrValTxB", "  2,5 ");
  EXPECT_EQ(p.Record().OELV, 2.5);
  EXPECT_EQ(p.Text("VkrValTxB"), GlobalBAS::ShownTrimmed(p.Record(), 2.5));
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(LimitsScreenEntry, TheEnterKeyTakesAValueAsLeavingTheFieldDoes) {
  p.Enter("VkrValTxB", "1,1E+10");
  ExpectBox("Occupational Exposure Limit Value\r\n", "OELV too large");
  EXPECT_EQ(p.Record().OELV, 1E+10);
  EXPECT_TRUE(p.Record().LimitsOk);
}

TEST_F(LimitsScreenEntry, ALimitThatIsNoNumberTakesTheTestsAwayUntilTheNextLook) {
  EXPECT_EQ(p.TabKeys(), kWithTests);
  p.Type("VkrValTxB", "none");
  ExpectBox("Occupational Exposure Limit Value\r\n", "Enter a OELV between 1E-10 and 1E+10");
  ExposureSession& s = p.Record();
  EXPECT_FALSE(s.LimitsOk);
  EXPECT_EQ(s.OELV, 1);
  EXPECT_EQ(s.RefPeriod, "8 hours");
  EXPECT_EQ(s.Duration, "8 hours");
  EXPECT_EQ(p.TabKeys(), kWithoutTests);
  EXPECT_TRUE(p.At("BoodschFrame").visible);
  EXPECT_FALSE(p.At("menuExtrPol").enabled);
  p.program.Open(ScreenId::Grenzen);
  EXPECT_TRUE(s.LimitsOk);
  EXPECT_EQ(p.TabKeys(), kWithTests);
  EXPECT_FALSE(p.At("BoodschFrame").visible);
}

TEST_F(LimitsScreenEntry, AnEmptiedLimitStaysButItsLabelTurnsBlue) {
  p.Type("VkrValTxB", "20");
  EXPECT_EQ(p.At("VkrValLbl(0)").colour, std::nullopt);
  p.Type("VkrValTxB", " ");
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(p.Record().OELV, 20);
  EXPECT_TRUE(p.Record().LimitsOk);
  EXPECT_EQ(p.At("VkrValLbl(0)").colour, kBlue);
  EXPECT_EQ(p.Text("VkrValTxB"), "");
  p.Visit("VkrValTxB");
  EXPECT_EQ(p.Text("VkrValTxB"), "20");
  EXPECT_EQ(p.At("VkrValLbl(0)").colour, std::nullopt);
}

TEST_F(LimitsScreenEntry, LookingNeverChangesAValue) {
  ExposureSession& s = p.Record();
  s.SigDigits = 2;
  s.OELV = 1.0 / 3;
  s.U = 200.0 / 3;
  s.D = 100.0 / 3;
  p.program.Open(ScreenId::Grenzen);
  for (const char* field :
       {"VkrValTxB", "AlphaTxb", "DeltaTxb", "DimCbo", "RefPerCmb", "DurationCmB"})
    p.Visit(field);
  EXPECT_EQ(p.Text("VkrValTxB"), "0.33");
  EXPECT_EQ(s.OELV, 1.0 / 3);
  EXPECT_EQ(s.U, 200.0 / 3);
  EXPECT_EQ(s.D, 100.0 / 3);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(LimitsScreenEntry, LookingAtAnEmptyListTakesNoneOfItsWords) {
  ExposureSession& s = p.Record();
  s.RefPeriod.clear();
  s.Duration.clear();
  p.program.Open(ScreenId::Grenzen);
  EXPECT_EQ(p.Text("RefPerCmb"), "Reference period");
  EXPECT_EQ(p.Text("DurationCmB"), "Duration");
  p.Visit("RefPerCmb");
  p.Visit("DurationCmB");
  EXPECT_EQ(s.RefPeriod, "");
  EXPECT_EQ(s.Duration, "");
}

TEST_F(LimitsScreenEntry, TypedUnitPeriodAndDurationGoInAsTheyStand) {
  p.Type("DimCbo", " ug/m3 ");
  p.Type("RefPerCmb", "shift");
  p.Pick("DurationCmB", "15 minutes");
  EXPECT_EQ(p.Record().Unit, " ug/m3 ");
  EXPECT_EQ(p.Text("DimLbl(2)"), " ug/m3 ");
  EXPECT_EQ(p.Record().RefPeriod, "shift");
  EXPECT_EQ(p.Record().Duration, "15 minutes");
}

TEST_F(LimitsScreenEntry, ATabClickTakesTheEntryThatIsStillBeingTyped) {
  screen::Control& limit = p.At("VkrValTxB");
  limit.text = "0,7";
  limit.touched = true;
  EXPECT_TRUE(p.Tab("descript"));
  EXPECT_EQ(p.Shown().name, "DescriptForm");
  EXPECT_EQ(p.Record().OELV, 0.7);
  p.Tab("grenzen");
  EXPECT_EQ(p.Text("VkrValTxB"), "0.7");
}

TEST_F(LimitsScreenEntry, ATabClickBehindARefusedLimitTellsOnceAndStaysAwayFromTheTests) {
  screen::Control& limit = p.At("VkrValTxB");
  limit.text = "none";
  limit.touched = true;
  p.Tab("extrapolation");
  ExpectBox("Occupational Exposure Limit Value\r\n", "Enter a OELV between 1E-10 and 1E+10");
  EXPECT_EQ(p.Shown().name, "GrenzenForm");
  EXPECT_FALSE(p.Record().LimitsOk);
  EXPECT_EQ(p.Shown().focusWanted, &limit);
}
