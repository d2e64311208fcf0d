#include "navigation/live_line.h"

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "navigation/action_text.h"
#include "session/global_bas.h"
#include "session/series_text.h"

namespace navigation {
namespace {

using namespace wording;
using workflow::ScreenId;
using enum workflow::ScreenId;

// One sentence behind the other; what a sentence before has said already is not said again.
class Sentences {
 public:
  void Add(const std::string& sentence) {
    const std::string words = GlobalBAS::Trim(sentence);
    if (words.empty() || text_.find(words) != std::string::npos) return;
    text_ += (text_.empty() ? "" : " ") + words;
  }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

// Where results are read that rest on GM and GSD.
bool ShowsResults(ScreenId screen) {
  return screen == Descript || screen == PercEx || screen == UCL || screen == TwoSamp;
}

std::string LimitToState(const ExposureSession& s, ScreenId screen) {
  return screen == Grenzen || screen == PercEx ? wording::LimitToState(s) : std::string();
}

std::string Confidence(const ExposureSession& s, ScreenId screen) {
  constexpr double kUsual = 95;
  if (screen != UCL || s.D >= kUsual) return {};
  return OwnText(Own::LowConfidence, {GlobalBAS::GeneralText(s.D)});
}

// What is to be known of the shown test's result.
std::string TestReason(const Record& record, ScreenId screen) {
  if (screen != PercEx) return {};
  if (record.TestIsStale()) return OwnText(Own::StaleTest);
  const TestResult* result = record.Test();
  return result ? result->reason : std::string();
}

// Why the start screen has no tabs. Before anything was entered its message says what is to be.
std::string NoTabs(const ExposureSession& s, ScreenId screen) {
  const bool begun = s.M != 0 || !s.Name.empty();
  if (screen != Basis || workflow::StripVisible(s) || !begun) return {};
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

std::string Action(const Record& record, ScreenId screen) {
  const LastAction* action = record.Reported(screen);
  if (!action) return {};
  if (action->did != Did::TabClosed || !action->target) return ActionText(record.Now(), *action);
  const std::string why = wording::WhyClosed(record.Now(), screen, *action->target);
  if (why.empty()) return {};
  const std::string tab = LoadResString(workflow::TabOf(*action->target).caption);
  return OwnText(Own::TabClosed, {GlobalBAS::Trim(tab)}) + " " + why;
}

}  // namespace

LiveText LiveLine(const Record& record, ScreenId screen) {
  const ExposureSession& s = record.Now();
  Sentences line;
  line.Add(Action(record, screen));
  const std::string noTabs = NoTabs(s, screen);
  line.Add(noTabs);
  if (screen == DataCtrl || (screen == Basis && noTabs.empty())) line.Add(MissingRows(s));
  line.Add(LeftOut(s));
  line.Add(NoEstimates(s));
  const std::string outside = ShowsResults(screen) ? OutsideRange(s) : std::string();
  line.Add(outside);
  line.Add(InForce(s));
  if (screen == DataCtrl && s.DetecOn) line.Add(OwnText(Own::OneRange));
  line.Add(LimitToState(s, screen));
  line.Add(Confidence(s, screen));
  line.Add(TestReason(record, screen));
  return {line.Text(), !outside.empty()};
}

std::string WhyClosed(const ExposureSession& s, ScreenId from, ScreenId target) {
  return wording::WhyClosed(s, from, target);
}

}  // namespace navigation
