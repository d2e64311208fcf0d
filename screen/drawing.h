#pragma once

#include <string>
#include <variant>
#include <vector>

#include "screen/control.h"

// Drawings as lines, points and texts in twips (1440 to the inch). The screen, a bitmap file and a
// printer page are surfaces for one and the same drawing routine.
namespace screen {

// From the top left corner, in twips.
struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

// Where a text stands about its point; lines of a text are aligned the same way.
enum class Across { Left, Centre, Right };
enum class Down { Top, Middle, Bottom };

struct TextStyle {
  Across across = Across::Left;
  Down down = Down::Top;
  double size = 9;  // in printer's points
  bool bold = false;
  Colour colour{};
  bool operator==(const TextStyle&) const = default;
};

class DrawSurface {
 public:
  virtual ~DrawSurface() = default;
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;
  virtual void Clear() = 0;
  // `width` of the stroke in twips.
  virtual void Line(Point from, Point to, Colour colour, double width) = 0;
  virtual void Dot(Point at, Colour colour) = 0;
  // `label` names the text on the screen; lines are separated by CR. Family Arial.
  virtual void Text(Point at, const std::string& text, const TextStyle& style,
                    const std::string& label) = 0;
};

}  // namespace screen
