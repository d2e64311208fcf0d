#include "rawdata/line_reader.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>

#include "rawdata/raw_file.h"
#include "session/global_bas.h"

namespace {

using rawdata::Line;
using rawdata::LineReader;

// The lines of a text that comes in pieces of `piece` bytes.
std::vector<Line> LinesOf(const std::string& text, std::size_t kept, std::size_t piece = 7) {
  std::size_t at = 0;
  LineReader reader(
      [&](char* buffer, std::size_t size) {
        const std::size_t count = std::min({piece, size, text.size() - at});
        std::copy_n(text.data() + at, count, buffer);
        at += count;
        return count;
      },
      kept);
  std::vector<Line> lines;
  for (Line line; reader.Next(line);) lines.push_back(line);
  return lines;
}

Line OneLine(const std::string& text, std::size_t kept) {
  const std::vector<Line> lines = LinesOf(text, kept);
  return lines.size() == 1 ? lines.front() : Line();
}

// The largest difference that the digits behind the kept ones can make.
double PlaceOfTheCut(const Line& line) {
  if (!line.digitsCut) return 0;
  const std::string text = GlobalBAS::NormalizeDecimal(line.text);
  const std::size_t point = text.find('.');
  const std::size_t end = text.find_first_not_of("0123456789", point + 1);
  return std::pow(10.0, -static_cast<double>(std::min(end, text.size()) - point - 2));
}

// Characters that matter to a number, those that make most trouble most often.
const std::string kAlphabet = "000011117777...,,,   E-+xx\t";

// A reader that keeps little must say the same as one that keeps everything, or refuse.
TEST(LineReader, ALineLongerThanWhatIsKeptReadsAsTheWholeLineDoesOrIsRefused) {
  const bool holds = rc::check("kept lines", [] {
    const auto text = *rc::gen::container<std::string>(rc::gen::elementOf(kAlphabet));
    RC_PRE(text.find_first_not_of(" \t") != std::string::npos);
    const auto kept = *rc::gen::inRange<std::size_t>(1, 12);
    const Line whole = OneLine(text, 100000);
    const Line cut = OneLine(text, kept);
    RC_ASSERT(cut.text.size() <= kept + 4);
    RC_ASSERT(HasCommaAndPoint(cut) == HasCommaAndPoint(whole));
    const double truth = NumberOf(whole);
    const double value = NumberOf(cut);
    if (rawdata::RefusalOf(value) != 0) return;
    RC_ASSERT(HasTrailingText(cut) == HasTrailingText(whole));
    RC_ASSERT(std::abs(value - truth) <= PlaceOfTheCut(cut));
  });
  EXPECT_TRUE(holds);
}

TEST(LineReader, ASeparatorFarBehindTheNumberDecidesLikeANearOne) {
  const std::string far(500, 'x');
  for (const char* number : {"1,234", "1.234", "1.234,5", "1,234.5", "1,2,3,4,5"}) {
    for (const char* behind : {"", ",", ".", ".,", ",.", "..", ",,", ",.,.", ".,.,"}) {
      const std::string text = std::string(number) + " " + far + behind + far;
      EXPECT_EQ(NumberOf(OneLine(text, 20)), GlobalBAS::ReadNumber(text)) << number << behind;
      EXPECT_TRUE(HasTrailingText(OneLine(text, 20)));
    }
  }
}

TEST(LineReader, DigitsBehindTheDecimalSeparatorMayBeAsManyAsTheyLike) {
  const std::string third(1000000, '3');
  EXPECT_EQ(NumberOf(OneLine("0." + third, rawdata::kKeptCharacters)), 1.0 / 3);
  EXPECT_EQ(NumberOf(OneLine("0," + third + " mg", rawdata::kKeptCharacters)), 1.0 / 3);
}

// 1 + 2^-53 lies halfway between two doubles; what follows far behind decides which is nearer.
TEST(LineReader, DigitsThatWereCutStillDecideTheRounding) {
  const std::string half = "1.00000000000000011102230246251565404236316680908203125";
  const std::string zeros(100, '0');
  EXPECT_EQ(NumberOf(OneLine(half + zeros, 80)), 1.0);
  EXPECT_EQ(NumberOf(OneLine(half + zeros + "1", 80)), std::nextafter(1.0, 2.0));
}

TEST(LineReader, ANumberTooLongToBeKeptIsNeverReadAsAnother) {
  const std::string nines(200, '9');
  for (const std::string& text : {nines, "1." + nines + "E5", nines + "E-195", "1." + nines + ",5",
                                  "1E" + nines, "0,000" + std::string(200, '0') + "5.5"})
    EXPECT_TRUE(std::isinf(NumberOf(OneLine(text, 100)))) << text;
}

TEST(LineReader, LineEndsAreFoundWhereverThePiecesOfTheFileEnd) {
  const std::string text =
      "\xEF\xBB\xBF"
      "1\r\n2\r3\n\r\n4";
  for (std::size_t piece = 1; piece <= text.size(); ++piece) {
    std::vector<std::string> found;
    for (const Line& line : LinesOf(text, 100, piece)) found.push_back(line.text);
    EXPECT_THAT(found, testing::ElementsAre("1", "2", "3", "", "4")) << "pieces of " << piece;
  }
}

TEST(LineReader, AFileWithoutBytesHasNoLine) {
  EXPECT_THAT(LinesOf("", 100), testing::IsEmpty());
  EXPECT_THAT(LinesOf("\r\n", 100), testing::SizeIs(1));
}

}  // namespace
