#pragma once

#include <memory>

#include "screen/ports.h"
#include "start/program.h"
#include "ui/main_window.h"

namespace ui {

// What the caller of the program gives it of the world outside; it must outlive the program.
struct Surroundings {
  screen::MessageBox& messageBox;
  screen::FileDialog& fileDialog;
  screen::Clock& clock;
  screen::PrinterSurface& printer;
  screen::TableDialog& tableDialog;
};

// The program in its window. The toolkit's application object must exist before it and after it.
class Application {
 public:
  explicit Application(const Surroundings& around);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  start::Program& Program();
  MainWindow& Window();

  // The start sequence behind the splash screen; then the window shows.
  void Start();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Settings of the toolkit that the program counts on. Call it once, right after the toolkit's
// application object was made.
void PrepareToolkit();

}  // namespace ui
