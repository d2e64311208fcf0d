#include "compliance/leidel.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "stats/normal.h"

namespace compliance {
namespace {

constexpr char kBelowAllNumbers[] = "    <1E-300      ";  // in place of exactly 0

TestWords Words(const ExposureSession& s) {
  TestWords words;
  words.percEx = words.percExTip = LoadResString(2508);
  words.limit = GlobalBAS::ShownTrimmed(s, s.U) + LoadResString(2504);
  words.limitTip = LoadResString(2503);
  words.comment = LoadResString(2505) + LoadResString(2506) + LoadResString(2507);
  return words;
}

std::string PictureWords(const ExposureSession& s, double /*UTL*/) {
  std::string text = LoadResString(2503);
  if (const std::size_t at = text.find("##"); at != std::string::npos)
    text.replace(at, 2, GlobalBAS::ShownTrimmed(s, s.U));
  return LoadResString(2501) + s.CR + text;
}

std::string PictureNote(const ExposureSession&) { return {}; }

}  // namespace

double LeidelExceedance(double Ur) { return Checked(StatFWinBAS::NormalUpper(Ur) * 100); }

bool LeidelComplies(double PercEx) { return PercEx < 5; }

double LeidelDeviate(double U) { return Checked(StatFWinBAS::NormalUpperInverse(1 - U / 100)); }

double LeidelToleranceLimit(double GM, double GSD, double deviate) {
  return Checked(GM * Power(GSD, deviate));
}

TestResult LeidelTest(const TestBasis& basis, const TestRun&) {
  TestResult result;
  result.test = Extrapolation::Leidel;
  const double PercEx = LeidelExceedance(StandardisedDistance(basis));
  result.PercEx = {PercEx, PercEx == 0 ? kBelowAllNumbers : ""};
  result.compliance = LeidelComplies(PercEx);
  result.UTL.value = LeidelToleranceLimit(basis.GM, basis.GSD, LeidelDeviate(basis.U));
  return result;
}

constinit const ComplianceTest kLeidel = {
    .tag = Extrapolation::Leidel,
    .letters = "Le",
    .menu = "MenuLeid",
    .button = "LeidelCmb",
    .routine = "LeidelTest",
    .menuCaption = 60,
    .buttonCaption = 2330,
    .buttonTip = 2501,
    .heading = 2501,
    .complies = 2307,
    .fails = 2308,
    .estimate = Own::PercentAbove,
    .manner = Own::LeidelManner,
    .window = "25",
    .offersSampleSize = false,
    .needsMajority = false,
    .run = LeidelTest,
    .words = Words,
    .pictureWords = PictureWords,
    .pictureNote = PictureNote,
};

}  // namespace compliance
