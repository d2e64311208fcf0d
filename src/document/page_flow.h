#pragma once

#include <string>
#include <vector>

#include "document/wrapping.h"
#include "drawing/drawing.h"

// Pages of A4 that fill from the top down. Everything is measured by the widths of the drawings'
// own font, so that the pages are the same wherever they are laid out.
namespace document {

inline constexpr double kPaperWidth = 11906;  // A4, in twips
inline constexpr double kPaperHeight = 16838;
inline constexpr double kMargin = 1093;
inline constexpr double kTextWidth = kPaperWidth - 2 * kMargin;
inline constexpr double kTop = 1250;
inline constexpr double kFoot = kPaperHeight - 1150;

struct Typeface : Ink {
  drawing::Colour colour{};
  drawing::Across across = drawing::Across::Left;
};

// From one line to the next, in twips.
double RowHeight(const Ink& ink);

// A text in its column: from `left` on, `width` wide.
struct Cell {
  std::string text;
  double left = 0;
  double width = 0;
  Typeface face;
};

class PageFlow {
 public:
  // `height`: where the pages end. A page without end is for measuring.
  explicit PageFlow(double foot = kFoot);

  double Room() const { return foot_ - y_; }
  double Y() const { return y_; }
  drawing::DrawingRecord& Page() { return pages_.back(); }
  std::vector<drawing::DrawingRecord>& Pages() { return pages_; }

  // Another page, unless so much fits on this one or nothing stands on it yet.
  void Need(double height);
  void NewPage();
  void Skip(double height) { y_ += height; }

  // Wrapped side by side, on one page where they fit on one.
  void Row(const std::vector<Cell>& cells);
  void Rule(drawing::Colour colour, double width);
  void Text(drawing::Point at, const std::string& text, const Typeface& face);

 private:
  void PutLine(const Cell& cell, const std::string& line, double below, double height);

  double foot_;
  double y_ = kTop;
  std::vector<drawing::DrawingRecord> pages_;
};

}  // namespace document
