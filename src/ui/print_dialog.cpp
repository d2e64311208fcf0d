#include "ui/print_dialog.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include "drawing/font.h"
#include "ui/text.h"

namespace ui {
namespace {

const char* SidesOf(QPrinter::DuplexMode duplex) {
  if (duplex == QPrinter::DuplexLongSide) return "two-sided-long-edge";
  return duplex == QPrinter::DuplexShortSide ? "two-sided-short-edge" : "one-sided";
}

PrintChoice ChoiceOf(const QPrinter& printer) {
  const QPageSize size = printer.pageLayout().pageSize();
  const QSizeF points = size.size(QPageSize::Point);
  PrintChoice choice{
      Typed(printer.printerName()),
      {{"media", Typed(size.key())},
       {"copies", Typed(QString::number(printer.copyCount()))},
       {"collate", printer.collateCopies() ? "true" : "false"}},
      {points.width() * drawing::kTwipsPerPoint, points.height() * drawing::kTwipsPerPoint}};
  if (printer.duplex() != QPrinter::DuplexNone && printer.duplex() != QPrinter::DuplexAuto)
    choice.options.emplace_back("sides", SidesOf(printer.duplex()));
  if (printer.colorMode() == QPrinter::GrayScale)
    choice.options.emplace_back("print-color-mode", "monochrome");
  return choice;
}

}  // namespace

std::optional<PrintChoice> PrintDialog::Choose() {
  QPrinter printer;
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  // A file is offered where there is no printer; the pages of a job are always all of them.
  dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize |
                    QAbstractPrintDialog::PrintCollateCopies);
  if (dialog.exec() != QDialog::Accepted || printer.printerName().isEmpty()) return std::nullopt;
  return ChoiceOf(printer);
}

}  // namespace ui
