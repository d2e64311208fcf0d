#pragma once

#include <vector>

#include "screen/form.h"
#include "tests/support/plain_history.h"
#include "tests/support/recording_printer.h"

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
  void RepaintControl(screen::Form& form, screen::Control& control) override {
    repainted.push_back(form.name + "." + control.name);
  }
  drawing::DrawingRecord Drawn(screen::Form&) override { return {12000, 9000}; }
};

struct Clock : screen::Clock {
  base::DateTime Now() const override { return {2024, 3, 7, 9, 5, 30}; }
};

struct PictureFile : screen::PictureFile {
  bool Write(const std::string&, const drawing::DrawingRecord&) override { return false; }
};

struct TableDialog : screen::TableDialog {
  std::optional<std::size_t> Ask(const Question&) override { return std::nullopt; }
};

struct Ports {
  MessageBox messageBox;
  FileDialog fileDialog;
  Surface surface;
  Clock clock;
  PictureFile pictureFile;
  support::RecordingPrinter printer;
  support::PlainHistory history;
  TableDialog tableDialog;
  screen::Ports ports{messageBox,  fileDialog, surface, clock,
                      pictureFile, printer,    history, tableDialog};
};

}  // namespace recording
