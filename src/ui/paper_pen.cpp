#include "ui/paper_pen.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawing/font.h"
#include "ui/text.h"

namespace ui {
namespace {

constexpr double kTwips = drawing::kTwipsPerPixel;

drawing::Point Place(QPointF pixels) { return {pixels.x() * kTwips, pixels.y() * kTwips}; }

double Points(double pixels) { return pixels * kTwips / drawing::kTwipsPerPoint; }

double Width(const QString& line, const PaperPen::TextLook& look) {
  return drawing::LineWidth(Typed(line), Points(look.pixels), look.bold) / kTwips;
}

drawing::Across AcrossOf(Qt::Alignment alignment) {
  if (alignment & Qt::AlignRight) return drawing::Across::Right;
  return alignment & Qt::AlignHCenter ? drawing::Across::Centre : drawing::Across::Left;
}

drawing::Down DownOf(Qt::Alignment alignment) {
  if (alignment & Qt::AlignTop) return drawing::Down::Top;
  return alignment & Qt::AlignBottom ? drawing::Down::Bottom : drawing::Down::Middle;
}

QPointF Corner(const QRectF& place, drawing::Across across, drawing::Down down) {
  const double x = across == drawing::Across::Left     ? place.left()
                   : across == drawing::Across::Centre ? place.center().x()
                                                       : place.right();
  const double y = down == drawing::Down::Top      ? place.top()
                   : down == drawing::Down::Middle ? place.center().y()
                                                   : place.bottom();
  return {x, y};
}

}  // namespace

void PaperPen::Line(QPointF from, QPointF to, drawing::Colour colour, double width) {
  surface_.Line(Place(from), Place(to), colour, width * kTwips);
}

void PaperPen::Box(const QRectF& place, drawing::Colour colour) {
  Line(place.topLeft(), place.topRight(), colour);
  Line(place.topRight(), place.bottomRight(), colour);
  Line(place.bottomRight(), place.bottomLeft(), colour);
  Line(place.bottomLeft(), place.topLeft(), colour);
}

void PaperPen::Circle(QPointF middle, double radius) {
  constexpr int kCorners = 16;
  QPointF before = middle + QPointF(radius, 0);
  for (int i = 1; i <= kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCorners;
    const QPointF next = middle + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    Line(before, next);
    before = next;
  }
}

// At its line ends and, where the words must, between them.
QStringList PaperPen::Broken(const QString& text, const TextLook& look, double width) const {
  QStringList lines;
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    lines += QString();
    if (!look.wraps || Width(line, look) <= width) {
      lines.last() = line;
      continue;
    }
    for (const QString& word : line.split(QLatin1Char(' '))) {
      const QString longer = lines.last().isEmpty() ? word : lines.last() + QLatin1Char(' ') + word;
      if (lines.last().isEmpty() || Width(longer, look) <= width)
        lines.last() = longer;
      else
        lines += word;
    }
  }
  return lines;
}

bool PaperPen::Fits(const QStringList& lines, const TextLook& look, QSizeF room) const {
  // The window's own lines stand closer, where it is low.
  constexpr double kTight = 1.05;
  if (look.pixels * kTight * static_cast<double>(lines.size()) > room.height() + 2) return false;
  return std::ranges::all_of(
      lines, [&](const QString& line) { return Width(line, look) <= room.width(); });
}

QString PaperPen::Elided(const QString& line, const TextLook& look, double width) const {
  if (Width(line, look) <= width) return line;
  const QString dots(QChar(0x2026));
  for (qsizetype kept = line.size() - 1; kept > 0; --kept) {
    const qsizetype left = look.elides == Qt::ElideMiddle ? (kept + 1) / 2 : kept;
    const QString shorter = line.left(left) + dots + line.right(kept - left);
    if (Width(shorter, look) <= width) return shorter;
  }
  return dots;
}

void PaperPen::Text(const QRectF& place, const QString& text, TextLook look,
                    const std::string& label) {
  constexpr double kSmaller = 0.95;
  constexpr double kSmallest = 6.5;
  QString shown = text;
  while (shown.endsWith(QLatin1Char('\n'))) shown.chop(1);
  shown.remove(kBreak);
  if (shown.trimmed().isEmpty()) return;
  QStringList lines = Broken(shown, look, place.width());
  while (!Fits(lines, look, place.size()) && look.pixels * kSmaller >= kSmallest) {
    look.pixels *= kSmaller;
    lines = Broken(shown, look, place.width());
  }
  for (QString& line : lines) line = Elided(line, look, place.width());
  const drawing::Across across = AcrossOf(look.alignment);
  const drawing::Down down = DownOf(look.alignment);
  surface_.Text(Place(Corner(place, across, down)), Typed(lines.join(QLatin1Char('\r'))),
                {across, down, Points(look.pixels), look.bold, look.colour, Typed(look.family)},
                label);
}

}  // namespace ui
