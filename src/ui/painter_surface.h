#pragma once

#include <QPainter>

#include "drawing/drawing.h"

namespace ui {

// A drawing surface on anything that can be painted: a widget, an image, a printer's page. Fonts
// and lines are made in the painter's own size, so that they are sharp on each.
class PainterSurface final : public drawing::DrawSurface {
 public:
  // The drawing of `scale` twips fills `target`, which has the same proportions.
  PainterSurface(QPainter& painter, const QRectF& target, QSizeF scale);

  double ScaleWidth() const override { return scale_.width(); }
  double ScaleHeight() const override { return scale_.height(); }
  // White paper.
  void Clear() override;
  void Line(drawing::Point from, drawing::Point to, drawing::Colour colour, double width) override;
  void Dot(drawing::Point at, drawing::Colour colour) override;
  void Text(drawing::Point at, const std::string& text, const drawing::TextStyle& style,
            const std::string& label) override;

 private:
  QPointF Place(drawing::Point at) const;
  void SystemText(drawing::Point at, const std::string& text, const drawing::TextStyle& style);

  QPainter& painter_;
  QRectF target_;
  QSizeF scale_;
  double factor_;  // painter's units to the twip
};

// Paints the drawing on white paper, as large as fits and in the middle of `target`.
void PaintDrawing(QPainter& painter, const QRectF& target, const drawing::DrawingRecord& drawing);

}  // namespace ui
