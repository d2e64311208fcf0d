#include "session/series_text.h"

#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "session/derivation.h"
#include "session/global_bas.h"
#include "session/workflow.h"

namespace wording {
namespace {

std::string Count(double number) { return GlobalBAS::GeneralText(number); }

// "7, 8, 9"; a long list is cut.
std::string ValueList(const ExposureSession& s, std::size_t first, std::size_t count) {
  constexpr std::size_t kMost = 6;
  std::string text;
  for (std::size_t i = 0; i < count && i < kMost; ++i)
    text += (i == 0 ? "" : ", ") + GlobalBAS::ShownTrimmed(s, s.C[first + i]);
  return count > kMost ? text + ", ..." : text;
}

std::vector<int> UnfilledRows(const ExposureSession& s) {
  std::vector<int> rows;
  const int last = std::min(SeriesCount(s), static_cast<int>(s.C.size()) - 1);
  for (int row = 1; row <= last; ++row)
    if (s.C[static_cast<std::size_t>(row)] <= 0) rows.push_back(row);
  return rows;
}

}  // namespace

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const bool blank = c == '\r' || c == '\n' || c == ' ';
    if (blank && (line.empty() || line.back() == ' ')) continue;
    line += blank ? ' ' : c;
  }
  return GlobalBAS::Trim(line);
}

std::string NumberList(const std::vector<int>& numbers) {
  constexpr std::size_t kMost = 12;
  const std::size_t shown = std::min(numbers.size(), kMost);
  std::string text;
  for (std::size_t i = 0; i < shown; ++i) {
    if (i > 0) text += i + 1 == numbers.size() ? OwnText(Own::LastOfList) : ", ";
    text += Count(numbers[i]);
  }
  if (shown < numbers.size())
    text += OwnText(Own::MoreOfList, {Count(static_cast<double>(numbers.size() - shown))});
  return text;
}

std::string MissingRows(const ExposureSession& s) {
  if (!s.RawIncomplete) return {};
  const std::vector<int> rows = UnfilledRows(s);
  if (rows.empty()) return OwnText(Own::NoSampleSize);
  if (static_cast<int>(rows.size()) == SeriesCount(s))
    return OwnText(Own::AllRowsEmpty, {Count(SeriesCount(s))});
  const Own own = rows.size() == 1 ? Own::RowEmpty : Own::RowsEmpty;
  return OwnText(own, {NumberList(rows)}) + OwnText(Own::BelowLimitHint);
}

std::string LeftOut(const ExposureSession& s) {
  if (!CompleteSeries(s)) return {};
  const auto first = static_cast<std::size_t>(SeriesCount(s)) + 1;
  std::size_t count = 0;
  while (first + count < s.C.size() && s.C[first + count] > 0) ++count;
  if (count == 0) return {};
  const auto whole = static_cast<double>(first - 1 + count);
  return OwnText(count == 1 ? Own::LeftOutOne : Own::LeftOut,
                 {Count(static_cast<double>(count)), ValueList(s, first, count), Count(whole)});
}

std::string NoEstimates(const ExposureSession& s) {
  if (!s.noEstimates) return {};
  if (s.spread == Spread::None) return OwnText(Own::AllEqual);
  if (s.spread == Spread::TooLarge) return OwnText(Own::SpreadTooLarge);
  return OwnText(Own::NoDegreeOfFreedom);
}

std::string OutsideRange(const ExposureSession& s) {
  const bool ofAll = s.inForce == Estimates::WholeSample || s.inForce == Estimates::RangeDegrees;
  if (!s.DetecOn || !ofAll || s.noEstimates || !CompleteSeries(s)) return {};
  const int outside = s.FirstInRange - 1 + SeriesCount(s) - s.LastInRange;
  if (outside < 1) return {};
  return OwnText(outside == 1 ? Own::OneOutsideRange : Own::OutsideRange, {Count(outside)});
}

std::string InForce(const ExposureSession& s) {
  if (!s.DetecOn || s.noEstimates || !CompleteSeries(s)) return {};
  const std::string M = Count(SeriesCount(s));
  if (s.inForce == Estimates::WholeSample) return OwnText(Own::EstimatesOfAll, {M});
  if (s.inForce == Estimates::RangeDegrees) return OwnText(Own::EstimatesByRange, {M, Count(s.df)});
  if (s.inForce == Estimates::Regression)
    return OwnText(Own::EstimatesOfRegression, {Count(s.NInRange)});
  return {};
}

std::string OperatorOf(const Given& given, double outcome) {
  if (!given.DetecOn) return "=";
  if (outcome < given.LOQ) return "<";
  return outcome >= given.URR ? ">" : "=";
}

std::string LimitToState(const ExposureSession& s) {
  constexpr double kStart = 1;
  if (s.limitStated || !s.OELV) return {};
  const Own own = *s.OELV == kStart ? Own::LimitNotStated : Own::LimitLeftEmpty;
  return OwnText(own, {GlobalBAS::ShownTrimmed(s, s.OELV)});
}

std::string WhyClosed(const ExposureSession& s, ScreenId from, ScreenId target) {
  switch (workflow::ObstacleTo(s, from, target)) {
    case workflow::Obstacle::None:
      return {};
    case workflow::Obstacle::RowsUnfilled:
      return MissingRows(s);
    case workflow::Obstacle::NoEstimates:
      return NoEstimates(s);
    case workflow::Obstacle::OtherValues:
      return OwnText(Own::OtherValuesTried);
    case workflow::Obstacle::NoLimit:
      return OwnText(Own::NoLimitYet);
    case workflow::Obstacle::FewOutcomes:
      return OwnText(Own::TooFewForLine);
    case workflow::Obstacle::NotDescribed:
      return OwnText(Own::NotDescribed);
  }
  return {};
}

std::string RegressionWords(const ExposureSession& s, const std::string& estimate) {
  constexpr int kEstimates = 1760;  // "estimates:", of which the singular is taken
  std::string word = GlobalBAS::Trim(LoadResString(kEstimates));
  word.resize(word.size() - 2);
  return s.RegressionLabel + " Rankit " + word + " " + estimate + "=";
}

}  // namespace wording
