#include "analysis/regression.h"

#include <algorithm>
#include <cstddef>

#include "analysis/rankits.h"
#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace analysis {
namespace {

constexpr int kLeastForLine = 2;
constexpr int kLeastSample = 3;  // from here on there are rankits

std::size_t At(int i) { return static_cast<std::size_t>(i); }

void RequireSeries(const ExposureSession& s, const std::vector<double>& RankitTable) {
  const int M = SampleCount(s);
  const std::size_t count = At(M);
  const bool complete =
      s.C.size() > count && s.LnC.size() > count && RankitTable.size() > count / 2;
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

std::string CensoringWord(const ExposureSession& s) {
  const int ends = (s.FirstInRange > 1 ? 1 : 0) + (s.LastInRange < SampleCount(s) ? 1 : 0);
  constexpr int kWords[] = {1757, 1754, 1752};
  return LoadResString(kWords[ends]);
}

// Whether a line can be laid at all.
bool HasLine(const ExposureSession& s, const FitState& state) {
  if (SampleCount(s) < kLeastSample || s.NInRange < kLeastForLine) return false;
  RequireSeries(s, state.RankitTable);
  const auto lowest = s.LnC.begin() + s.FirstInRange;
  const auto behind = s.LnC.begin() + s.LastInRange + 1;
  return std::any_of(lowest, behind, [&](double y) { return y != *lowest; });
}

void FitLine(Regression& fit, int N) {
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

ShapiroResult TestFit(ExposureSession& s, FitState& state) {
  const int M = SampleCount(s);
  const bool all = s.NInRange == M;
  s.InputState = 0;
  ShapiroResult test =
      ShapiroWilk(s.LnC, M, all ? 1 : s.FirstInRange, all ? M : s.LastInRange, state.weights);
  s.InputState = static_cast<std::int16_t>(test.fault);
  return test;
}

void UpdateRecord(ExposureSession& s, const FitState& state, const Regression& fit) {
  const bool geometric = GivesEstimators(s, state);
  if (geometric) {
    s.GM = fit.location;
    s.GSD = fit.scale;
  } else {
    // By the df that holds until now: the first drawing after a range has gone still has its df.
    LogMoments(s, s.GM, s.GSD);
    s.RegressionOn = false;
  }
  DegreesOfFreedom(s);
  // Its value is dropped here; a fault of it ends the update all the same.
  StatFWinBAS::FinneyMeanMVU(s.df, s.GM, s.GSD);
  s.GMu = StatFWinBAS::GMUnbiased(s, s.GM, s.GSD);
  s.SDu = StatFWinBAS::FinneyVarianceMVU(s.df, s.GM, s.GSD);
  s.RegressionOn = geometric;
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

RegressionSums SumsOverRange(const ExposureSession& s, const std::vector<double>& RankitTable) {
  RequireSeries(s, RankitTable);
  const int M = SampleCount(s);
  RegressionSums sums;
  for (int i = s.FirstInRange; i <= std::min<int>(s.LastInRange, M / 2); ++i)
    AddPoint(sums, -RankitTable[At(i)], s.LnC[At(i)], s.C[At(i)]);
  const int middle = M / 2 + 1;
  if (M % 2 == 1 && s.FirstInRange <= middle && s.LastInRange >= middle) {
    sums.SY = Checked(sums.SY + s.LnC[At(middle)]);
    sums.SX = Checked(sums.SX + s.C[At(middle)]);
  }
  for (int i = std::max<int>(s.FirstInRange, (M + 3) / 2); i <= s.LastInRange; ++i)
    AddPoint(sums, RankitTable[At(M + 1 - i)], s.LnC[At(i)], s.C[At(i)]);
  return sums;
}

Regression ProbabilityRegression(ExposureSession& s, FitState& state) {
  Regression fit;
  s.NInRange = static_cast<std::int16_t>(s.LastInRange - s.FirstInRange + 1);
  s.MsgText.clear();
  s.RegressionLabel = CensoringWord(s) + " " + LoadResString(1758);
  fit.line = HasLine(s, state);
  if (fit.line) {
    fit.sums = SumsOverRange(s, state.RankitTable);
    FitLine(fit, s.NInRange);
    ReadEstimates(s, state, fit);
    fit.test = TestFit(s, state);
  }
  fit.TestText = ShapiroText(s, fit.test);
  s.MsgText = fit.TestText;
  if (!fit.line) return fit;
  fit.yLow = Checked(fit.a - fit.b * state.RankitTable[1]);
  fit.yHigh = Checked(fit.a + fit.b * state.RankitTable[1]);
  UpdateRecord(s, state, fit);
  return fit;
}

std::string ShapiroText(const ExposureSession& s, const ShapiroResult& test) {
  std::string text;
  for (const int row : {1766, 1767, 1768}) text += LoadResString(row) + s.CR;
  if (!test.tested) return text + LoadResString(1781) + s.CR;
  if (test.W > 0.9999) return text + "W=1.00" + s.CR + "A(W)=100%" + s.CR;
  return text + "W=0" + FourDecimals(test.W) + s.CR +
         "A(W)=" + GlobalBAS::ShownTrimmed(s, Checked(100 * test.PW)) + "%" + s.CR;
}

bool CheckVariability(ExposureSession& s) {
  if (s.M == 2 || s.DetecOn) return false;
  const int M = SampleCount(s);
  if (s.FirstInRange < 1 || s.LastInRange < 1 || s.FirstInRange > M || s.LastInRange > M ||
      s.C.size() <= At(M))
    fault::Throw(FaultKind::Subscript);
  const double CF = s.C[At(s.FirstInRange)];
  const double CL = s.C[At(s.LastInRange)];
  const double r = std::abs(Divide(2 * (CL - CF), CF + CL));
  const double q = Divide(CL, CF);
  if (r >= 1E-10 && q < 1E10) return false;
  s.MsgText = LoadResString(1712) + LoadResString(q < 1E10 ? 1714 : 1713) + LoadResString(1715);
  s.URR = Checked(1.05 * s.C[At(M)]);
  s.LOQ = Checked(0.95 * s.C[1]);
  s.FirstInRange = 1;
  s.LastInRange = static_cast<std::int16_t>(M);
  s.NInRange = static_cast<std::int16_t>(M);
  return true;
}

}  // namespace analysis
