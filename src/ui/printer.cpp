#include "ui/printer.h"

#include <QPainter>
#include <QPrinter>

#include "ui/painter_surface.h"

namespace ui {

bool PrintOn(QPagedPaintDevice& device, const drawing::DrawingRecord& drawing) {
  const bool lying = drawing.ScaleWidth() > drawing.ScaleHeight();
  device.setPageOrientation(lying ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPainter painter;
  if (!painter.begin(&device)) return false;
  PaintDrawing(painter, painter.viewport(), drawing);
  return painter.end();
}

bool Printer::PrintPage(const drawing::DrawingRecord& drawing) {
  QPrinter printer(QPrinter::HighResolution);
  // Without a printer the toolkit would offer to print into a file.
  if (!printer.isValid() || printer.outputFormat() != QPrinter::NativeFormat) return false;
  return PrintOn(printer, drawing) && printer.printerState() != QPrinter::Error;
}

}  // namespace ui
