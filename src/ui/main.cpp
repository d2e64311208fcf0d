#include <QApplication>

#include "ui/application.h"
#include "ui/clock.h"
#include "ui/cups_system.h"
#include "ui/end_signals.h"
#include "ui/file_dialog.h"
#include "ui/message_box.h"
#include "ui/print_dialog.h"
#include "ui/printer.h"
#include "ui/table_dialog.h"

int main(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  ui::MessageBox messageBox;
  ui::FileDialog fileDialog;
  ui::Clock clock;
  ui::CupsSystem printSystem;
  ui::PrintDialog printDialog;
  ui::Printer printer(printSystem, printDialog);
  ui::TableDialog tableDialog;
  ui::Application application({messageBox, fileDialog, clock, printer, tableDialog});
  application.Start();
  const ui::EndSignals requests([&application] { application.Program().EndUnasked(); });
  return QApplication::exec();
}
