#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>

#include "session/global_bas.h"
#include "tests/support/csv.h"

using namespace GlobalBAS;

// A reader compares columns by eye: every digit, blank and sign of a shown number is promised.
TEST(Format, EveryRowOfTheFormatTableComesOutToTheCharacter) {
  for (const support::Row& row : support::ReadTable("format.csv")) {
    const double value = row.Number("value");
    const int sigDigits = static_cast<int>(row.Number("SigDigits"));
    const std::string where = row.Where() + " " + row.Text("id") + ": value " + row.Text("value") +
                              ", SigDigits " + row.Text("SigDigits") + ", " + row.Text("note");
    EXPECT_EQ(GeneralText(value), row.Text("general")) << where;
    const std::string mask = FormatMask(value, sigDigits);
    EXPECT_EQ(mask, row.Text("mask")) << where;
    EXPECT_EQ(FormatNumber(value, row.Text("mask")), row.Text("text")) << where;
  }
}

// The width of entered numbers is taken from this text.
TEST(Format, GeneralTextOfEnteredSeriesIsTheTables) {
  for (const support::Row& row : support::ReadTable("sigdigits.csv")) {
    std::istringstream values(row.Text("series"));
    std::string joined;
    for (std::string word; values >> word;) {
      if (!joined.empty()) joined += ' ';
      joined += GeneralText(ReadNumber(word));
    }
    EXPECT_EQ(joined, row.Text("general")) << row.Where() << " " << row.Text("series");
  }
}

TEST(Format, GeneralTextLeavesOutTheZeroBeforeThePoint) {
  EXPECT_EQ(GeneralText(0.5), ".5");
  EXPECT_EQ(GeneralText(-0.5), "-.5");
  EXPECT_EQ(GeneralText(0), "0");
  EXPECT_EQ(GeneralText(-0.0), "0");
}

// Both sides of the two borders between the fixed and the E form.
TEST(Format, GeneralTextTurnsToTheEFormBeyondFifteenPlacesAndFromTenToTheFifteenth) {
  EXPECT_EQ(GeneralText(1E-15), ".000000000000001");
  EXPECT_EQ(GeneralText(1E-16), "1E-16");
  EXPECT_EQ(GeneralText(1.5E-14), ".000000000000015");
  EXPECT_EQ(GeneralText(1.5E-15), "1.5E-15");
  EXPECT_EQ(GeneralText(1.0 / 3), ".333333333333333");
  EXPECT_EQ(GeneralText(0.1 / 3), "3.33333333333333E-02");
  EXPECT_EQ(GeneralText(999999999999999.0), "999999999999999");
  EXPECT_EQ(GeneralText(1E+15), "1E+15");
  EXPECT_EQ(GeneralText(999999999999999.9), "1E+15");
  EXPECT_EQ(GeneralText(1E+100), "1E+100");
}

TEST(Format, StrKeepsAPlaceForTheMinusSign) {
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(1E+15), " 1E+15");
}

TEST(Format, ARawFileHoldsTheZeroBeforeThePoint) {
  EXPECT_EQ(FileText(0.537), "0.537");
  EXPECT_EQ(FileText(-0.537), "-0.537");
  EXPECT_EQ(FileText(12.5), "12.5");
  EXPECT_EQ(FileText(0.1 / 3), "3.33333333333333E-02");
  EXPECT_EQ(FileText(0), "0");
}

TEST(Format, TheValue99999GoesThroughTheWholeNumberRowsAnd100000FallsToTheExponentRow) {
  EXPECT_EQ(FormatMask(99999.0, 3), " 00000");
  EXPECT_EQ(FormatNumber(99999, FormatMask(99999.0, 3)), " 99999");
  EXPECT_EQ(FormatMask(100000.0, 3), "    0.0###E+0");
  EXPECT_EQ(FormatNumber(100000, FormatMask(100000.0, 3)), "    1.0E+5");
}

// SigDigits 0 and short mantissas make negative repeat counts: they repeat nothing.
TEST(Format, ANegativeRepeatCountRepeatsNothing) {
  EXPECT_EQ(FormatMask(1.5, 0), "    0.0");
  EXPECT_EQ(FormatMask(0.5, 0), "    0.0");
  EXPECT_EQ(FormatMask(2E-11, 0), "    0.0E+00");
  EXPECT_EQ(FormatMask(1E+15, 4), "    0.0E+00");
  EXPECT_EQ(FormatMask(1.5, -5), "    0.0");
}

TEST(Format, TheMinusSignStandsDirectlyBeforeTheFirstDigit) {
  EXPECT_EQ(FormatNumber(-5, FormatMask(-5.0, 3)), "    -5");
  EXPECT_EQ(FormatNumber(-5, "     0"), "     -5");
  EXPECT_EQ(FormatNumber(-0.4, "     0"), "     0");
}

TEST(Format, AMaskPlaceWithoutDecimalsShowsNoBarePoint) {
  EXPECT_EQ(FormatNumber(100, "   ##0.##") + " %", "   100 %");
  EXPECT_EQ(FormatNumber(99.5, "   ##0.##") + " %", "   99.5 %");
  EXPECT_EQ(FormatNumber(0.25, "##.0#"), ".25");
  EXPECT_EQ(FormatNumber(5, "##.0#"), "5.0");
  EXPECT_EQ(FormatNumber(0.004, "#0.0#"), "0.0");
  EXPECT_EQ(FormatNumber(0, "0.0#E+0"), "0.0E+0");
}

TEST(Format, HalvesRoundAwayFromZeroOnTheDecimalText) {
  EXPECT_EQ(FormatNumber(0.125, "0.00"), "0.13");
  EXPECT_EQ(FormatNumber(-0.125, "0.00"), "-0.13");
  EXPECT_EQ(FormatNumber(2.5, "0"), "3");
  EXPECT_EQ(FormatNumber(0.5, "0"), "1");
  EXPECT_EQ(FormatNumber(1.005, "0.00"), "1.01");  // the double lies below 1.005
  EXPECT_EQ(FormatNumber(0.4999, "0"), "0");
  EXPECT_EQ(FormatNumber(9.5, "0"), "10");
}

TEST(Format, AnEmptyMaskGivesTheGeneralTextAndAnAbsentValueNoMask) {
  EXPECT_EQ(FormatNumber(99999.999995, ""), "99999.999995");
  EXPECT_EQ(FormatMask(std::nullopt, 3), "");
  ExposureSession s;
  EXPECT_EQ(Shown(s, std::nullopt), "");
  EXPECT_EQ(ShownTrimmed(s, std::nullopt), "");
}

TEST(Format, AFieldShowsTheNumberWithoutTheBlanksInFront) {
  ExposureSession s;
  s.SigDigits = 3;
  EXPECT_EQ(Shown(s, 95), "    95");
  EXPECT_EQ(ShownTrimmed(s, 95), "95");
  EXPECT_EQ(ShownTrimmed(s, 0.25), "0.25");
}

// An entry such as 1E400 in the GM field leaves an infinity that must still be shown.
TEST(Format, AValueBeyondTheDoublesShowsTheFixedText) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FormatNumber(infinity, FormatMask(infinity, 3)), "    >1.00E+308");
  EXPECT_EQ(FormatNumber(-infinity, FormatMask(-infinity, 3)), "   <0.00E+000");
  EXPECT_EQ(FormatNumber(std::nan(""), FormatMask(std::nan(""), 3)), "nan");
}
