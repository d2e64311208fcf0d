#include "compliance/wilks.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "session/global_bas.h"
#include "stats/student.h"

namespace compliance {
namespace {

constexpr double kLogBound = 700;  // of the natural logarithm of a tolerance limit

const char* ClampBox(Clamp clamp) { return clamp == Clamp::Below1E300th ? "<1E-300" : ">1E+300"; }

TestWords Words(const ExposureSession& s) {
  TestWords words;
  words.percEx = LoadResString(2602);
  words.percExTip = LoadResString(2605);
  words.limit = LoadResString(2603) + GlobalBAS::ShownTrimmed(s, s.U) + LoadResString(2604);
  words.limitTip = LoadResString(2608);
  words.comment = LoadResString(2605) + LoadResString(2606) + LoadResString(2607);
  return words;
}

std::string PictureWords(const ExposureSession& s, double /*UTL*/) {
  return LoadResString(2601) + s.CR + LoadResString(2603) + GlobalBAS::ShownTrimmed(s, s.U) +
         LoadResString(2604);
}

std::string PictureNote(const ExposureSession&) { return {}; }

// The bound where no older limit stands.
void TakeClamped(Clamp clamp, const TestRun& how, TestResult& result) {
  result.reason = result.MsgText = ClampText(clamp);
  if (!how.standingUTL) {
    result.UTL.text = ClampBox(clamp);
    result.reason += ".";
    return;
  }
  result.UTL.value = how.standingUTL;
  result.olderLimit = true;
  result.reason += OwnText(Own::OlderWilksLimit);
}

}  // namespace

double WilksSpread(double df) { return Sqrt(Divide(1, df + 1) + 1); }

double WilksExceedance(double df, double Ur) {
  const double t = Divide(Ur, WilksSpread(df));
  return Checked(StatFWinBAS::StudentUpper(double{df}, t) * 100);
}

bool WilksComplies(double PercEx) { return PercEx < 5; }

WilksLimit WilksToleranceLimit(double GM, double GSD, double U, double df) {
  WilksLimit limit;
  limit.WilksFactor = Checked(StatFWinBAS::StudentUpperInverse(1 - U / 100, double{df}));
  const double g = Checked(WilksSpread(df) * limit.WilksFactor);
  if (Log(GM) - g * Log(GSD) < -kLogBound)
    limit.clamp = Clamp::Below1E300th;
  else if (Log(GM) + g * Log(GSD) > kLogBound)
    limit.clamp = Clamp::Above1E300;
  else
    limit.UTL = Checked(Power(GSD, g) * GM);
  return limit;
}

const char* ClampText(Clamp clamp) {
  return OwnText(clamp == Clamp::Below1E300th ? Own::UTLTooSmall : Own::UTLTooLarge);
}

WilksResult WilksCalculation(const TestBasis& basis, double Ur) {
  WilksResult result;
  result.PercEx = WilksExceedance(basis.df, Ur);
  result.compliance = WilksComplies(result.PercEx);
  result.limit = WilksToleranceLimit(basis.GM, basis.GSD, basis.U, basis.df);
  return result;
}

TestResult WilksTest(const TestBasis& basis, const TestRun& how) {
  const WilksResult found = WilksCalculation(basis, StandardisedDistance(basis));
  TestResult result;
  result.test = Extrapolation::Wilks;
  result.PercEx = {found.PercEx, found.PercEx == 0 ? kWilksBelowAllNumbers : ""};
  result.compliance = found.compliance;
  if (found.limit.clamp == Clamp::None)
    result.UTL.value = found.limit.UTL;
  else
    TakeClamped(found.limit.clamp, how, result);
  return result;
}

constinit const ComplianceTest kWilks = {
    .tag = Extrapolation::Wilks,
    .letters = "Wi",
    .menu = "MenuWilks",
    .button = "WilksCmb",
    .routine = "WilksTest",
    .menuCaption = 27,
    .buttonCaption = 2332,
    .buttonTip = std::nullopt,
    .heading = 2601,
    .complies = 2309,
    .fails = 2310,
    .estimate = Own::PercentAbove,
    .manner = Own::WilksManner,
    .window = "26",
    .offersSampleSize = true,
    .needsMajority = false,
    .run = WilksTest,
    .words = Words,
    .pictureWords = PictureWords,
    .pictureNote = PictureNote,
};

}  // namespace compliance
