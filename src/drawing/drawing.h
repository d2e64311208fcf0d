#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// Drawings as lines, points and texts in twips (1440 to the inch). The screen, a bitmap file and a
// printer page are surfaces for one and the same drawing routine.
namespace drawing {

// Wherever the window, a bitmap or a pen counts in pixels.
inline constexpr double kTwipsPerPixel = 15;

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

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
  std::string family = {};  // of a font of the system; that of all drawings (font.h) when empty
  bool operator==(const TextStyle&) const = default;
};

// From one line of a text to the next, in font sizes.
inline constexpr double kLineSpacing = 1.2;

// Of a point that Dot draws, in twips.
inline constexpr double kDotWidth = 26;

class DrawSurface {
 public:
  virtual ~DrawSurface() = default;
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;
  virtual void Clear() = 0;
  // `width` of the stroke in twips.
  virtual void Line(Point from, Point to, Colour colour, double width) = 0;
  virtual void Dot(Point at, Colour colour) = 0;
  // `label` names the text on the screen; lines are separated by CR.
  virtual void Text(Point at, const std::string& text, const TextStyle& style,
                    const std::string& label) = 0;
};

struct DrawnLine {
  Point from;
  Point to;
  Colour colour;
  double width = 0;
  bool operator==(const DrawnLine&) const = default;
};

struct DrawnDot {
  Point at;
  Colour colour;
  bool operator==(const DrawnDot&) const = default;
};

struct DrawnText {
  Point at;
  std::string text;
  TextStyle style;
  std::string label;
  bool operator==(const DrawnText&) const = default;
};

// A surface that keeps what is drawn, in order, so that it can be drawn again on any other one.
class DrawingRecord final : public DrawSurface {
 public:
  using Item = std::variant<DrawnLine, DrawnDot, DrawnText>;

  DrawingRecord(double scaleWidth, double scaleHeight) : width_(scaleWidth), height_(scaleHeight) {}

  double ScaleWidth() const override { return width_; }
  double ScaleHeight() const override { return height_; }
  void Clear() override;
  void Line(Point from, Point to, Colour colour, double width) override;
  void Dot(Point at, Colour colour) override;
  void Text(Point at, const std::string& text, const TextStyle& style,
            const std::string& label) override;

  // What was drawn keeps its place; whoever drew it draws it again for the new size.
  void SetScale(double scaleWidth, double scaleHeight);

  const std::vector<Item>& Items() const { return items_; }
  // Another number after each change, so that a view knows when to paint.
  int Revision() const { return revision_; }
  // Draws the items on `surface`, which must have this record's scale.
  void ReplayOn(DrawSurface& surface) const;

 private:
  void Add(Item item);

  double width_;
  double height_;
  int revision_ = 0;
  std::vector<Item> items_;
};

}  // namespace drawing
