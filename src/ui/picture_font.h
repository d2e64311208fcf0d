#pragma once

#include <QPainter>
#include <QRawFont>

#include <string>

namespace ui {

// The drawings' own font, out of the program itself: whatever fonts a machine has, a drawing looks
// the same. Each letter stands where drawing::LineWidth has it.
class PictureFont {
 public:
  // Of `pixels` to the font size. The toolkit's application object must exist.
  PictureFont(double pixels, bool bold);

  double Width(const QString& line) const;
  // From the left end of the line on which the letters stand, in the painter's pen.
  void Draw(QPainter& painter, QPointF start, const QString& line) const;

 private:
  QRawFont FontFor(const QPainter& painter) const;
  void DrawStrange(QPainter& painter, QPointF at, char32_t letter) const;

  double pixels_;
  bool bold_;
  QRawFont font_;
};

// Reads the font's files, so that the first drawing need not; false where they can't be read.
bool LoadPictureFont();

}  // namespace ui
