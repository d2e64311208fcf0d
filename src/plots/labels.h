#pragma once

#include <string>
#include <vector>

#include "drawing/drawing.h"

// Labels of a plot: texts that are drawn in the picture and can be read by their names.
namespace PlotWBas {

struct Label {
  std::string name;
  std::string text;  // lines separated by CR
  drawing::Point at;
  drawing::TextStyle style;
};

using Labels = std::vector<Label>;

// Null when the drawing has no label of that name.
const Label* FindLabel(const Labels& labels, const std::string& name);

// Draws all labels in their order. A line end behind the last line is not drawn.
void WriteLabels(drawing::DrawSurface& surface, const Labels& labels);

// Height of one line of text, and an upper estimate of the width of the longest line, in twips. A
// drawing is laid out without a font at hand, since the same one goes to screen, file and printer.
double RowHeight(const drawing::TextStyle& style);
double TextWidth(const std::string& text, double size);
int RowCount(const std::string& text);

// What is smaller than this is not worth its ink.
inline constexpr double kSmallest = 4;

// The largest size up to `wanted` in which the text is no wider than `width`, but `least` at least.
double FittingSize(const std::string& text, double width, double wanted, double least);

// Something that wants to stand at `centre` and takes `half` on either side of it.
struct Stand {
  double centre = 0;
  double half = 0;
};

// Moves what overlaps apart, as little as needed from low to high, so that everything keeps its
// order and lies within `low` to `high` as long as there is room. Returns the new centres.
std::vector<double> SpreadOut(const std::vector<Stand>& wanted, double low, double high);

}  // namespace PlotWBas
