#pragma once

#include <optional>
#include <string>

#include "drive/stage.h"
#include "screen/control.h"

namespace drive {

// How a control appears to the user. Hidden and disabled count a frame or menu around it.
struct Look {
  std::string text;
  bool hidden = false;
  bool disabled = false;
  bool locked = false;
  bool ticked = false;
  std::optional<drawing::Colour> colour;
};

// Of a mere text, such as a table's cell.
Look TextLook(std::string text);

// The look of the widget or menu item that shows the control. Failure when it differs from the
// control's state: then the binder has missed a change.
Look LookOf(Stage& stage, const Target& target);

// `NAME = "text"` with what applies behind it.
std::string Line(const std::string& name, const Look& look);

// Failure unless the user can use the control now.
void NeedUsable(Stage& stage, const Target& target);

}  // namespace drive
