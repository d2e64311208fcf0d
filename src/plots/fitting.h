#pragma once

#include <functional>
#include <string>

#include "drawing/drawing.h"

// Texts made to fit the room that they have. What is a number stays whole: it gets smaller letters
// and then fewer digits, never a cut.
namespace PlotWBas {

// Height of one line of text, and the width of the longest line, in twips.
double RowHeight(const drawing::TextStyle& style);
double TextWidth(const std::string& text, const drawing::TextStyle& style);
int RowCount(const std::string& text);
double TextHeight(const std::string& text, const drawing::TextStyle& style);

// A place taken on the surface, in twips.
struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};
Box BoxOf(drawing::Point at, const std::string& text, const drawing::TextStyle& style);

// Smaller letters are not worth their ink, in printer's points.
inline constexpr double kSmallest = 6;

// The largest size up to the style's own in which the text is no wider than `width`, but
// kSmallest at least.
double FittingSize(const std::string& text, double width, const drawing::TextStyle& style);

// `text` in lines no wider than `width`, broken at blanks; a longer word has a line of its own.
std::string Wrapped(const std::string& text, double width, const drawing::TextStyle& style);

// `text` with "…" for as much of its middle as `width` has no room for.
std::string Elided(const std::string& text, double width, const drawing::TextStyle& style);

// `text` with every number of more than six significant digits rounded to six.
std::string RoundedNumbers(const std::string& text);

// A text and the style in which it fits.
struct Fitted {
  std::string text;
  drawing::TextStyle style;
};

// Smaller letters, then shorter numbers, then more lines.
Fitted FittedNumbers(const std::string& text, double width, const drawing::TextStyle& style);

// What `compose` makes of a name: somewhat smaller letters, then a shorter name, then smaller
// letters still.
Fitted FittedName(const std::function<std::string(const std::string& name)>& compose,
                  const std::string& name, double width, const drawing::TextStyle& style);

}  // namespace PlotWBas
