#pragma once

#include <string>
#include <vector>

#include "drawing/drawing.h"
#include "screen/ports.h"

namespace output {

// The lines of reports, one behind the other, on pages of that paper: in a fixed-width font, small
// enough for the unit behind its column. A longer line is left as it is.
std::vector<drawing::DrawingRecord> ReportPages(const std::vector<std::string>& lines,
                                                screen::Extent paper);

}  // namespace output
