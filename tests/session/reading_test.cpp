#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "session/global_bas.h"
#include "tests/session/escapes.h"
#include "tests/support/csv.h"

using namespace GlobalBAS;

// The most dangerous mistake of such a program is 0,435 silently read as 435.
TEST(Reading, EveryEntryOfTheTableIsNormalisedAndReadAsItStandsThere) {
  for (const support::Row& row : support::ReadTable("normalize.csv")) {
    const std::string entry = Unescaped(row.Text("entry"));
    const std::string where = row.Where() + " " + row.Text("id") + ": entry '" + row.Text("entry") +
                              "' " + row.Text("note");
    EXPECT_EQ(NormalizeDecimal(entry), Unescaped(row.Text("normalized"))) << where;
    EXPECT_EQ(Val(NormalizeDecimal(entry)), row.Number("value")) << where;
    EXPECT_EQ(ReadNumber(entry), row.Number("value")) << where;
  }
}

TEST(Reading, TheLastSeparatorIsTheDecimalOne) {
  EXPECT_EQ(ReadNumber("0,5"), 0.5);
  EXPECT_EQ(ReadNumber("0.5"), 0.5);
  EXPECT_EQ(ReadNumber("1,5,2"), 15.2);
  EXPECT_EQ(ReadNumber("1.5.2"), 1.5);
  EXPECT_EQ(ReadNumber("1.234,56"), 1234.56);
  EXPECT_EQ(ReadNumber("1,234.56"), 1234.56);
  EXPECT_EQ(ReadNumber("1,234"), 1.234);
}

TEST(Reading, AtMostThreeSeparatorsOfEachKindAreRemoved) {
  EXPECT_EQ(NormalizeDecimal("1.2.3.4,5"), "1234.5");
  EXPECT_EQ(NormalizeDecimal("1.2.3.4.5,6"), "1234.5.6");
  EXPECT_EQ(NormalizeDecimal("1,2,3,4.5"), "1234.5");
  EXPECT_EQ(NormalizeDecimal("1,2,3,4,5.6"), "1234,5.6");
}

TEST(Reading, WordsAndSymbolsReadAsZero) {
  for (const char* text :
       {"", " ", "abc", ".", "-", "+", "E5", "inf", "nan", "0x10", "&H10", "--5"})
    EXPECT_EQ(Val(text), 0) << text;
}

TEST(Reading, AnExponentCountsOnlyWithDigitsBehindItsLetter) {
  EXPECT_EQ(Val("1.5E"), 1.5);
  EXPECT_EQ(Val("1.5E+"), 1.5);
  EXPECT_EQ(Val("1.5E+2"), 150);
  EXPECT_EQ(Val("1.5D-2"), 0.015);
  EXPECT_EQ(Val("1.5d2"), 150);
  EXPECT_EQ(Val("3 mg"), 3);
  EXPECT_EQ(Val("3 E5"), 3);
}

TEST(Reading, ANumberBeyondADoubleIsInfiniteAndOneBelowItIsZero) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Val("1E400"), infinity);
  EXPECT_EQ(Val("-1E400"), -infinity);
  EXPECT_EQ(Val("1E-400"), 0);
  EXPECT_EQ(Val("1E99999999999999999999999"), infinity);
  EXPECT_EQ(Val("1E-99999999999999999999999"), 0);
  EXPECT_EQ(Val("0E99999999999999999999999"), 0);
  EXPECT_EQ(Val("1.7976931348623157E308"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("4.9E-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1E401"), 1);
  EXPECT_EQ(Val("1" + std::string(400, '0') + "E-400"), 1);
}

// A binary file can hold a line of any length; bench/routines.cpp measures that it is read as fast,
// digit by digit, as a short one.
TEST(Reading, ANumberOfMillionsOfDigitsIsRead) {
  const std::string digits(2'000'000, '7');
  EXPECT_EQ(Val(digits), std::numeric_limits<double>::infinity());
  EXPECT_EQ(Val("0." + digits), Val("0.77777777777777777777777777777777"));
  EXPECT_EQ(Val("1E" + digits), std::numeric_limits<double>::infinity());
  const std::string points = std::string(2'000'000, '.') + ",5";
  EXPECT_EQ(ReadNumber(points), 0);
}

TEST(Reading, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta "), "\ta");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}
