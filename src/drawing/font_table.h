#pragma once

#include <cstdint>
#include <span>

namespace drawing {

// Of one character, in the font's units.
struct LetterWidths {
  char32_t character = 0;
  std::uint16_t regular = 0;
  std::uint16_t bold = 0;
};

struct FontTable {
  int unitsPerEm = 0;
  int ascent = 0;
  int descent = 0;
  std::span<const LetterWidths> letters;  // by character
};

const FontTable& TheFontTable();

}  // namespace drawing
