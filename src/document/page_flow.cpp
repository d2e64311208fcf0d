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
  for (std::size_t row = 0; row < rows; ++row) {
    Need(height);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (row >= lines[i].size() || lines[i][row].empty()) continue;
      // The letters of one row stand on one line, whatever their sizes.
      const double lower = (height - RowHeight(cells[i].face)) * 0.8;
      Text({cells[i].left, y_ + lower}, lines[i][row], cells[i].face);
    }
    y_ += height;
  }
}

void PageFlow::Rule(drawing::Colour colour, double width) {
  Page().Line({kMargin, y_}, {kPaperWidth - kMargin, y_}, colour, width);
}

void PageFlow::Text(drawing::Point at, const std::string& text, const Typeface& face) {
  Page().Text(at, text, {face.across, drawing::Down::Top, face.size, face.bold, face.colour}, "");
}

}  // namespace document
