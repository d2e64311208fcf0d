#include "output/grid_pages.h"

#include <algorithm>

#include "catalog/own_texts.h"
#include "drawing/font.h"
#include "session/global_bas.h"

namespace output {
namespace {

constexpr double kMargin = 5 * kTwipsPerMm;
constexpr double kLargest = 9;  // letters, in points
constexpr double kGap = 3 * kTwipsPerMm;

// Where the columns stand: each as wide as its widest text, all letters smaller where the paper is
// too narrow for that.
struct Layout {
  double size = kLargest;
  std::vector<double> left;
  double Line() const { return size * drawing::kTwipsPerPoint * 1.3; }
};

double WidestOf(const PrintedTable& table, std::size_t column) {
  double widest = drawing::LineWidth(table.header[column], kLargest, true);
  for (const std::vector<std::string>& row : table.rows)
    widest = std::max(widest, drawing::LineWidth(row[column], kLargest, false));
  return widest;
}

Layout LayoutOf(const PrintedTable& table, double room) {
  Layout layout;
  double right = 0;
  for (std::size_t column = 0; column < table.header.size(); ++column) {
    layout.left.push_back(right);
    right += WidestOf(table, column) + kGap;
  }
  const double factor = std::min(1.0, room / right);
  layout.size *= factor;
  for (double& left : layout.left) left *= factor;
  return layout;
}

class Pages {
 public:
  Pages(const PrintedTable& table, const std::string& title, const Foot& foot, screen::Extent paper)
      : table_(table),
        title_(title),
        foot_(foot),
        paper_(paper),
        layout_(LayoutOf(table, paper.width - 2 * kMargin)) {}

  std::vector<drawing::DrawingRecord> All() {
    // What stands above and below the rows is as high on each page.
    drawing::DrawingRecord measured = Empty();
    const double first = Head(measured);
    const double last = Below(measured, 1, 1) - kGap;
    const std::size_t room =
        static_cast<std::size_t>(std::max(1.0, (last - first) / layout_.Line()));
    const std::size_t count = std::max<std::size_t>(1, (table_.rows.size() + room - 1) / room);
    std::vector<drawing::DrawingRecord> pages;
    for (std::size_t page = 0; page < count; ++page) {
      pages.push_back(Empty());
      const double top = Head(pages.back());
      Rows(pages.back(), page * room, std::min((page + 1) * room, table_.rows.size()), top);
      Below(pages.back(), page + 1, count);
    }
    return pages;
  }

 private:
  drawing::DrawingRecord Empty() const { return {paper_.width, paper_.height}; }

  void Row(drawing::DrawSurface& page, const std::vector<std::string>& texts, double top,
           bool bold) const {
    for (std::size_t column = 0; column < texts.size(); ++column)
      if (!texts[column].empty())
        page.Text({kMargin + layout_.left[column], top}, texts[column],
                  {.size = layout_.size, .bold = bold}, "Cell");
  }

  // Where the rows begin.
  double Head(drawing::DrawSurface& page) const {
    page.Text({kMargin, kMargin}, title_, {.size = kLargest, .bold = true}, "Title");
    const double top = kMargin + kLargest * drawing::kTwipsPerPoint * 2;
    Row(page, table_.header, top, true);
    const double line = top + layout_.Line();
    page.Line({kMargin, line}, {paper_.width - kMargin, line}, {}, 10);
    return line + layout_.Line() / 4;
  }

  void Rows(drawing::DrawSurface& page, std::size_t from, std::size_t to, double top) const {
    for (std::size_t row = from; row < to; ++row)
      Row(page, table_.rows[row], top + static_cast<double>(row - from) * layout_.Line(), false);
  }

  // Where the rows must end.
  double Below(drawing::DrawSurface& page, std::size_t number, std::size_t count) const {
    Foot foot = foot_;
    foot.window += (foot.window.empty() ? "" : "     ") +
                   OwnText(Own::PageOf, {GlobalBAS::FileText(static_cast<double>(number)),
                                         GlobalBAS::FileText(static_cast<double>(count))});
    return DrawFoot(page, foot, kMargin, paper_.width - kMargin, paper_.height - kMargin);
  }

  const PrintedTable& table_;
  const std::string& title_;
  const Foot& foot_;
  screen::Extent paper_;
  Layout layout_;
};

}  // namespace

PrintedTable TableOf(const screen::Grid& grid) {
  PrintedTable table;
  for (const screen::Grid::Column& column : grid.columns) table.header.push_back(column.caption);
  for (int row = 0; row < grid.rowCount; ++row) {
    table.rows.emplace_back();
    for (std::size_t column = 0; column < grid.columns.size(); ++column)
      table.rows.back().push_back(grid.Cell(row, static_cast<int>(column)));
  }
  return table;
}

std::vector<drawing::DrawingRecord> GridPages(const PrintedTable& table, const std::string& title,
                                              const Foot& foot, screen::Extent paper) {
  return Pages(table, title, foot, paper).All();
}

}  // namespace output
