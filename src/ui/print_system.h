#pragma once

#include <QByteArray>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "screen/ports.h"

namespace ui {

// A printer of the system's list, and how it is to print.
struct PrintChoice {
  std::string printer;
  std::vector<std::pair<std::string, std::string>> options;  // as the system names them
  screen::Extent paper;
};

// The system's printers.
class PrintSystem {
 public:
  virtual ~PrintSystem() = default;
  virtual bool AnyPrinter() = 0;
  // Hands the document over as one job. False when the printer does not take it.
  virtual bool Submit(const PrintChoice& choice, const std::string& title,
                      const QByteArray& pdf) = 0;
};

// Asks the user for a printer.
class PrintChooser {
 public:
  virtual ~PrintChooser() = default;
  // Nothing when the user gave none.
  virtual std::optional<PrintChoice> Choose() = 0;
};

}  // namespace ui
