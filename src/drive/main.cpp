// valkorin-drive SCRIPT: plays a session script in the real window, by mouse and keyboard. A
// script - is read from standard input. README.md lists the commands.

#include <QApplication>

#include <fstream>
#include <iostream>
#include <istream>
#include <string>

#include "drive/live_input.h"
#include "drive/player.h"
#include "drive/script.h"
#include "drive/scripted_ports.h"
#include "drive/scripted_printer.h"
#include "drive/stage.h"
#include "ui/application.h"

namespace {

// Without a display the window is drawn in memory.
void ChoosePlatform() {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (!qEnvironmentVariableIsEmpty(variable)) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
}

int PlayAll(std::istream& in) {
  drive::ScriptedMessageBox boxes;
  drive::ScriptedFileDialog files;
  drive::StandingClock clock;
  drive::ScriptedPrinter printer;
  drive::ScriptedTableDialog tables;
  ui::Application application({boxes, files, clock, printer, tables});
  drive::Stage stage(application);
  application.Start();
  stage.Open();
  drive::Play play{stage, boxes, files, printer, tables, std::cout};
  drive::Script script(in);
  return drive::PlayScript(play, script);
}

}  // namespace

int main(int argc, char* argv[]) {
  ChoosePlatform();
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::cerr << "usage: valkorin-drive SCRIPT   (- reads the script from standard input)\n";
    return 2;
  }
  const std::string path = arguments[1].toStdString();
  if (path == "-") {
    drive::LiveInput input;
    std::istream lines(&input);
    return PlayAll(lines);
  }
  std::ifstream file(path);
  if (!file) {
    std::cerr << "valkorin-drive: can't read " << path << "\n";
    return 2;
  }
  return PlayAll(file);
}
