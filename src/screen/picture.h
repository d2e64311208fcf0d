#pragma once

#include <functional>
#include <string>

#include "drawing/drawing.h"
#include "screen/form.h"

namespace screen {

// A picture box. Its screen draws on `drawing`; a view shows that, and tells the size it has for
// it. A label of kind PictureLabel stands in the drawing, not in a widget of its own.
struct Picture : Control {
  Picture(Form& form, std::string pictureName)
      : Control(form, Kind::Picture, std::move(pictureName)) {}

  drawing::DrawingRecord drawing{11400, 8100};  // until a view gives it its size

  Handler Resized;                                    // `drawing` has a new scale
  std::function<void(double x, double y)> MouseDown;  // the place in twips
};

}  // namespace screen
