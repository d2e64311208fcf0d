#pragma once

#include <string_view>
#include <vector>

// The font of all drawings is Liberation Sans, regular and bold, on every machine. Its widths are
// compiled in: whoever lays a drawing out measures here, with a window or without one, and whoever
// paints it sets each letter where this measure has it, without kerning.
namespace drawing {

inline constexpr double kTwipsPerPoint = 20;

// Of a character that the font has not. A painter takes it from another font and narrows what is
// wider than this.
inline constexpr double kStrangeWidth = 1.25;

// The characters of a text in UTF-8; U+FFFD for what is none.
std::vector<char32_t> Letters(std::string_view text);

bool HasLetter(char32_t letter);
// In font sizes.
double LetterWidth(char32_t letter, bool bold);
// From the line on which the letters stand up and down to their ends; in font sizes.
double Ascent();
double Descent();

// The font of texts in columns, as a TextStyle names it: it comes with the program, too.
inline constexpr char kFixedFont[] = "Liberation Mono";
// Of each of its letters, in font sizes.
inline constexpr double kFixedWidth = 1229.0 / 2048;

// Of one line, in twips; `size` in printer's points.
double LineWidth(std::string_view line, double size, bool bold);

}  // namespace drawing
