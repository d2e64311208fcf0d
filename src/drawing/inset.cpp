#include "drawing/inset.h"

namespace drawing {

Point Inset::Place(Point at) const {
  return {corner_.x + at.x * factor_, corner_.y + at.y * factor_};
}

void Inset::Line(Point from, Point to, Colour colour, double width) {
  whole_.Line(Place(from), Place(to), colour, width * factor_);
}

void Inset::Dot(Point at, Colour colour) { whole_.Dot(Place(at), colour); }

void Inset::Text(Point at, const std::string& text, const TextStyle& style,
                 const std::string& label) {
  TextStyle sized = style;
  sized.size *= factor_;
  whole_.Text(Place(at), text, sized, label);
}

}  // namespace drawing
