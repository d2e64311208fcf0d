#pragma once

#include <vector>

#include "screen/form.h"

// Ports that keep what was asked of them.
namespace recording {

struct MessageBox : screen::MessageBox {
  std::vector<screen::Message> shown;
  screen::Answer Show(const screen::Message& message) override {
    shown.push_back(message);
    return message.defaultAnswer;
  }
};

struct FileDialog : screen::FileDialog {
  std::string Ask(const Request&) override { return ""; }
};

struct Surface : screen::Surface {
  std::vector<std::string> repainted;
  void Repaint(screen::Form& form) override { repainted.push_back(form.name); }
};

struct Ports {
  MessageBox messageBox;
  FileDialog fileDialog;
  Surface surface;
  screen::Ports ports{messageBox, fileDialog, surface};
};

}  // namespace recording
