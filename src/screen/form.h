#pragma once

#include <string>
#include <vector>

#include "screen/control.h"
#include "screen/ports.h"

namespace screen {

// A screen: its controls in the order of their declaration, and what the window shows of it.
// The structs of the nine screens derive from it.
struct Form {
  Form(std::string formName, Ports& formPorts) : name(std::move(formName)), ports(formPorts) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string name;
  Ports& ports;

  std::string caption;
  std::string captionTag;  // design-time id of the caption
  bool busyPointer = false;
  std::vector<Control*> controls;
  TabStrip* strip = nullptr;
  Control* focusWanted = nullptr;  // taken and cleared by the binder after the event

  // Runs once, after the catalogue was applied to the controls.
  virtual void Load() {}
  // Runs each time the screen gets shown.
  virtual void Activate() {}

  Control* Find(const std::string& controlName) const;
  void SetFocus(Control& control) { focusWanted = &control; }
  // Repaints the screen now, in the middle of a handler.
  void Refresh();

  // A message box with the exclamation icon and one OK button.
  void Complain(const std::string& text, const std::string& title, const std::string& advice = {});
};

// A small window beside the main one, which tells of work in progress: it is never the shown
// screen, takes no input, and stands there while `shown`.
struct SideWindow : Form {
  using Form::Form;
  bool shown = false;
};

// The busy pointer, until the end of the scope however that comes.
class Busy {
 public:
  explicit Busy(Form& form) : form_(form) { form.busyPointer = true; }
  ~Busy() { form_.busyPointer = false; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  Form& form_;
};

// Replaces the design-time ids in tag and toolTipText of every control by catalogue texts.
void ApplyCatalogue(Form& form);

// Runs `handler`; a fault in it ends the handler only and is told in one message box.
void Guarded(Ports& ports, const Handler& handler);

}  // namespace screen
