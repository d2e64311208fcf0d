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

class NoPrinter final : public screen::PrinterSurface {
 public:
  bool PrintPage(const drawing::DrawingRecord&) override { return false; }
};

}  // namespace bench
