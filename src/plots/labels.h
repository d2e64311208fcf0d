#pragma once

#include <string>
#include <vector>

#include "drawing/drawing.h"
#include "plots/fitting.h"

// Labels of a plot: texts that are drawn in the picture and can be read by their names.
namespace PlotWBas {

struct Label {
  std::string name;
  std::string text;  // lines separated by CR
  drawing::Point at;
  drawing::TextStyle style;
};

using Labels = std::vector<Label>;

Box BoxOf(const Label& label);

// Null when the drawing has no label of that name.
const Label* FindLabel(const Labels& labels, const std::string& name);

// Draws all labels in their order. A line end behind the last line is not drawn.
void WriteLabels(drawing::DrawSurface& surface, const Labels& labels);

// Whether the drawn label has the whole of `text`, on however many lines.
bool Shows(const drawing::DrawingRecord& drawing, const std::string& label,
           const std::string& text);

// Something that wants to stand at `centre` and takes `half` on either side of it.
struct Stand {
  double centre = 0;
  double half = 0;
};

// Moves what overlaps apart, as little as needed from low to high, so that everything keeps its
// order and lies within `low` to `high` as long as there is room. Returns the new centres.
std::vector<double> SpreadOut(const std::vector<Stand>& wanted, double low, double high);

}  // namespace PlotWBas
