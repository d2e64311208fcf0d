// The live line: no count that is not so, no closed tab without a reason, and the band exactly
// where it belongs.
#include <algorithm>
#include <array>

#include "session/workflow.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

const std::string& Line(const View& view) { return view.page.Text("StatusLbl"); }

bool Says(const View& view, const std::string& words) {
  return Line(view).find(words) != std::string::npos;
}

void Must(const View& view, bool so, const std::string& words) {
  if (Says(view, words) != so)
    view.Wrong("line",
               std::string(so ? "does not say " : "says ") + words + ", but: " + Line(view));
}

// "N outcomes read." and its like hold for the series that is there.
void CheckCounts(const View& view) {
  for (const char* words : {" outcomes read.", " outcomes saved."}) {
    const std::size_t at = Line(view).find(words);
    if (at == std::string::npos) continue;
    std::size_t begin = at;
    while (begin > 0 && Line(view)[begin - 1] >= '0' && Line(view)[begin - 1] <= '9') --begin;
    const std::string count = Line(view).substr(begin, at - begin);
    if (count != Word(static_cast<double>(view.model.Series().size())))
      view.Wrong("line-count", Line(view) + " beside " + Word(view.Now().M));
  }
}

void CheckEmptyRows(const View& view) {
  if (view.Now().form != "DataCtrlForm" || view.Now().Count() == 0) return;
  const bool empty =
      Says(view, " is empty.") || Says(view, " are empty.") || Says(view, " rows are empty");
  if (empty == view.model.Complete())
    view.Wrong("line", view.model.Complete() ? "no row is empty, but: " + Line(view)
                                             : "rows are empty, but: " + Line(view));
}

// Below and above the range in force; where a limit was refused, that is not the one which the
// limits mark.
int Outside(const View& view) {
  const Seen& now = view.Now();
  if (!now.DetecOn || now.Mode != "R" || !view.model.Complete()) return 0;
  return now.FirstInRange - 1 + now.Count() - now.LastInRange;
}

void CheckBand(const View& view) {
  const Seen& now = view.Now();
  constexpr std::array kResults = {"DescriptForm", "PercExForm", "UCLForm", "TwoSampCompForm"};
  const bool results = std::ranges::find(kResults, now.form) != kResults.end();
  const bool ofAll = view.model.Known() && !now.RegressionOn && !now.ModifyMode;
  const int outside = results && ofAll ? Outside(view) : 0;
  if (view.page.Control("StatusLbl").colour.has_value() != (outside > 0))
    view.Wrong("line-band", Word(outside) + " lie outside, but: " + Line(view));
  if (outside > 1) Must(view, true, Word(outside) + " outcomes lie outside");
}

void CheckConfidence(const View& view) {
  Must(view, view.Now().form == "UCLForm" && view.Now().D < 95, "the usual one is 95 %");
}

void CheckClosedTabs(const View& view) {
  const screen::TabStrip* strip = view.page.Stage().Shown().strip;
  if (!strip || !strip->visible) return;
  const auto* here = workflow::TabByKey(strip->selected);
  for (const screen::Tab& tab : strip->tabs) {
    if (!here || tab.key == strip->selected) continue;
    const bool open = workflow::GateOpen(view.page.Stage().Session(), here->screen,
                                         workflow::TabByKey(tab.key)->screen);
    if (open != tab.closed.empty())
      view.Wrong("closed-tab", tab.key + (open ? " looks closed: " : " looks open") + tab.closed);
    const bool clicked = view.scene.step.Command() == "tab" && view.scene.step.Rest() == tab.key;
    if (clicked && !open && !Says(view, tab.closed))
      view.Wrong("closed-tab", tab.key + " does not say " + tab.closed + ", but " + Line(view));
  }
}

}  // namespace

void CheckLine(const View& view) {
  if (view.Now().form == "VerdelingForm") return;
  CheckCounts(view);
  CheckEmptyRows(view);
  CheckBand(view);
  CheckConfidence(view);
  CheckClosedTabs(view);
}

}  // namespace walks
