#include "drawing/font.h"

#include <algorithm>

#include "drawing/font_table.h"

namespace drawing {
namespace {

constexpr char32_t kNone = 0xFFFD;

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// How many bytes the character takes that begins with this one; 0 for a byte that begins none.
std::size_t Length(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

const LetterWidths* Find(char32_t letter) {
  const auto letters = TheFontTable().letters;
  const auto at = std::ranges::lower_bound(letters, letter, {}, &LetterWidths::character);
  return at != letters.end() && at->character == letter ? &*at : nullptr;
}

double InFontSizes(int units) { return static_cast<double>(units) / TheFontTable().unitsPerEm; }

}  // namespace

std::vector<char32_t> Letters(std::string_view text) {
  std::vector<char32_t> letters;
  while (!text.empty()) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = Length(first);
    const std::string_view rest = length == 0 ? "" : text.substr(1, length - 1);
    const bool whole =
        length > 0 && rest.size() == length - 1 && std::ranges::all_of(rest, Continues);
    char32_t letter = length < 2 ? first : first & (0x7Fu >> length);
    for (const char byte : rest) letter = letter << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    letters.push_back(whole ? letter : kNone);
    text.remove_prefix(whole ? length : 1);
  }
  return letters;
}

bool HasLetter(char32_t letter) { return Find(letter) != nullptr; }

double LetterWidth(char32_t letter, bool bold) {
  const LetterWidths* widths = Find(letter);
  return widths ? InFontSizes(bold ? widths->bold : widths->regular) : kStrangeWidth;
}

double Ascent() { return InFontSizes(TheFontTable().ascent); }

double Descent() { return InFontSizes(TheFontTable().descent); }

double LineWidth(std::string_view line, double size, bool bold) {
  double width = 0;
  for (const char32_t letter : Letters(line)) width += LetterWidth(letter, bold);
  return kTwipsPerPoint * size * width;
}

}  // namespace drawing
