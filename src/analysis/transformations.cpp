#include "analysis/transformations.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"

namespace analysis {
namespace {

constexpr double kLargestExponent = 44;  // of an outcome whose exponential is still drawn

double Identity(double x) { return x; }
double Square(double x) { return Checked(x * x); }
double LogLog(double x) { return Log(Log(x)); }
double ExpExp(double y) { return Exp(Exp(y)); }
double Reciprocal(double x) { return Divide(1, x); }

struct Formula {
  std::string_view letters;
  double (*there)(double);
  double (*back)(double);
};

constexpr std::array<Formula, 7> kFormulas = {{
    {"Lg(", LogLog, ExpExp},
    {"Log", Log, Exp},
    {"Sqr", Sqrt, Square},
    {"Unt", Identity, Identity},
    {"x^2", Square, Sqrt},
    {"Exp", Exp, Log},
    {"1/x", Reciprocal, Reciprocal},
}};

const Formula* FormulaOf(std::string_view name) {
  const auto* found = std::ranges::find(kFormulas, name.substr(0, 3), &Formula::letters);
  return found == kFormulas.end() ? nullptr : found;
}

// Why the outcomes do not fit a scale. C(1) and C(M) must be there. The limits are those of the
// method: 1 itself counts as less than unity, 44 itself is accepted.
std::array<int, 2> Refusal(const std::vector<double>& C, int M, std::string_view letters) {
  if (letters == "Lg(" && C[1] <= 1) return {1730, 1731};
  if (letters == "Exp" && C[static_cast<std::size_t>(M)] > kLargestExponent) return {1733, 1734};
  return {};
}

}  // namespace

double TransformValue(std::string_view name, double x) {
  const Formula* formula = FormulaOf(name);
  return formula == nullptr ? 0 : Checked(formula->there(x));
}

double InverseTransform(std::string_view name, double y) {
  const Formula* formula = FormulaOf(name);
  return formula == nullptr ? 0 : Checked(formula->back(y));
}

TransformedSeries Transformed(const std::vector<double>& C, int M, std::string_view name) {
  const auto size = static_cast<std::size_t>(M);
  if (M < 1 || C.size() <= size) fault::Throw(FaultKind::Subscript);
  const std::string_view letters = name.substr(0, 3);
  TransformedSeries out;
  out.refusal = Refusal(C, M, letters);
  if (out.refusal[0] != 0) return out;
  out.CTransf.resize(size + 1);
  const bool reversed = letters == "1/x";
  for (std::size_t i = reversed ? 1 : 0; i <= size; ++i)
    out.CTransf[i] = TransformValue(name, C[reversed ? size + 1 - i : i]);
  return out;
}

}  // namespace analysis
