#pragma once

#include <string>
#include <utility>
#include <vector>

#include "screen/ports.h"

namespace support {

// Keeps what goes to the printer and to files of printed pages, or refuses it.
class RecordingPrinter final : public screen::PrinterSurface {
 public:
  bool AnyPrinter() override { return there; }
  bool Choose() override {
    ++asked;
    return chooses;
  }
  screen::Extent Paper() override { return paper; }
  bool Print(const screen::PrintJob& job) override {
    ++tried;
    if (!fails) jobs.push_back(job);
    return !fails;
  }
  bool WritePdf(const std::string& path, const screen::PrintJob& job) override {
    const bool done = writes && (refused.empty() || !path.starts_with(refused));
    if (done) written.emplace_back(path, job);
    return done;
  }
  bool TakeLine(const std::string& line) override {
    if (takesLines) open.push_back(line);
    return takesLines;
  }
  const std::vector<std::string>& OpenDocument() const override { return open; }
  void CloseDocument() override { open.clear(); }
  std::vector<std::string> Fonts() override { return fonts; }
  // Each letter as wide as half of its height.
  screen::Extent TextExtent(const std::string& line, const drawing::TextStyle& style) override {
    const double height = style.size * 20;
    return {static_cast<double>(line.size()) * height / 2, height};
  }

  bool there = true;       // a printer
  bool chooses = true;     // the user, one
  bool fails = false;      // the printer, a job
  bool writes = true;      // files
  std::string refused;     // begins the paths of files that can't be written; empty for none
  bool takesLines = true;  // the open document
  screen::Extent paper{11906, 16838};
  std::vector<std::string> fonts{"Arial", "Courier"};
  int asked = 0;
  int tried = 0;
  std::vector<screen::PrintJob> jobs;
  std::vector<std::pair<std::string, screen::PrintJob>> written;
  std::vector<std::string> open;
};

}  // namespace support
