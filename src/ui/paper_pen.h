#pragma once

#include <QRectF>
#include <QString>

#include "drawing/drawing.h"

namespace ui {

// Draws in the pixels of a window on a surface of twips: lines, and texts that keep to their room.
class PaperPen {
 public:
  struct TextLook {
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    double pixels = 13;  // height of the font
    bool bold = false;
    bool wraps = false;
    Qt::TextElideMode elides = Qt::ElideRight;
    drawing::Colour colour{};
    QString family;
  };

  explicit PaperPen(drawing::DrawSurface& surface) : surface_(surface) {}

  void Line(QPointF from, QPointF to, drawing::Colour colour = {}, double width = 1);
  void Box(const QRectF& place, drawing::Colour colour = {});
  void Circle(QPointF middle, double radius);
  // What is too wide or too high for `place` gets smaller letters, and then loses its end.
  void Text(const QRectF& place, const QString& text, TextLook look, const std::string& label);

 private:
  QStringList Broken(const QString& text, const TextLook& look, double width) const;
  QString Elided(const QString& line, const TextLook& look, double width) const;
  bool Fits(const QStringList& lines, const TextLook& look, QSizeF room) const;

  drawing::DrawSurface& surface_;
};

}  // namespace ui
