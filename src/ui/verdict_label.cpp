#include "ui/verdict_label.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace ui {
namespace {

// In a square of 1 by 1.
QPainterPath Strokes(screen::Sign sign) {
  QPainterPath path;
  if (sign == screen::Sign::Tick) {
    path.moveTo(0.12, 0.55);
    path.lineTo(0.4, 0.84);
    path.lineTo(0.9, 0.16);
  } else {
    path.moveTo(0.15, 0.15);
    path.lineTo(0.85, 0.85);
    path.moveTo(0.85, 0.15);
    path.lineTo(0.15, 0.85);
  }
  return path;
}

}  // namespace

void VerdictLabel::SetSign(screen::Sign sign) {
  if (sign == sign_) return;
  sign_ = sign;
  MakeRoom();
  update();
}

void VerdictLabel::MakeRoom() {
  const int room = sign_ == screen::Sign::None ? 0 : SignSize() * 3 / 2;
  setContentsMargins(room, 0, 0, 0);
}

void VerdictLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) MakeRoom();
  QLabel::changeEvent(event);
}

// Drawn, as not every font has the characters; beside the first line of the words.
void VerdictLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (sign_ == screen::Sign::None) return;
  constexpr double kStroke = 0.18;
  const int size = SignSize();
  const int lines = heightForWidth(width()) < 0 ? sizeHint().height() : heightForWidth(width());
  const int top = (height() - std::min(lines, height())) / 2;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(0, top + (fontMetrics().height() - size) / 2);
  painter.scale(size, size);
  painter.strokePath(Strokes(sign_), QPen(palette().color(foregroundRole()), kStroke, Qt::SolidLine,
                                          Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace ui
