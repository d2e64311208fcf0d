#pragma once

#include <QProxyStyle>

namespace ui {

// The toolkit's style draws outlines in a darker shade of the window's colour. On a dark desktop it
// can hardly be seen, on a black one there is none: there fields, boxes, buttons and the open tab
// get an outline in a quiet shade of the text.
class OutlinedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace ui
