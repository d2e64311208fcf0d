// The widths of the drawings' font, which every layout rests on.
#include "drawing/font.h"

#include <gtest/gtest.h>

#include "drawing/font_table.h"

namespace {

using namespace drawing;
using Text = std::vector<char32_t>;

TEST(Font, ItsTableIsInOrderSoThatEveryLetterIsFound) {
  const auto letters = TheFontTable().letters;
  for (std::size_t i = 1; i < letters.size(); ++i)
    EXPECT_LT(letters[i - 1].character, letters[i].character);
  for (char32_t letter = 0x20; letter < 0x7F; ++letter) EXPECT_TRUE(HasLetter(letter));
  for (const char32_t letter : U"µ°²³éñßøœŁŻžΩμσжЯ–…€≤≥")
    if (letter != 0) {
      EXPECT_TRUE(HasLetter(letter)) << static_cast<int>(letter);
    }
}

// 1139 and 569 of 2048 units: what the makers of the font give for figures and for the blank.
TEST(Font, HasTheWidthsOfLiberationSans) {
  for (const char32_t figure : U"0123456789")
    if (figure != 0) {
      EXPECT_EQ(LetterWidth(figure, false), 1139.0 / 2048);
      EXPECT_EQ(LetterWidth(figure, true), 1139.0 / 2048);
    }
  EXPECT_EQ(LetterWidth(' ', false), 569.0 / 2048);
  EXPECT_EQ(LetterWidth('W', false), 1933.0 / 2048);
  EXPECT_LT(LetterWidth('i', false), LetterWidth('i', true));
}

TEST(Font, ALineIsAsWideAsItsLetters) {
  EXPECT_EQ(LineWidth("", 9, false), 0);
  EXPECT_DOUBLE_EQ(LineWidth("10", 9, false), 20 * 9 * 2 * 1139.0 / 2048);
  EXPECT_DOUBLE_EQ(LineWidth("µ", 10, true), 200 * LetterWidth(U'µ', true));
}

// A letter that the font has not is taken from another one, which may be wider.
TEST(Font, AStrangeLetterHasRoomToSpare) {
  EXPECT_FALSE(HasLetter(U'粉'));
  EXPECT_EQ(LetterWidth(U'粉', false), kStrangeWidth);
  EXPECT_GE(kStrangeWidth, 1);
}

TEST(Font, ReadsTextsInUtf8) {
  EXPECT_EQ(Letters("aµ粉😀"), (Text{'a', 0xB5, 0x7C89, 0x1F600}));
  EXPECT_EQ(Letters("a\xFF"
                    "b"),
            (Text{'a', 0xFFFD, 'b'}));
  EXPECT_EQ(Letters("\xC2"), (Text{0xFFFD}));
  EXPECT_EQ(Letters("\xE7\xB2!"), (Text{0xFFFD, 0xFFFD, '!'}));
}

}  // namespace
