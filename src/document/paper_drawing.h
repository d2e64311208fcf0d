#pragma once

#include "analysis/regression.h"
#include "base/date_time.h"
#include "drawing/drawing.h"
#include "session/exposure_session.h"

namespace document {

// The place of a picture on the page, in twips: the proportions of those on the screen.
inline constexpr double kPictureWidth = 9720;
inline constexpr double kPictureHeight = 6600;

// The series on lognormal probability paper with its line, and what the line found.
struct PaperDrawing {
  analysis::Regression fit;
  drawing::DrawingRecord drawing;
};

// Domain: a complete series of three outcomes and more.
PaperDrawing DrawPaper(const ExposureSession& s, const base::DateTime& now);

}  // namespace document
