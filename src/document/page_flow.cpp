#include "document/page_flow.h"

#include <algorithm>

namespace document {

double RowHeight(const Ink& ink) {
  constexpr double kTwipsPerPoint = 20;
  return ink.size * kTwipsPerPoint * drawing::kLineSpacing;
}

PageFlow::PageFlow(double foot) : foot_(foot) { NewPage(); }

void PageFlow::NewPage() {
  pages_.emplace_back(kPaperWidth, kPaperHeight);
  y_ = kTop;
}

void PageFlow::Need(double height) {
  if (height > Room() && y_ > kTop) NewPage();
}

void PageFlow::Row(const std::vector<Cell>& cells) {
  std::vector<std::vector<std::string>> lines;
  std::size_t rows = 1;
  double height = 0;
  for (const Cell& cell : cells) {
    lines.push_back(WrappedLines(cell.text, cell.width, cell.face));
    rows = std::max(rows, lines.back().size());
    height = std::max(height, RowHeight(cell.face));
  }
  Need(std::min(static_cast<double>(rows) * height, foot_ - kTop));
  // Cell by cell, so that each can be selected and read by itself; a row that is longer than a page
  // has to go line by line.
  const bool whole = static_cast<double>(rows) * height <= Room();
  if (whole) {
    for (std::size_t i = 0; i < cells.size(); ++i)
      for (std::size_t row = 0; row < lines[i].size(); ++row)
        PutLine(cells[i], lines[i][row], static_cast<double>(row) * height, height);
    y_ += static_cast<double>(rows) * height;
    return;
  }
  for (std::size_t row = 0; row < rows; ++row) {
    Need(height);
    for (std::size_t i = 0; i < cells.size(); ++i)
      if (row < lines[i].size()) PutLine(cells[i], lines[i][row], 0, height);
    y_ += height;
  }
}

// The letters of one row stand on one line, whatever their sizes.
void PageFlow::PutLine(const Cell& cell, const std::string& line, double below, double height) {
  const double lower = (height - RowHeight(cell.face)) * 0.8;
  if (!line.empty()) Text({cell.left, y_ + below + lower}, line, cell.face);
}

void PageFlow::Rule(drawing::Colour colour, double width) {
  Page().Line({kMargin, y_}, {kPaperWidth - kMargin, y_}, colour, width);
}

void PageFlow::Text(drawing::Point at, const std::string& text, const Typeface& face) {
  Page().Text(at, text, {face.across, drawing::Down::Top, face.size, face.bold, face.colour}, "");
}

}  // namespace document
