#include "ui/picture_file.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "files/safe_writer.h"
#include "ui/painter_surface.h"

namespace ui {
namespace {

constexpr double kDotsToTheTwip = 2 / drawing::kTwipsPerPixel;
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
  QBuffer bytes;
  if (!bytes.open(QIODevice::WriteOnly) || !image.save(&bytes, "BMP")) return false;
  return files::WriteSafely(path, {bytes.data().constData(), std::size_t(bytes.data().size())});
}

}  // namespace ui
