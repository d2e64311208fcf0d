#pragma once

#include <string>

#include "bench/silent_ports.h"
#include "session/workflow.h"
#include "ui/application.h"

namespace bench {

// Everything that stands to be shown is on the screen when it returns.
void Paint(ui::Application& application);

// Prints nothing, but writes a document as the program does.
class FilePrinter final : public NoPrinter {
 public:
  bool WritePdf(const std::string& path, const screen::PrintJob& job) override;
};

// A started program in its window, and the user's ways to it.
struct Desktop {
  Desktop();

  SilentMessageBox messageBox;
  OneFile fileDialog;
  StandingClock clock;
  FilePrinter printer;
  SilentTableDialog tableDialog;
  ui::Application application{{messageBox, fileDialog, clock, printer, tableDialog}};

  ExposureSession& Record() { return application.Program().Session(); }
  void Menu(const char* name);
  void Open(const std::string& path);
  void Show(workflow::ScreenId screen);
  // Runs `work` in the handler of a button's click, behind a repaint of the screen.
  void InHandler(const screen::Handler& work);
};

}  // namespace bench
