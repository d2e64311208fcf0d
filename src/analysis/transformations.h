#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The scales on which a series can be laid against its rankits. The first three letters of a
// transformation's name choose its formula.
namespace analysis {

struct Transformation {
  int menuRow;  // catalogue id of the menu entry
  std::string_view name;
};

// In the order of the menu.
inline constexpr std::array<Transformation, 7> kTransformations = {{
    {1901, "Lg(Lg(x))"},
    {1902, "Log(x)"},
    {1903, "Sqr(x)"},
    {1904, "Unt"},
    {1905, "x^2"},
    {1906, "Exp(x)"},
    {1907, "1/x"},
}};

// `x`, in the unit of the outcomes, on the scale `name`: ln ln x, ln x, the square root, x itself,
// the square, exp x or 1 / x. An unknown name gives 0.
// Domain: that of the function; a logarithm of 0 or less and the root of a negative number are
// invalid operations, 1 / 0 a division by zero, a value beyond a double an overflow.
// Accuracy, relative: 1.2E-16; of ln ln x, 0.01 and more from x = e, where it passes through 0,
// 3.1E-14.
double TransformValue(std::string_view name, double x);

// The way back: the value whose transformed value is `y`, by exp exp y, exp y, the square, y
// itself, the square root, ln y and 1 / y. An unknown name gives 0. Faults as above.
// Accuracy, relative: 1.4E-16; of exp exp y, y to 6, 2.9E-14.
double InverseTransform(std::string_view name, double y);

// A series on a scale, or why it does not fit there.
struct TransformedSeries {
  std::vector<double> CTransf;   // empty where it does not fit
  std::array<int, 2> refusal{};  // catalogue rows of the two lines that say why; 0 where it fits
};

// The title of a refusal (catalogue row).
inline constexpr int kInvalidTransformation = 1732;

// The outcomes C(0) to C(M) on the scale `name`, in ascending order. The reciprocal turns the order
// round and has no element 0.
// Refused: a double logarithm of outcomes from 1 downward, an exponential of outcomes above 44.
// Faults as those of TransformValue; a series shorter than M is a subscript fault.
TransformedSeries Transformed(const std::vector<double>& C, int M, std::string_view name);

}  // namespace analysis
