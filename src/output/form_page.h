#pragma once

#include <string>

#include "drawing/drawing.h"
#include "screen/ports.h"

namespace output {

// What stands below a printed screen or table.
struct Foot {
  std::string name;  // of the series
  std::string date;
  std::string window;
};

// Half an inch and less is what most printers leave free.
inline constexpr double kTwipsPerMm = 1440 / 25.4;

// The drawing as large as a page allows, which lies where the drawing is wider than high, and the
// foot below it.
drawing::DrawingRecord FormPage(const drawing::DrawingRecord& form, const Foot& foot,
                                screen::Extent paper);

// Writes the foot on the lines above `bottom`, from `left` to `right`, a long name on several;
// returns where the first of them begins.
double DrawFoot(drawing::DrawSurface& page, const Foot& foot, double left, double right,
                double bottom);

}  // namespace output
