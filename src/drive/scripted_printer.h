#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "ui/cups_system.h"
#include "ui/printer.h"

namespace drive {

// Answers the print dialog as the script has queued.
class ScriptedChooser final : public ui::PrintChooser {
 public:
  // No printer cancels the dialog.
  void Queue(std::optional<std::string> printer) { queue_.push_back(std::move(printer)); }
  // An unqueued dialog gets `otherwise`.
  std::optional<std::string> Next(std::optional<std::string> otherwise);
  std::optional<ui::PrintChoice> Choose() override;

 private:
  std::deque<std::optional<std::string>> queue_;
};

// Keeps the texts of what is printed. Besides, a script has it written to a file, or printed by the
// system.
class ScriptedPrinter final : public screen::PrinterSurface {
 public:
  bool AnyPrinter() override;
  bool Choose() override;
  screen::Extent Paper() override;
  bool Print(const screen::PrintJob& job) override;
  bool WritePdf(const std::string& path, const screen::PrintJob& job) override;
  bool TakeLine(const std::string& line) override { return real_.TakeLine(line); }
  const std::vector<std::string>& OpenDocument() const override { return real_.OpenDocument(); }
  void CloseDocument() override { real_.CloseDocument(); }
  std::vector<std::string> Fonts() override { return real_.Fonts(); }
  screen::Extent TextExtent(const std::string& line, const drawing::TextStyle& style) override {
    return real_.TextExtent(line, style);
  }

  // The answer to the next print dialog.
  void Queue(std::optional<std::string> printer) { chooser_.Queue(std::move(printer)); }
  // Each further job replaces that file; "system" prints it, and the empty text only keeps it.
  void PrintTo(std::string where) { where_ = std::move(where); }
  // Whether there is a printer, and whether it takes jobs.
  void SetThere(bool there) { there_ = there; }
  void SetRefusing(bool refusing) { refusing_ = refusing; }

  // The texts on the pages since the last call, one a line.
  std::vector<std::string> Take();

 private:
  bool BySystem() const { return where_ == "system"; }
  void Keep(const screen::PrintJob& job);

  ui::CupsSystem system_;
  ScriptedChooser chooser_;
  ui::Printer real_{system_, chooser_};
  std::string where_;
  bool there_ = true;
  bool refusing_ = false;
  std::vector<std::string> lines_;
};

}  // namespace drive
