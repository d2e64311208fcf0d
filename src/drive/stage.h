#pragma once

#include <string>

#include "screen/form.h"
#include "start/program.h"
#include "ui/application.h"
#include "ui/main_window.h"

class QAction;
class QTabBar;
class QWidget;

namespace drive {

// A control that a script has named, and its screen.
struct Target {
  screen::Form* form = nullptr;
  screen::Control* control = nullptr;
};

// The running program as a script meets it: its screens, controls and widgets by name.
class Stage {
 public:
  explicit Stage(ui::Application& application) : application_(application) {}

  start::Program& Program() { return application_.Program(); }
  ui::MainWindow& Window() { return application_.Window(); }
  screen::Form& Shown() { return Program().Shown(); }
  ExposureSession& Session() { return Program().Session(); }

  // Shows the window and waits until it can take keys.
  void Open();
  // Closes the window as its own button does.
  void Close();
  // Handles events until none is left.
  void Settle();
  // The program has come to its end.
  bool Ended();

  // A control of the shown screen, or Form.NAME; Failure when there is none.
  Target Find(const std::string& name);
  QWidget& WidgetOf(const Target& target);
  QAction& ActionOf(const Target& target);
  QTabBar& Strip();
  // Null for what isn't a control of the form.
  screen::Control* ControlOf(screen::Form& form, const QWidget* widget);
  screen::Control* ControlOf(screen::Form& form, const QAction* action);

 private:
  ui::Application& application_;
  bool closed_ = false;
};

}  // namespace drive
