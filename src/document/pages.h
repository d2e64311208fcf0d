#pragma once

#include <vector>

#include "document/contents.h"
#include "drawing/drawing.h"

namespace document {

// The contents on pages of A4, as drawings of that size. Every text stands whole within the margins
// and apart from all others; a name of many letters takes more lines. Only in the running head may
// it lose its middle.
std::vector<drawing::DrawingRecord> PagesOf(const Contents& contents);

}  // namespace document
