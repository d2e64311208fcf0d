#pragma once

#include <QPagedPaintDevice>

#include "screen/ports.h"

namespace ui {

// The system's current printer.
class Printer final : public screen::PrinterSurface {
 public:
  bool PrintPage(const drawing::DrawingRecord& drawing) override;
};

// Prints the drawing on one page of `device`, lying when the drawing is wider than high.
bool PrintOn(QPagedPaintDevice& device, const drawing::DrawingRecord& drawing);

}  // namespace ui
