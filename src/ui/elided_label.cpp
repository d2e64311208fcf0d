#include "ui/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace ui {

QSize ElidedLabel::minimumSizeHint() const {
  constexpr int kFewestCharacters = 12;
  const QSize whole = QLabel::sizeHint();
  const int few = fontMetrics().averageCharWidth() * kFewestCharacters;
  return {std::min(whole.width(), few), whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace ui
