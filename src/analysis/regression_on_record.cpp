#include "analysis/regression_on_record.h"

#include "analysis/transformations.h"
#include "catalog/catalog.h"
#include "session/limit_checks.h"
#include "session/moments.h"
#include "stats/estimators.h"

namespace analysis {
namespace {

void UpdateRecord(ExposureSession& s, const Regression& fit) {
  s.RegressionOn = fit.estimators.has_value();
  if (fit.estimators) {
    s.GM = fit.estimators->GM;
    s.GSD = fit.estimators->GSD;
  } else {
    // By the df that holds until now: the first drawing after a range has gone still has its df.
    LogMoments(s, s.GM, s.GSD);
  }
  DegreesOfFreedom(s);
  s.GMu = StatFWinBAS::GMUnbiased(s, s.GM, s.GSD);
  s.SDu = StatFWinBAS::FinneyVarianceMVU(s.df, s.GM, s.GSD);
}

}  // namespace

bool FillCTransf(ExposureSession& s, std::string_view name) {
  TransformedSeries series = Transformed(s.C, SampleCount(s), name);
  if (series.refusal[0] != 0) {
    s.MsgText = LoadResString(series.refusal[0]) + s.CR + LoadResString(series.refusal[1]);
    s.MsgTitle = LoadResString(kInvalidTransformation);
    return false;
  }
  if (name.starts_with("1/x") && !s.LnC.empty()) series.CTransf[0] = s.LnC[0];
  s.LnC = std::move(series.CTransf);
  return true;
}

Regression ProbabilityRegression(ExposureSession& s, FitState& state) {
  state.CTransf = s.LnC;
  const Regression fit = FitLine(s, state);
  s.NInRange = fit.NInRange;
  s.RegressionLabel = fit.RegressionLabel;
  s.MsgText = fit.TestText;
  if (!fit.line) return fit;
  s.InputState = static_cast<std::int16_t>(fit.test.fault);
  UpdateRecord(s, fit);
  return fit;
}

bool CheckVariability(ExposureSession& s) {
  const std::string complaint = VariabilityComplaint(s);
  if (complaint.empty()) return false;
  s.MsgText = complaint;
  s.LOQ = DefaultLOQ(s);
  s.URR = DefaultURR(s);
  s.LOQStated = s.URRStated = false;
  s.FirstInRange = 1;
  s.LastInRange = s.NInRange = static_cast<std::int16_t>(SampleCount(s));
  return true;
}

}  // namespace analysis
