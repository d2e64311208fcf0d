#pragma once

#include <QWidget>

namespace ui {

// Makes the Tab key go through the page in the order of the eye: as its layouts are read, from left
// to right within a row, row by row, column beside column. A layout that folds keeps its order.
// The page must stand in its window by then: on its own it has no beginning.
void OrderTabs(QWidget& page);

}  // namespace ui
