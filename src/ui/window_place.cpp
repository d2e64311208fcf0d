#include "ui/window_place.h"

namespace ui {

QRect ContentPlace(QSize wanted, const QRect& available, const QMargins& frame) {
  const QRect room = available.marginsRemoved(frame);
  QRect place(QPoint(), wanted.boundedTo(room.size()));
  place.moveCenter(room.center());
  return place;
}

}  // namespace ui
