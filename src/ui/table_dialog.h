#pragma once

#include "screen/ports.h"

namespace ui {

// The question about a pasted table: its first lines, and a button for each choice.
class TableDialog final : public screen::TableDialog {
 public:
  std::optional<std::size_t> Ask(const Question& question) override;
};

}  // namespace ui
