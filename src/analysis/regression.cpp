#include "analysis/regression.h"

#include <algorithm>
#include <cstddef>

#include "analysis/rankits.h"
#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/derivation.h"
#include "session/global_bas.h"

namespace analysis {
namespace {

constexpr int kLeastForLine = 2;
constexpr int kLeastSample = 3;  // from here on there are rankits
constexpr double kLeastGM = 1E-10;
constexpr double kLargestGM = 1E+10;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

void RequireSeries(const ExposureSession& s, const FitState& state) {
  const int M = SampleCount(s);
  const std::size_t count = At(M);
  const bool complete =
      s.C.size() > count && state.CTransf.size() > count && state.RankitTable.size() > count / 2;
  if (!complete || s.FirstInRange < 1 || s.LastInRange > M) fault::Throw(FaultKind::Subscript);
}

void AddPoint(RegressionSums& sums, double z, double y, double x) {
  sums.SZ = Checked(sums.SZ + z);
  sums.SZZ = Checked(sums.SZZ + z * z);
  sums.SZY = Checked(sums.SZY + z * y);
  sums.SY = Checked(sums.SY + y);
  sums.SZX = Checked(sums.SZX + z * x);
  sums.SX = Checked(sums.SX + x);
}

// Whether a line can be laid at all.
bool HasLine(const ExposureSession& s, const FitState& state, int NInRange) {
  if (SampleCount(s) < kLeastSample || NInRange < kLeastForLine) return false;
  RequireSeries(s, state);
  const auto lowest = state.CTransf.begin() + s.FirstInRange;
  const auto behind = state.CTransf.begin() + s.LastInRange + 1;
  return std::any_of(lowest, behind, [&](double y) { return y != *lowest; });
}

void SolveNormalEquations(Regression& fit) {
  const int N = fit.NInRange;
  const RegressionSums& u = fit.sums;
  const double Ybar = u.SY / N;
  const double Xbar = u.SX / N;
  const double Zbar = u.SZ / N;
  const double spread = Checked(u.SZZ - N * (Zbar * Zbar));
  fit.b = Divide(u.SZY - Ybar * Zbar * N, spread);
  fit.a = Checked(Ybar - fit.b * Zbar);
  fit.bX = Divide(u.SZX - Xbar * Zbar * N, spread);
  fit.aX = Checked(Xbar - fit.bX * Zbar);
}

bool GivesEstimators(const ExposureSession& s, const FitState& state) {
  return s.DetecOn && state.Transformation == "Log(x)";
}

void ReadEstimates(const ExposureSession& s, const FitState& state, Regression& fit) {
  const bool geometric = GivesEstimators(s, state);
  fit.estimates = geometric || state.Transformation == "Unt";
  if (!fit.estimates) return;
  fit.location = geometric ? Exp(fit.a) : fit.a;
  fit.scale = geometric ? Exp(fit.b) : fit.b;
  fit.EstimatesText = (geometric ? "GMg=" : "x=") + GlobalBAS::Shown(s, fit.location) + s.CR +
                      (geometric ? "GSDg=" : "s=") + GlobalBAS::Shown(s, fit.scale);
}

void OfferEstimators(const ExposureSession& s, const FitState& state, Regression& fit) {
  if (!GivesEstimators(s, state)) return;
  const bool usable =
      fit.location >= kLeastGM && fit.location <= kLargestGM && GlobalBAS::InRangeGSD(fit.scale);
  if (usable) fit.estimators = {fit.location, fit.scale};
  fit.beyondNumbers = !usable;
}

ShapiroResult TestFit(const ExposureSession& s, FitState& state, int NInRange) {
  const int M = SampleCount(s);
  const bool all = NInRange == M;
  return ShapiroWilk(state.CTransf, M, all ? 1 : s.FirstInRange, all ? M : s.LastInRange,
                     state.weights);
}

// Four decimals of W, cut off, as its general text has them.
std::string FourDecimals(double W) {
  std::string text = GlobalBAS::GeneralText(W);
  if (const std::size_t mark = text.find('E'); mark != std::string::npos) {
    const int shift =
        text[mark + 1] == '-'
            ? static_cast<int>(GlobalBAS::Val(std::string_view(text).substr(mark + 2)))
            : 0;
    std::string digits = text.substr(0, mark);
    std::erase(digits, '.');
    text = "." + std::string(At(std::max(shift - 1, 0)), '0') + digits;
  }
  if (!text.starts_with('.') || W <= 0) text = ".";
  text.resize(5, '0');
  return text;
}

}  // namespace

RegressionSums SumsOverRange(const ExposureSession& s, const FitState& state) {
  RequireSeries(s, state);
  const std::vector<double>& y = state.CTransf;
  const std::vector<double>& R = state.RankitTable;
  const int M = SampleCount(s);
  RegressionSums sums;
  for (int i = s.FirstInRange; i <= std::min<int>(s.LastInRange, M / 2); ++i)
    AddPoint(sums, -R[At(i)], y[At(i)], s.C[At(i)]);
  const int middle = M / 2 + 1;
  if (M % 2 == 1 && s.FirstInRange <= middle && s.LastInRange >= middle) {
    sums.SY = Checked(sums.SY + y[At(middle)]);
    sums.SX = Checked(sums.SX + s.C[At(middle)]);
  }
  for (int i = std::max<int>(s.FirstInRange, (M + 3) / 2); i <= s.LastInRange; ++i)
    AddPoint(sums, R[At(M + 1 - i)], y[At(i)], s.C[At(i)]);
  return sums;
}

Regression FitLine(const ExposureSession& s, FitState& state) {
  Regression fit;
  fit.NInRange = static_cast<std::int16_t>(s.LastInRange - s.FirstInRange + 1);
  fit.RegressionLabel = CensoringLabel(s);
  fit.line = HasLine(s, state, fit.NInRange);
  if (fit.line) {
    fit.sums = SumsOverRange(s, state);
    SolveNormalEquations(fit);
    ReadEstimates(s, state, fit);
    OfferEstimators(s, state, fit);
    fit.test = TestFit(s, state, fit.NInRange);
    fit.yLow = Checked(fit.a - fit.b * state.RankitTable[1]);
    fit.yHigh = Checked(fit.a + fit.b * state.RankitTable[1]);
  }
  fit.TestText = ShapiroText(s, fit.test);
  return fit;
}

ShownFit ShownFitOf(const ExposureSession& s, const ShapiroResult& test) {
  if (!test.tested) return {};
  if (test.W > 0.9999) return {"1.00", "100"};
  return {"0" + FourDecimals(test.W), GlobalBAS::ShownTrimmed(s, Checked(100 * test.PW))};
}

std::string ShapiroText(const ExposureSession& s, const ShapiroResult& test) {
  std::string text;
  for (const int row : {1766, 1767, 1768}) text += LoadResString(row) + s.CR;
  if (!test.tested) return text + LoadResString(1781) + s.CR;
  const ShownFit shown = ShownFitOf(s, test);
  return text + "W=" + shown.W + s.CR + "A(W)=" + shown.percent + "%" + s.CR;
}

std::string VariabilityComplaint(const Given& s) {
  if (s.M == 2 || s.DetecOn) return {};
  const int M = SampleCount(s);
  if (s.FirstInRange < 1 || s.LastInRange < 1 || s.FirstInRange > M || s.LastInRange > M ||
      s.C.size() <= At(M))
    fault::Throw(FaultKind::Subscript);
  const double CF = s.C[At(s.FirstInRange)];
  const double CL = s.C[At(s.LastInRange)];
  const double r = std::abs(Divide(2 * (CL - CF), CF + CL));
  const double q = Divide(CL, CF);
  if (r >= 1E-10 && q < 1E10) return {};
  return LoadResString(1712) + LoadResString(q < 1E10 ? 1714 : 1713) + LoadResString(1715);
}

}  // namespace analysis
