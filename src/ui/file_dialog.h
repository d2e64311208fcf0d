#pragma once

#include "screen/ports.h"

namespace ui {

// File dialogs of the toolkit.
class FileDialog final : public screen::FileDialog {
 public:
  std::string Ask(const Request& request) override;
};

}  // namespace ui
