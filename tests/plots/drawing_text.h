#pragma once

#include <string>

#include "drawing/drawing.h"

// A recorded drawing as text, to be kept in a file and read by people.
namespace drawing_text {

// An item a line: what it is, its places in twips to a tenth, colour, width or style, label and
// text. The four lines of a plotted point (its two ticks, its cross) are one line, "point".
std::string Whole(const drawing::DrawingRecord& drawing);

// The same for a drawing of thousands of items: labels and frame, each 250th point, and a sum over
// all lines.
std::string Digest(const drawing::DrawingRecord& drawing);

// Compares `text` with the file of that name in tests/data/drawings, or writes the file when
// VALKORIN_RENEW_DRAWINGS is set. Returns what differs first, or the empty text.
std::string Difference(const std::string& name, const std::string& text);

}  // namespace drawing_text
