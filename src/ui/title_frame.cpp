#include "ui/title_frame.h"

#include <QEvent>
#include <QLayout>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include <algorithm>

namespace ui {

QStringList TitleFrame::TitleLines() const {
  constexpr int kEdges = 8;  // of the style, left and right of the title
  QStringList lines;
  for (const QString& word : title().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QString longer = lines.isEmpty() ? word : lines.last() + QLatin1Char(' ') + word;
    if (lines.isEmpty() || fontMetrics().horizontalAdvance(longer) > width() - kEdges)
      lines += word;
    else
      lines.last() = longer;
  }
  return lines.size() > 1 ? lines : QStringList(title());
}

// The style asks for the whole title on one line.
QSize TitleFrame::minimumSizeHint() const {
  int widest = 0;
  for (const QString& word : title().split(QLatin1Char(' ')))
    widest = std::max(widest, fontMetrics().horizontalAdvance(word));
  const QSize content = layout() ? layout()->totalMinimumSize() : QSize();
  return {std::max(widest, content.width()), content.height()};
}

void TitleFrame::SetTitle(const QString& title) {
  setTitle(title);
  MakeRoom();
}

bool TitleFrame::event(QEvent* event) {
  const bool done = QGroupBox::event(event);
  const auto type = event->type();
  if (type == QEvent::Resize || type == QEvent::FontChange || type == QEvent::Polish) MakeRoom();
  return done;
}

// By the layout: the frame's own margins are the toolkit's.
void TitleFrame::MakeRoom() {
  const int above = static_cast<int>(TitleLines().size() - 1) * fontMetrics().lineSpacing();
  if (above == above_ || !layout()) return;
  QMargins margins = layout()->contentsMargins();
  margins.setTop(margins.top() + above - above_);
  above_ = above;
  layout()->setContentsMargins(margins);
}

void TitleFrame::paintEvent(QPaintEvent* event) {
  const QStringList lines = TitleLines();
  if (lines.size() == 1) return QGroupBox::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  option.text = lines.last();
  option.rect.setHeight(height() - above_);
  const QRect last =
      style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
  for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
    const QRect place(last.left(), last.top() + static_cast<int>(i) * fontMetrics().lineSpacing(),
                      width() - last.left(), last.height());
    // A double & stands for one, as the style has it in the last line.
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    painter.drawItemText(place, kFlags, palette(), isEnabled(), lines[i], QPalette::WindowText);
  }
  painter.translate(0, above_);
  painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

}  // namespace ui
