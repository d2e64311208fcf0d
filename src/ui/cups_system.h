#pragma once

#include "ui/print_system.h"

namespace ui {

// The printers of CUPS, by its own library: the toolkit's printer takes a refused job for a printed
// one.
class CupsSystem final : public PrintSystem {
 public:
  bool AnyPrinter() override;
  bool Submit(const PrintChoice& choice, const std::string& title, const QByteArray& pdf) override;
};

}  // namespace ui
