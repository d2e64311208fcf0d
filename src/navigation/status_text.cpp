#include "navigation/status_text.h"

#include "catalog/own_texts.h"
#include "session/derivation.h"
#include "session/global_bas.h"

namespace navigation {
namespace {

// "7, 8, 9"; a long list is cut.
std::string ValueList(const ExposureSession& s, std::size_t first, std::size_t count) {
  constexpr std::size_t kMost = 6;
  std::string text;
  for (std::size_t i = 0; i < count && i < kMost; ++i)
    text += (i == 0 ? "" : ", ") + GlobalBAS::ShownTrimmed(s, s.C[first + i]);
  return count > kMost ? text + ", ..." : text;
}

// Outcomes beyond the sample size stay until the next edit.
std::string LeftOut(const ExposureSession& s) {
  if (!CompleteSeries(s)) return {};
  const auto first = static_cast<std::size_t>(SeriesCount(s)) + 1;
  std::size_t count = 0;
  while (first + count < s.C.size() && s.C[first + count] > 0) ++count;
  if (count == 0) return {};
  const auto whole = static_cast<double>(first - 1 + count);
  return OwnText(count == 1 ? Own::LeftOutOne : Own::LeftOut,
                 {GlobalBAS::GeneralText(static_cast<double>(count)), ValueList(s, first, count),
                  GlobalBAS::GeneralText(whole)});
}

std::string NoEstimates(const ExposureSession& s) {
  if (!s.noEstimates) return {};
  if (s.spread == Spread::None) return OwnText(Own::AllEqual);
  if (s.spread == Spread::TooLarge) return OwnText(Own::SpreadTooLarge);
  return OwnText(Own::NoDegreeOfFreedom);
}

std::string InForce(const ExposureSession& s) {
  if (!s.DetecOn || s.noEstimates || !CompleteSeries(s)) return {};
  const std::string M = GlobalBAS::GeneralText(SeriesCount(s));
  if (s.inForce == Estimates::WholeSample) return OwnText(Own::EstimatesOfAll, {M});
  if (s.inForce == Estimates::RangeDegrees)
    return OwnText(Own::EstimatesByRange, {M, GlobalBAS::GeneralText(s.df)});
  if (s.inForce == Estimates::Regression)
    return OwnText(Own::EstimatesOfRegression, {GlobalBAS::GeneralText(s.NInRange)});
  return {};
}

// Why the start screen has no tabs. Before anything was entered its message says what is to be.
std::string NoTabs(const ExposureSession& s) {
  const bool begun = s.M != 0 || !s.Name.empty();
  if (s.CurrentTab != ScreenId::Basis || workflow::StripVisible(s) || !begun) return {};
  if (s.Mode == DataMode::None || s.refusedFile) return {};
  if (s.Name.empty()) return OwnText(Own::NoTabsWithoutName);
  if (!GlobalBAS::Identified(s)) return OwnText(Own::NoTabsWithoutSize);
  const bool ofGM = !GlobalBAS::InRangeGM(s.GM);
  const double out = ofGM ? s.GM : s.GSD;
  if (out == 0) return {};  // not entered yet
  const std::string why =
      OwnText(ofGM ? Own::NoTabsForGM : Own::NoTabsForGSD, {GlobalBAS::ShownTrimmed(s, out)});
  const bool table = s.Mode == DataMode::Raw && !s.ModifyMode;
  return table ? why + " " + OwnText(Own::ContinueToRawData) : why;
}

}  // namespace

std::string StatusText(const ExposureSession& s) {
  std::string text;
  for (const std::string& part : {NoTabs(s), LeftOut(s), NoEstimates(s), InForce(s)})
    if (!part.empty()) text += (text.empty() ? "" : " ") + part;
  return text;
}

}  // namespace navigation
