#pragma once

#include "drawing/drawing.h"

namespace drawing {

// A part of another surface: what is drawn here stands there from `corner` on, `factor` times as
// large.
class Inset final : public DrawSurface {
 public:
  Inset(DrawSurface& whole, Point corner, double factor, double width, double height)
      : whole_(whole), corner_(corner), factor_(factor), width_(width), height_(height) {}

  double ScaleWidth() const override { return width_; }
  double ScaleHeight() const override { return height_; }
  // The whole is its own; a part of it is never cleared.
  void Clear() override {}
  void Line(Point from, Point to, Colour colour, double width) override;
  void Dot(Point at, Colour colour) override;
  void Text(Point at, const std::string& text, const TextStyle& style,
            const std::string& label) override;

 private:
  Point Place(Point at) const;

  DrawSurface& whole_;
  Point corner_;
  double factor_;
  double width_;
  double height_;
};

}  // namespace drawing
