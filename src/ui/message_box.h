#pragma once

#include "screen/ports.h"

namespace ui {

// Message boxes of the toolkit.
class MessageBox final : public screen::MessageBox {
 public:
  screen::Answer Show(const screen::Message& message) override;
};

}  // namespace ui
