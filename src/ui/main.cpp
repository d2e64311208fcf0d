#include <QApplication>

#include "ui/application.h"
#include "ui/clock.h"
#include "ui/file_dialog.h"
#include "ui/message_box.h"
#include "ui/printer.h"
#include "ui/table_dialog.h"

int main(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  ui::MessageBox messageBox;
  ui::FileDialog fileDialog;
  ui::Clock clock;
  ui::Printer printer;
  ui::TableDialog tableDialog;
  ui::Application application({messageBox, fileDialog, clock, printer, tableDialog});
  application.Start();
  return QApplication::exec();
}
