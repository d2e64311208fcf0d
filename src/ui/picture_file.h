#pragma once

#include "screen/ports.h"

namespace ui {

// Bitmap files, at twice the window's resolution.
class PictureFile final : public screen::PictureFile {
 public:
  bool Write(const std::string& path, const drawing::DrawingRecord& drawing) override;
};

}  // namespace ui
