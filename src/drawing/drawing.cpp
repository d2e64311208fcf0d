#include "drawing/drawing.h"

#include <utility>

namespace drawing {
namespace {

struct Replay {
  DrawSurface& surface;
  void operator()(const DrawnLine& line) const {
    surface.Line(line.from, line.to, line.colour, line.width);
  }
  void operator()(const DrawnDot& dot) const { surface.Dot(dot.at, dot.colour); }
  void operator()(const DrawnText& text) const {
    surface.Text(text.at, text.text, text.style, text.label);
  }
};

}  // namespace

void DrawingRecord::Clear() {
  items_.clear();
  ++revision_;
}

void DrawingRecord::Line(Point from, Point to, Colour colour, double width) {
  Add(DrawnLine{from, to, colour, width});
}

void DrawingRecord::Dot(Point at, Colour colour) { Add(DrawnDot{at, colour}); }

void DrawingRecord::Text(Point at, const std::string& text, const TextStyle& style,
                         const std::string& label) {
  Add(DrawnText{at, text, style, label});
}

void DrawingRecord::SetScale(double scaleWidth, double scaleHeight) {
  width_ = scaleWidth;
  height_ = scaleHeight;
  ++revision_;
}

void DrawingRecord::ReplayOn(DrawSurface& surface) const {
  for (const Item& item : items_) std::visit(Replay{surface}, item);
}

void DrawingRecord::Add(Item item) {
  items_.push_back(std::move(item));
  ++revision_;
}

}  // namespace drawing
