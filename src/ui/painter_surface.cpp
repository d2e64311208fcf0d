#include "ui/painter_surface.h"

#include "drawing/font.h"
#include "ui/picture_font.h"
#include "ui/text.h"

namespace ui {
namespace {

QColor Shade(drawing::Colour colour) { return {colour.red, colour.green, colour.blue}; }

// How far left of its point, in its own widths, a text begins; and how far above, a block of lines.
double Share(drawing::Across across) {
  return across == drawing::Across::Left ? 0 : across == drawing::Across::Centre ? 0.5 : 1;
}
double Share(drawing::Down down) {
  return down == drawing::Down::Top ? 0 : down == drawing::Down::Middle ? 0.5 : 1;
}

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& target, QSizeF scale)
    : painter_(painter), target_(target), scale_(scale), factor_(target.width() / scale.width()) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::TextAntialiasing);
}

QPointF PainterSurface::Place(drawing::Point at) const {
  return target_.topLeft() + QPointF(at.x, at.y) * factor_;
}

void PainterSurface::Clear() { painter_.fillRect(target_, Qt::white); }

void PainterSurface::Line(drawing::Point from, drawing::Point to, drawing::Colour colour,
                          double width) {
  painter_.setPen(QPen(Shade(colour), width * factor_, Qt::SolidLine, Qt::FlatCap));
  painter_.drawLine(Place(from), Place(to));
}

void PainterSurface::Dot(drawing::Point at, drawing::Colour colour) {
  painter_.setPen(QPen(Shade(colour), drawing::kDotWidth * factor_, Qt::SolidLine, Qt::RoundCap));
  painter_.drawPoint(Place(at));
}

void PainterSurface::Text(drawing::Point at, const std::string& text,
                          const drawing::TextStyle& style, const std::string&) {
  if (!style.family.empty()) {
    SystemText(at, text, style);
    return;
  }
  const double pixels = style.size * drawing::kTwipsPerPoint * factor_;
  const PictureFont font(pixels, style.bold);
  painter_.setPen(Shade(style.colour));
  const QStringList lines = Lines(text).split(QLatin1Char('\n'));
  const double spacing = pixels * drawing::kLineSpacing;
  QPointF corner = Place(at);
  corner.ry() -= Share(style.down) * spacing * static_cast<double>(lines.size());
  corner.ry() += (spacing + (drawing::Ascent() - drawing::Descent()) * pixels) / 2;
  for (const QString& line : lines) {
    const double indent = Share(style.across) * font.Width(line);
    font.Draw(painter_, corner - QPointF(indent, 0), line);
    corner.ry() += spacing;
  }
}

void PainterSurface::SystemText(drawing::Point at, const std::string& text,
                                const drawing::TextStyle& style) {
  constexpr double kPointsToTheInch = 72;
  const double pixels = style.size * drawing::kTwipsPerPoint * factor_;
  QFont font(Shown(style.family));
  font.setPointSizeF(pixels * kPointsToTheInch / painter_.device()->logicalDpiY());
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(false);
  const QFontMetricsF metrics(font, painter_.device());
  painter_.setFont(font);
  painter_.setPen(Shade(style.colour));
  const QStringList lines = Lines(text).split(QLatin1Char('\n'));
  QPointF corner = Place(at);
  const double spacing = pixels * drawing::kLineSpacing;
  corner.ry() -= Share(style.down) * spacing * static_cast<double>(lines.size());
  corner.ry() += (spacing + metrics.ascent() - metrics.descent()) / 2;
  for (const QString& line : lines) {
    const double indent = Share(style.across) * metrics.horizontalAdvance(line);
    painter_.drawText(corner - QPointF(indent, 0), line);
    corner.ry() += spacing;
  }
}

void PaintDrawing(QPainter& painter, const QRectF& target, const drawing::DrawingRecord& drawing) {
  const QSizeF scale(drawing.ScaleWidth(), drawing.ScaleHeight());
  QRectF place(QPointF(), scale.scaled(target.size(), Qt::KeepAspectRatio));
  place.moveCenter(target.center());
  PainterSurface surface(painter, place, scale);
  surface.Clear();
  drawing.ReplayOn(surface);
}

}  // namespace ui
