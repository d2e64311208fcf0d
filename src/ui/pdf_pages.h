#pragma once

#include <QByteArray>

#include "screen/ports.h"

namespace ui {

// The job as a PDF file: its pages as lines and texts, with their fonts in it. Empty when it can't
// be made.
QByteArray PdfOf(const screen::PrintJob& job);

}  // namespace ui
