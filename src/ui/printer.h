#pragma once

#include "ui/print_system.h"

namespace ui {

// The printer that the user has chosen among the system's: takes a job as a PDF document of ours.
class Printer final : public screen::PrinterSurface {
 public:
  Printer(PrintSystem& system, PrintChooser& chooser) : system_(system), chooser_(chooser) {}

  bool AnyPrinter() override { return system_.AnyPrinter(); }
  bool Choose() override;
  screen::Extent Paper() override;
  bool Print(const screen::PrintJob& job) override;
  bool WritePdf(const std::string& path, const screen::PrintJob& job) override;
  bool TakeLine(const std::string& line) override;
  const std::vector<std::string>& OpenDocument() const override { return lines_; }
  void CloseDocument() override { lines_.clear(); }
  std::vector<std::string> Fonts() override;
  screen::Extent TextExtent(const std::string& line, const drawing::TextStyle& style) override;

 private:
  PrintSystem& system_;
  PrintChooser& chooser_;
  std::optional<PrintChoice> choice_;
  std::vector<std::string> lines_;  // of the open document
};

}  // namespace ui
