// A number that is cut off is a wrong number: what is too wide gets smaller letters, fewer digits,
// more lines, and a long name loses its middle.
#include "plots/fitting.h"

#include <gtest/gtest.h>

#include "drawing/font.h"

namespace {

using namespace PlotWBas;
using drawing::TextStyle;

const TextStyle kNine{};  // 9 points
const TextStyle kBold{.bold = true};

TEST(Fitting, MeasuresTheLongestLine) {
  EXPECT_EQ(RowCount(""), 0);
  EXPECT_EQ(RowCount("a"), 1);
  EXPECT_EQ(RowCount("a\rb\r"), 2);
  EXPECT_EQ(TextWidth("ab\rabcd\rabc", kNine), TextWidth("abcd", kNine));
  EXPECT_EQ(TextHeight("a\rb\r", kNine), 2 * RowHeight(kNine));
}

TEST(Fitting, BoldLettersTakeMoreRoom) {
  EXPECT_GT(TextWidth("limit", kBold), TextWidth("limit", kNine));
}

TEST(Fitting, LettersGetSmallerUntilTheTextFitsButNeverBelowSixPoints) {
  EXPECT_EQ(FittingSize("short", 10000, kNine), 9);
  const std::string text(100, 'x');
  TextStyle style = kNine;
  style.size = FittingSize(text, 8000, kNine);
  EXPECT_LT(style.size, 9);
  EXPECT_NEAR(TextWidth(text, style), 8000, 1e-6);
  EXPECT_EQ(FittingSize(std::string(1000, 'x'), 8000, kNine), 6);
}

TEST(Fitting, LinesAreBrokenAtBlanks) {
  const double width = TextWidth("abc abc", kNine);
  EXPECT_EQ(Wrapped("abc abc abc", width, kNine), "abc abc\rabc");
  EXPECT_EQ(Wrapped("abc\rabc abc", width, kNine), "abc\rabc abc");
  EXPECT_EQ(Wrapped("abc  abc", width, kNine), "abc abc");
  EXPECT_EQ(Wrapped("abcabcabcabc abc", width, kNine), "abcabcabcabc\rabc");
  EXPECT_EQ(Wrapped("", width, kNine), "");
}

TEST(Fitting, ALongNameLosesItsMiddle) {
  EXPECT_EQ(Elided("Welders", 100000, kNine), "Welders");
  const double width = TextWidth("Weld\u2026ers", kNine);
  EXPECT_EQ(Elided("Welders in hall 3, welders", width, kNine), "Weld\u2026ers");
  EXPECT_EQ(Elided("Überdrück", TextWidth("Ü\u2026k", kNine), kNine), "Ü\u2026k");
}

TEST(Fitting, LongNumbersAreRoundedToSixDigits) {
  EXPECT_EQ(RoundedNumbers("GMg= 1.06833284049E-5"), "GMg= 1.06833E-5");
  EXPECT_EQ(RoundedNumbers("GMg= 0.0106833284049 mg/m3"), "GMg= 0.0106833 mg/m3");
  EXPECT_EQ(RoundedNumbers("9.99999951"), "10");
  EXPECT_EQ(RoundedNumbers("9.99999951E-5"), "1E-4");
  EXPECT_EQ(RoundedNumbers("1234567.8"), "1234570");
  EXPECT_EQ(RoundedNumbers("0.1234564999"), "0.123456");
  EXPECT_EQ(RoundedNumbers("1.20000011"), "1.2");
}

TEST(Fitting, NumbersOfSixDigitsStayAsTheyAre) {
  for (const char* text : {"1.10000", "0.000123456", "123456", "12.5 %", "C(12)= 3.50", "1.137E-9",
                           "1E", "7E-", "", "2.E5 x"})
    EXPECT_EQ(RoundedNumbers(text), text);
}

TEST(Fitting, ANumberIsShortenedOnlyWhereSmallLettersDoNotHelp) {
  const std::string text = "GMg= 1.06833284049E-5";
  const double width = TextWidth(text, kNine);
  EXPECT_EQ(FittedNumbers(text, width, kNine).style.size, 9);
  EXPECT_EQ(FittedNumbers(text, 0.7 * width, kNine).text, text);
  const Fitted fitted = FittedNumbers(text, 0.6 * width, kNine);
  EXPECT_EQ(fitted.text, "GMg= 1.06833E-5");
  EXPECT_LE(TextWidth(fitted.text, fitted.style), 0.6 * width);
  EXPECT_GE(fitted.style.size, 6);
  EXPECT_EQ(FittedNumbers(text, 0.4 * width, kNine).text, "GMg=\r1.06833E-5");
}

TEST(Fitting, ANameIsShortenedBeforeTheLettersGetTooSmall) {
  const auto headline = [](const std::string& name) { return "A distribution\rof " + name; };
  const std::string name(63, 'W');
  const Fitted fitted = FittedName(headline, name, 6000, kBold);
  EXPECT_GE(fitted.style.size, 7.6);
  EXPECT_LE(TextWidth(fitted.text, fitted.style), 6000);
  EXPECT_NE(fitted.text.find("WW\u2026WW"), std::string::npos) << fitted.text;
  EXPECT_EQ(FittedName(headline, "Welders", 6000, kBold).text, headline("Welders"));
}

}  // namespace
