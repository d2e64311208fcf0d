#include "ui/outlined_style.h"

#include <QPainter>
#include <QStyleOption>

#include "ui/readable_colour.h"

namespace ui {
namespace {

// The shade that the toolkit's style takes for its outlines.
bool HidesOutlines(const QPalette& palette) {
  constexpr int kDarker = 140;
  constexpr double kSeen = 1.5;
  const QColor window = palette.color(QPalette::Window);
  return Contrast(window, window.darker(kDarker)) < kSeen;
}

void Outline(QPainter& painter, const QStyleOption& option, bool round) {
  if (!HidesOutlines(option.palette)) return;
  const bool focus = option.state & QStyle::State_HasFocus;
  painter.save();
  const QColor quiet =
      QuietOn(option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText));
  painter.setPen(focus ? option.palette.color(QPalette::Highlight) : quiet);
  painter.setBrush(Qt::NoBrush);
  painter.setRenderHint(QPainter::Antialiasing, round);
  const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (round)
    painter.drawEllipse(edge);
  else
    painter.drawRect(edge);
  painter.restore();
}

// The toolkit's style shows no focus of a bar.
void FrameOf(QPainter& painter, const QStyleOption& option) {
  constexpr int kFrame = 2;
  painter.save();
  painter.setPen(QPen(option.palette.color(QPalette::Highlight), kFrame));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
  painter.restore();
}

}  // namespace

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  switch (element) {
    case PE_FrameLineEdit:
    case PE_Frame:
    case PE_PanelButtonCommand:
    case PE_IndicatorCheckBox:
      return Outline(*painter, *option, false);
    case PE_IndicatorRadioButton:
      return Outline(*painter, *option, true);
    default:
      return;
  }
}

void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_TabBarTabShape && (option->state & State_Selected))
    Outline(*painter, *option, false);
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox || control == CC_ToolButton) Outline(*painter, *option, false);
  if (control == CC_ScrollBar && (option->state & State_HasFocus)) FrameOf(*painter, *option);
}

}  // namespace ui
