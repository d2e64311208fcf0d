// The words and the whole of the EN 689 test; its searches stand in en689.cpp.
#include "compliance/en689.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "session/global_bas.h"

namespace compliance {
namespace {

std::string ConfidenceCaption(const ExposureSession& s) {
  return LoadResString(2704) + GlobalBAS::ShownTrimmed(s, s.U) + LoadResString(2705) +
         LoadResString(2706) + GlobalBAS::ShownTrimmed(s, s.D) + LoadResString(2707);
}

TestWords Words(const ExposureSession& s) {
  TestWords words;
  words.percEx = LoadResString(2702) + GlobalBAS::ShownTrimmed(s, 100 - s.U) + LoadResString(2703);
  words.limit = ConfidenceCaption(s);
  words.fraction = LoadResString(2708) + LoadResString(2709) + GlobalBAS::ShownTrimmed(s, s.D) +
                   LoadResString(2710);
  words.comment = LoadResString(2711) + LoadResString(2712) + LoadResString(2713);
  return words;
}

// A caption's double & stands for one.
std::string SingleAmpersands(std::string text) {
  for (std::size_t at = text.find("&&"); at != std::string::npos; at = text.find("&&", at + 1))
    text.erase(at, 1);
  return text;
}

std::string PictureWords(const ExposureSession& s, double UTL) {
  return SingleAmpersands(LoadResString(2701)) + s.CR + ConfidenceCaption(s) + " " +
         GlobalBAS::ShownTrimmed(s, UTL) + (s.Unit.empty() ? "" : " " + s.Unit);
}

std::string PictureNote(const ExposureSession& s) {
  return OwnText(Own::En689PictureNote, {GlobalBAS::ShownTrimmed(s, 100 - s.U)});
}

// The screen as the searches find it.
void TellConfidence(const TestRun& how, std::optional<double> PercEx) {
  constexpr double kNoConfidence = 1E-14;
  if (!how.found) return;
  TestResult first;
  first.test = Extrapolation::En689;
  first.PercEx.value = PercEx;
  if (PercEx && *PercEx < kNoConfidence) first.UTL.text = kConfidenceBelow1E14;
  how.found(first);
}

// On which limit there is a decision: the one found, or the one that stands.
std::optional<double> JudgedLimit(const En689Result& found, const TestRun& how) {
  return found.limit ? std::optional(found.limit->UTL) : how.standingUTL;
}

std::string Reason(const TestBasis& basis, const En689Result& found, const TestRun& how) {
  const bool decides = En689Decides(basis.df);
  const std::string few = OwnText(Own::En689FewResults);
  if (found.limit) return decides ? "" : few;
  if (!decides) return OwnText(Own::En689NoConfidence, {few});
  return OwnText(how.standingUTL ? Own::En689OlderLimit : Own::En689NothingDecided);
}

}  // namespace

TestResult En689Test(const TestBasis& basis, const TestRun& how) {
  const En689Result found =
      En689Calculation(basis, StandardisedDistance(basis), how.progress,
                       [&how](std::optional<double> PercEx) { TellConfidence(how, PercEx); });
  TestResult result;
  result.test = Extrapolation::En689;
  if (found.limit) {
    result.PercEx.value = found.PercEx;
    result.UTL = {found.limit->UTL, found.limit->above1E300 ? kLimitAbove1E300 : ""};
  }
  result.fraction.value = found.fraction.u;
  if (found.fraction.text) result.fraction.text = found.fraction.text;
  const std::optional<double> UTL = JudgedLimit(found, how);
  if (UTL) result.compliance = En689Complies(basis.df, *UTL, basis.OELV.value_or(0));
  result.reason = Reason(basis, found, how);
  return result;
}

constinit const ComplianceTest kEn689 = {
    .tag = Extrapolation::En689,
    .letters = "Tu",
    .menu = "MenuTugg",
    .button = "TuggleCmb",
    .routine = "En689Test",
    .menuCaption = 28,
    .buttonCaption = 2334,
    .buttonTip = std::nullopt,
    .heading = 2701,
    .complies = 2305,
    .fails = 2306,
    .estimate = Own::PercentConfidence,
    .manner = Own::En689Manner,
    .window = "27",
    .offersSampleSize = false,
    .needsMajority = true,
    .run = En689Test,
    .words = Words,
    .pictureWords = PictureWords,
    .pictureNote = PictureNote,
};

}  // namespace compliance
