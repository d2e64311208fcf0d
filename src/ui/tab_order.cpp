#include "ui/tab_order.h"

#include <QGridLayout>
#include <QLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace ui {
namespace {

void Collect(QWidget& widget, std::vector<QWidget*>& stops);

// The layout lists its cells as they were made.
std::vector<QLayoutItem*> ByRows(const QGridLayout& grid) {
  std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> cells;
  for (int i = 0; i < grid.count(); ++i) {
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid.getItemPosition(i, &row, &column, &rows, &columns);
    cells.push_back({{row, column}, grid.itemAt(i)});
  }
  std::sort(cells.begin(), cells.end());
  std::vector<QLayoutItem*> items;
  items.reserve(cells.size());
  for (const auto& cell : cells) items.push_back(cell.second);
  return items;
}

std::vector<QLayoutItem*> InOrder(const QLayout& layout) {
  if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) return ByRows(*grid);
  std::vector<QLayoutItem*> items;
  items.reserve(static_cast<std::size_t>(layout.count()));
  for (int i = 0; i < layout.count(); ++i) items.push_back(layout.itemAt(i));
  return items;
}

void Collect(const QLayout& layout, std::vector<QWidget*>& stops) {
  for (QLayoutItem* item : InOrder(layout)) {
    if (item->widget())
      Collect(*item->widget(), stops);
    else if (item->layout())
      Collect(*item->layout(), stops);
  }
}

// What stands in a page without a layout, as the bars in a picture, comes as it was made.
void Collect(QWidget& widget, std::vector<QWidget*>& stops) {
  if (widget.focusPolicy() & Qt::TabFocus) stops.push_back(&widget);
  if (widget.layout()) return Collect(*widget.layout(), stops);
  for (QWidget* child : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    if (!child->isWindow()) Collect(*child, stops);
}

}  // namespace

void OrderTabs(QWidget& page) {
  std::vector<QWidget*> stops;
  Collect(page, stops);
  for (std::size_t i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops[i - 1], stops[i]);
}

}  // namespace ui
