#include "ui/picture_file.h"

#include <QImage>
#include <QPainter>
#include <QSaveFile>

#include "ui/painter_surface.h"
#include "ui/text.h"

namespace ui {
namespace {

constexpr double kDotsToTheTwip = 2.0 / 15;
constexpr int kDotsToTheMetre = 7559;  // 192 to the inch

}  // namespace

bool PictureFile::Write(const std::string& path, const drawing::DrawingRecord& drawing) {
  const QSizeF size = QSizeF(drawing.ScaleWidth(), drawing.ScaleHeight()) * kDotsToTheTwip;
  QImage image(size.toSize(), QImage::Format_RGB32);
  if (image.isNull()) return false;
  image.fill(Qt::white);
  image.setDotsPerMeterX(kDotsToTheMetre);
  image.setDotsPerMeterY(kDotsToTheMetre);
  QPainter painter(&image);
  PaintDrawing(painter, image.rect(), drawing);
  painter.end();
  // Writes beside the file and renames over it.
  QSaveFile file(Shown(path));
  return file.open(QIODevice::WriteOnly) && image.save(&file, "BMP") && file.commit();
}

}  // namespace ui
