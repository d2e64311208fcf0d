#pragma once

#include <QPalette>

#include <string>

namespace drive {

// Palettes of a desktop, by the name that a script gives them: light, dark, contrast. Null for
// another name.
const QPalette* PaletteByName(const std::string& name);

}  // namespace drive
