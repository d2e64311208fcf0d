#pragma once

#include "ui/print_system.h"

namespace ui {

// The toolkit's dialog with the system's printers.
class PrintDialog final : public PrintChooser {
 public:
  std::optional<PrintChoice> Choose() override;
};

}  // namespace ui
