#include "rawdata/pasted_table.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

// What a text from the clipboard means: understood whole, refused whole, or asked about.
namespace {

using rawdata::AskColumn;
using rawdata::AskSign;
using rawdata::DecimalSign;
using rawdata::NotUnderstood;
using rawdata::PasteAnswers;
using rawdata::PastedColumn;
using rawdata::PasteReading;
using rawdata::PasteRefusal;
using rawdata::Trouble;
using testing::ElementsAre;

PasteReading Read(const std::string& text, const PasteAnswers& answers = {}) {
  return rawdata::ReadPasted(text, "mg/m3", answers);
}

template <typename Kind>
Kind As(const PasteReading& reading) {
  const Kind* kind = std::get_if<Kind>(&reading);
  if (kind) return *kind;
  ADD_FAILURE() << "another kind of reading: " << reading.index();
  return {};
}

std::vector<double> Values(const std::string& text, const PasteAnswers& answers = {}) {
  return As<PastedColumn>(Read(text, answers)).values;
}

// The lines that are not understood, each with its trouble.
std::vector<std::pair<int, Trouble>> Troubles(const std::string& text,
                                              const PasteAnswers& answers = {}) {
  std::vector<std::pair<int, Trouble>> troubles;
  for (const NotUnderstood& line : As<PasteRefusal>(Read(text, answers)).lines)
    troubles.emplace_back(line.line, line.trouble);
  return troubles;
}

bool Asks(const std::string& text) { return std::holds_alternative<AskSign>(Read(text)); }

std::vector<std::size_t> Choices(const std::string& text) {
  std::vector<std::size_t> columns;
  for (const AskColumn::Choice& choice : As<AskColumn>(Read(text)).choices)
    columns.push_back(choice.column);
  return columns;
}

TEST(PastedColumn, IsOneNumberALineWithAnyLineEndAndAnEmptyLastRow) {
  for (const char* text : {"1.5\n2\n40", "1.5\r\n2\r\n40\r\n", "1.5\r2\r40\r", "1.5\n2\n40\n\n\t\n",
                           "\xEF\xBB\xBF"
                           "1.5\n2\n40\n",
                           " 1.5\n2 \n\xC2\xA0"
                           "40\n"})
    EXPECT_THAT(Values(text), ElementsAre(1.5, 2, 40)) << text;
}

TEST(PastedColumn, MayHaveADecimalCommaAndThousandsParted) {
  EXPECT_THAT(Values("0,84\n12,5\n1.234,5\n1.234.567,5"),
              ElementsAre(0.84, 12.5, 1234.5, 1234567.5));
  EXPECT_THAT(Values("0.84\n1,234.5"), ElementsAre(0.84, 1234.5));
  EXPECT_THAT(Values("1,5\n0.5"), ElementsAre(1.5, 0.5)) << "each is clear by itself";
}

TEST(PastedColumn, MayHaveExponentsAndSigns) {
  EXPECT_THAT(Values("1E-3\n2,5e+2\n+4\n1D2\n.5\n5."), ElementsAre(0.001, 250, 4, 100, 0.5, 5));
}

TEST(PastedColumn, OfCommasAloneIsReadAsEverywhereInTheProgram) {
  EXPECT_THAT(Values("1,234\n2,5"), ElementsAre(1.234, 2.5));
  EXPECT_THAT(Values("1.234\n2.5"), ElementsAre(1.234, 2.5));
  EXPECT_THAT(Values("0,591\n0.5"), ElementsAre(0.591, 0.5)) << "no thousand begins with 0";
}

TEST(PastedColumn, MayHaveAUnitBehindItsNumbers) {
  const auto read = As<PastedColumn>(Read("2.7 ppm\n12.5ppm\n3 PPM\n4"));
  EXPECT_THAT(read.values, ElementsAre(2.7, 12.5, 3, 4));
  EXPECT_EQ(read.unit, "ppm");
  for (const char* unit :
       {"mg/m3", "mg/m\xC2\xB3", "\xC2\xB5g/m3", "ug/m^3", "mg.m-3", "mg m-3", "f/ml", "fibres/ml",
        "%", "dB(A)", "EU/ml", "ppb", "(mg/m3)", "mg", "CFU/m3", "f/cc"})
    EXPECT_THAT(Values(std::string("12.5 ") + unit), ElementsAre(12.5)) << unit;
  EXPECT_THAT(As<PastedColumn>(rawdata::ReadPasted("3 shovels", "Shovels")).values, ElementsAre(3))
      << "the unit of the series";
}

TEST(PastedColumn, MayStandInQuotesAsSpreadsheetsWriteThem) {
  EXPECT_THAT(Values("\"1,5\"\r\n\"2\"\r\n"), ElementsAre(1.5, 2));
  EXPECT_THAT(Values("\"12.5\nmg/m3\"\n4"), ElementsAre(12.5, 4));
  const auto table = As<PastedColumn>(
      Read("\"Sample\r\n\"\"first\"\"\"\tConc\r\n\"A\n1; left\tside\"\t0,5\r\nB\t0,7\r\n"));
  EXPECT_THAT(table.values, ElementsAre(0.5, 0.7));
  EXPECT_EQ(table.headerLines, 1);
}

TEST(PastedColumn, WithAQuoteThatIsNotClosedIsReadAsItStands) {
  EXPECT_THAT(Values("5\" pipe\t0.5\n\"A\t0.7\n\"B\" x\t0.9"), ElementsAre(0.5, 0.7, 0.9));
}

TEST(PastedTable, GivesTheColumnOfNumbers) {
  EXPECT_THAT(Values("12-03-2024\t0,84\n13-03-2024\t0,9\n"), ElementsAre(0.84, 0.9));
  EXPECT_THAT(Values("Anna;0,84;mg/m3\nBob;0,9;mg/m3\n"), ElementsAre(0.84, 0.9));
  EXPECT_THAT(Values("A12\t8:30\t0.5\t\n13B\t9:30\t0.7\tdamp\n"), ElementsAre(0.5, 0.7));
  EXPECT_THAT(Values("2024-03-12 08:30\t0.5\n12.03.2024\t0.7\n12/3/24\t0.9"),
              ElementsAre(0.5, 0.7, 0.9));
}

TEST(PastedTable, SemicolonsBesideTabsBelongToACell) {
  EXPECT_THAT(Values("a;b\t0.5\nc;d\t0.7"), ElementsAre(0.5, 0.7));
}

TEST(Header, IsEveryLineBeforeTheFirstNumberInACell) {
  const auto read = As<PastedColumn>(Read("Plant 4\n\nDate\tResult\n\tmg/m3\n12-03-2024\t0,84\n"));
  EXPECT_THAT(read.values, ElementsAre(0.84));
  EXPECT_EQ(read.headerLines, 4);
  EXPECT_EQ(read.header, "mg/m3");
  EXPECT_EQ(read.column, 1u);
  EXPECT_EQ(As<PastedColumn>(Read("Result\n0.5\n0.7")).header, "Result");
}

TEST(Header, HoldsNoLineThatBeginsWithANumberOrALimit) {
  EXPECT_THAT(Troubles("<0.1\n0.5"), ElementsAre(std::pair(1, Trouble::Below)));
  EXPECT_THAT(Troubles(">10\n0.5"), ElementsAre(std::pair(1, Trouble::Above)));
  EXPECT_THAT(Troubles("3 about\n0.5"), ElementsAre(std::pair(1, Trouble::TextBehind)));
  EXPECT_THAT(Troubles("12-03-2024 0.84\n0.5"), ElementsAre(std::pair(1, Trouble::TextBehind)));
  EXPECT_THAT(Troubles("\"results\n0.4\"\n0.5"), ElementsAre(std::pair(1, Trouble::ManyLines)));
}

TEST(Refusal, ListsEveryLineThatIsNotUnderstoodWithWhatIsWrong) {
  EXPECT_THAT(Troubles("1\n<0.5\nn.d.\n2 or 3\n\n12-03-2024\n-4\n0\n1e11\n1,2,3\n> 9\n7"),
              ElementsAre(std::pair(2, Trouble::Below), std::pair(3, Trouble::Text),
                          std::pair(4, Trouble::TextBehind), std::pair(5, Trouble::Empty),
                          std::pair(6, Trouble::Date), std::pair(10, Trouble::BadGroups),
                          std::pair(11, Trouble::Above)));
  EXPECT_THAT(Troubles("1\n-4\n0\n1e11\n7"),
              ElementsAre(std::pair(2, Trouble::OutOfRange), std::pair(3, Trouble::OutOfRange),
                          std::pair(4, Trouble::OutOfRange)));
  EXPECT_EQ(As<PasteRefusal>(Read("Conc\n1\n< 0,5")).lines[0].text, "< 0,5");
}

TEST(Refusal, OfWordsAloneListsThem) {
  EXPECT_THAT(Troubles("abc\n\nn.d.\n12-03-2024"),
              ElementsAre(std::pair(1, Trouble::Text), std::pair(3, Trouble::Text),
                          std::pair(4, Trouble::Date)));
}

TEST(Refusal, OfWhatANumberCouldBeginWith) {
  constexpr char kHardBlank[] = "1\u00A0234";
  constexpr char kMinusSign[] = "\u22124";
  for (const char* cell :
       {"2.7 ppm approx", "12,34.5", "1.23,4", "1 234", kHardBlank, "1.5.2.7", "3 x", "1.234,5,6",
        "5 mg/m3 and more", "0.5*", "1,234,5", kMinusSign, "1..5"})
    EXPECT_THAT(Troubles(std::string("2\n") + cell), testing::SizeIs(1)) << cell;
}

TEST(Refusal, OfTwoUnitsInOneColumn) {
  EXPECT_THAT(Troubles("12.5 mg/m3\n800 ug/m3\n3"), ElementsAre(std::pair(2, Trouble::OtherUnit)));
  EXPECT_THAT(Troubles("12.5\tmg/m3\n800\t\xC2\xB5g/m3"),
              ElementsAre(std::pair(2, Trouble::OtherUnit)));
  EXPECT_THAT(Values("12.5\tmg/m3\n800\tmg/m\xC2\xB3"), ElementsAre(12.5, 800));
}

TEST(Refusal, OfMoreThanASeriesHolds) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "3\n";
  EXPECT_THAT(Values("Result\n" + text), testing::SizeIs(2000));
  EXPECT_TRUE(As<PasteRefusal>(Read(text + "3\n")).tooLong);
  EXPECT_TRUE(As<PasteRefusal>(Read(std::string(rawdata::kLongestPaste + 1, '\n'))).tooLong);
  EXPECT_TRUE(As<PasteRefusal>(Read(std::string(300, '\t') + "3")).tooLong);
}

TEST(WhichColumn, IsAskedWhenMoreThanOneHoldsNumbers) {
  const auto ask = As<AskColumn>(Read("Nr\tFlow\tResult\n1\t2.0\t0.591\n2\t2.1\t0.84\n"));
  EXPECT_THAT(Choices("Nr\tFlow\tResult\n1\t2.0\t0.591\n2\t2.1\t0.84\n"), ElementsAre(0u, 1u, 2u));
  EXPECT_EQ(ask.choices[2].header, "Result");
  EXPECT_EQ(ask.choices[2].first, "0.591");
  EXPECT_FALSE(ask.proposed.has_value());
  EXPECT_THAT(ask.firstRows, testing::SizeIs(3));
  EXPECT_THAT(Values("1\t=\t0.591\tmg/m3\n2\t=\t0.84\tmg/m3", {2u, {}}), ElementsAre(0.591, 0.84));
}

TEST(WhichColumn, IsAskedWhenTheOutcomesMayBeThoseWithGaps) {
  for (const char* text : {"1\t<0.1\n2\t0.84", "480\tn.d.\n450\t0.84", "480\t\n450\t0.84"}) {
    EXPECT_THAT(Choices(text), ElementsAre(0u, 1u)) << text;
    EXPECT_EQ(As<AskColumn>(Read(text)).proposed, 0u);
  }
  EXPECT_THAT(Troubles("1\t<0.1\n2\t0.84", {1u, {}}), ElementsAre(std::pair(1, Trouble::Below)));
}

TEST(WhichColumn, IsNotAskedBesideNamesThatHoldSomeNumbers) {
  EXPECT_THAT(Values("12\t0.5\n13A\t0.7"), ElementsAre(0.5, 0.7));
}

TEST(DecimalSign, IsAskedWhereACommaMayPartThousands) {
  for (const char* text :
       {"1,234\n0.5", "2.7 ppm\n1.234,5\n1,234", "1,234\n1,234,567", "1,234,567", "1,234.5\n1,234"})
    EXPECT_TRUE(Asks(text)) << text;
  EXPECT_EQ(As<AskSign>(Read("0.5\n1,234\n5,678")).example, "1,234");
  EXPECT_EQ(As<AskSign>(Read("1,234,567\n1,234")).example, "1,234");
}

TEST(DecimalSign, IsAskedWhereAPointMayPartThousands) {
  for (const char* text : {"1.234\n0,5", "1.234,5\n1.234", "1.234.567\n2"})
    EXPECT_TRUE(Asks(text)) << text;
}

TEST(DecimalSign, IsThatOfTheAnswer) {
  const PasteAnswers comma{{}, DecimalSign::Comma};
  const PasteAnswers point{{}, DecimalSign::Point};
  EXPECT_THAT(Values("1,234\n0.5", comma), ElementsAre(1.234, 0.5));
  EXPECT_THAT(Values("1,234\n0.5", point), ElementsAre(1234, 0.5));
  EXPECT_THAT(Values("1.234\n0,5", comma), ElementsAre(1234, 0.5));
  EXPECT_THAT(Values("1.234\n0,5", point), ElementsAre(1.234, 0.5));
  EXPECT_THAT(Values("1,234\n1,234,567", point), ElementsAre(1234, 1234567));
  EXPECT_THAT(Values("1,234\n1,234,567", comma), ElementsAre(1.234, 1234.567)) << "as when typed";
  EXPECT_THAT(Values("1.234.567", comma), ElementsAre(1234567));
  EXPECT_THAT(Troubles("1.234.567", point), ElementsAre(std::pair(1, Trouble::BadGroups)));
}

TEST(NoText, IsNothing) {
  for (const char* text : {"", "\n", "\r\n\t\r\n", " \n;;\n"})
    EXPECT_TRUE(std::holds_alternative<rawdata::NothingToPaste>(Read(text))) << text;
}

}  // namespace
