#include "ui/pdf_pages.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "drawing/font.h"
#include "ui/painter_surface.h"
#include "ui/text.h"

namespace ui {
namespace {

constexpr int kDotsToTheInch = 1200;

QPageLayout LayoutOf(const drawing::DrawingRecord& page) {
  const QSizeF size = QSizeF(page.ScaleWidth(), page.ScaleHeight()) / drawing::kTwipsPerPoint;
  const bool lying = size.width() > size.height();
  const QPageSize upright(lying ? size.transposed() : size, QPageSize::Point, QString(),
                          QPageSize::ExactMatch);
  return {upright, lying ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

}  // namespace

QByteArray PdfOf(const screen::PrintJob& job) {
  QByteArray bytes;
  if (job.pages.empty()) return bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  QPdfWriter writer(&buffer);
  writer.setTitle(Shown(job.title));
  writer.setResolution(kDotsToTheInch);
  QPainter painter;
  for (const drawing::DrawingRecord& page : job.pages) {
    writer.setPageLayout(LayoutOf(page));
    const bool ready = painter.isActive() ? writer.newPage() : painter.begin(&writer);
    if (!ready) return {};
    PaintDrawing(painter, QRectF(0, 0, writer.width(), writer.height()), page);
  }
  return painter.end() ? bytes : QByteArray();
}

}  // namespace ui
