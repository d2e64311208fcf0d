#pragma once

#include <QMargins>
#include <QRect>

namespace ui {

// Where the content of a window goes that would be `wanted` large: in the middle of the free part
// of the screen and, with the frame that the window system draws around it, within that.
QRect ContentPlace(QSize wanted, const QRect& available, const QMargins& frame);

}  // namespace ui
