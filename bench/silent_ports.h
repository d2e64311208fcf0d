#pragma once

#include <string>

#include "screen/ports.h"

namespace bench {

// A user who answers every question with its default.
class SilentMessageBox final : public screen::MessageBox {
 public:
  screen::Answer Show(const screen::Message& message) override { return message.defaultAnswer; }
};

// A user who always chooses the same file.
class OneFile final : public screen::FileDialog {
 public:
  std::string path;
  std::string Ask(const Request&) override { return path; }
};

class StandingClock final : public screen::Clock {
 public:
  base::DateTime Now() const override { return {2024, 3, 7, 9, 5, 30}; }
};

// A user who makes no choice that a question about a table does not propose.
class SilentTableDialog final : public screen::TableDialog {
 public:
  std::optional<std::size_t> Ask(const Question& question) override { return question.proposed; }
};

class NoPrinter : public screen::PrinterSurface {
 public:
  bool AnyPrinter() override { return false; }
  bool Choose() override { return false; }
  screen::Extent Paper() override { return {11906, 16838}; }
  bool Print(const screen::PrintJob&) override { return false; }
  bool WritePdf(const std::string&, const screen::PrintJob&) override { return false; }
  bool TakeLine(const std::string&) override { return true; }
  const std::vector<std::string>& OpenDocument() const override { return none_; }
  void CloseDocument() override {}
  std::vector<std::string> Fonts() override { return none_; }
  screen::Extent TextExtent(const std::string&, const drawing::TextStyle&) override { return {}; }

 private:
  std::vector<std::string> none_;
};

}  // namespace bench
