#include <QApplication>

#include "ui/application.h"
#include "ui/file_dialog.h"
#include "ui/message_box.h"

int main(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  ui::MessageBox messageBox;
  ui::FileDialog fileDialog;
  ui::Application application(messageBox, fileDialog);
  application.Start();
  return QApplication::exec();
}
