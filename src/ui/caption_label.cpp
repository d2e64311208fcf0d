#include "ui/caption_label.h"

#include <QPainter>
#include <QStyle>

namespace ui {

int CaptionLabel::EmptyHeight() const {
  int ends = 0;
  for (qsizetype i = text().size(); i > 0 && text()[i - 1] == QLatin1Char('\n'); --i) ++ends;
  return ends * fontMetrics().lineSpacing();
}

QSize CaptionLabel::sizeHint() const { return QLabel::sizeHint() - QSize(0, EmptyHeight()); }

QSize CaptionLabel::minimumSizeHint() const {
  return QLabel::minimumSizeHint() - QSize(0, EmptyHeight());
}

int CaptionLabel::heightForWidth(int width) const {
  const int height = QLabel::heightForWidth(width);
  return height < 0 ? height : height - EmptyHeight();
}

void CaptionLabel::paintEvent(QPaintEvent*) {
  QString shown = text();
  while (shown.endsWith(QLatin1Char('\n'))) shown.chop(1);
  const int flags = static_cast<int>(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), shown,
                        foregroundRole());
}

}  // namespace ui
