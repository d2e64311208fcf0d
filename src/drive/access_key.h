#pragma once

#include <string>

#include "drive/stage.h"

namespace drive {

// Presses Alt and the key, such as F, as the user's keyboard does: what the window system makes of
// it, the toolkit gets. Under X11 the X server sends the event (by xdotool), elsewhere it enters at
// the door of the toolkit through which the window system's events come. Ends with all events
// handled.
void PressAccessKey(Stage& stage, const std::string& key);

}  // namespace drive
