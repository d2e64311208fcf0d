#include "analysis/transformations.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/fault.h"
#include "catalog/catalog.h"

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

bool Refuse(ExposureSession& s, int first, int second) {
  s.MsgText = LoadResString(first) + s.CR + LoadResString(second);
  s.MsgTitle = LoadResString(1732);
  return false;
}

// C(1) and C(M) must be there. The limits are those of the method: 1 itself counts as less than
// unity, 44 itself is accepted.
bool Allowed(ExposureSession& s, std::string_view letters) {
  const auto M = static_cast<std::size_t>(SampleCount(s));
  if (letters == "Lg(" && s.C[1] <= 1) return Refuse(s, 1730, 1731);
  if (letters == "Exp" && s.C[M] > kLargestExponent) return Refuse(s, 1733, 1734);
  return true;
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

bool FillCTransf(ExposureSession& s, std::string_view name) {
  const auto M = static_cast<std::size_t>(SampleCount(s));
  if (M < 1 || s.C.size() <= M) fault::Throw(FaultKind::Subscript);
  const std::string_view letters = name.substr(0, 3);
  if (!Allowed(s, letters)) return false;
  std::vector<double> CTransf = s.LnC;
  if (CTransf.size() <= M) CTransf.resize(M + 1);
  const bool reversed = letters == "1/x";
  for (std::size_t i = reversed ? 1 : 0; i <= M; ++i)
    CTransf[i] = TransformValue(name, s.C[reversed ? M + 1 - i : i]);
  s.LnC = std::move(CTransf);
  return true;
}

}  // namespace analysis
