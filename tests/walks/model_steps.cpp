// What the user has done, takes back, and does again.
#include <set>

#include "tests/walks/model.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

// The commands that edit a series; the others change it at most in passing.
bool MayEdit(const Scene& scene) {
  static const std::set<std::string> edits = {"cell", "addrow", "delrow", "paste",
                                              "bar",  "drag",   "up",     "plotclick",
                                              "down", "type",   "pick",   "enter"};
  static const std::set<std::string> menus = {"MenuLowLim", "MenuUpLim", "MenuRemDetec",
                                              "MenuDeleteRow"};
  const std::string command = scene.step.Command();
  return edits.contains(command) || (command == "menu" && menus.contains(scene.step.Rest())) ||
         (command == "key" && scene.step.Rest() == "Delete") || scene.Clicked("DetecChB");
}

std::string Difference(const Standing& held, const Standing& wanted) {
  if (held.M != wanted.M) return "M is " + Word(held.M) + ", then it was " + Word(wanted.M);
  if (held.C != wanted.C) return "the outcomes are not those of then";
  // A series without a unit gets the usual one where its table is shown.
  if (held.Unit != wanted.Unit && !wanted.Unit.empty())
    return "the unit is " + held.Unit + ", then it was " + wanted.Unit;
  if (held.DetecOn != wanted.DetecOn) return "the range is not on or off as then";
  if (held.LOQ != wanted.LOQ || held.URR != wanted.URR)
    return "the limits are " + Word(held.LOQ) + " and " + Word(held.URR) + ", then " +
           Word(wanted.LOQ) + " and " + Word(wanted.URR);
  if (held.FirstInRange != wanted.FirstInRange || held.LastInRange != wanted.LastInRange)
    return "other outcomes are in range than then";
  return {};
}

}  // namespace

bool Scene::StepsBack() const { return step.Command() == "undo" || step.Command() == "redo"; }

// True when the step takes something back, or does it again: the series is then the one of then.
bool Model::FollowSteps(const Scene& scene) {
  const Seen& before = scene.before;
  const Seen& after = scene.after;
  const RawFile* file =
      scene.Chosen("menuopen") && scene.step.asked ? folder_.Find(scene.step.file) : nullptr;
  const bool none = after.C.size() <= 1;
  if ((file && file->accepted) || scene.Closed() || none || after.Mode != before.Mode)
    steps_.Clear();
  if (scene.StepsBack()) {
    const auto wanted = scene.step.Command() == "undo" ? steps_.Undo() : steps_.Redo();
    const std::string difference =
        wanted ? Difference(Standing(after), *wanted) : "there was nothing to do";
    if (!difference.empty()) scene.findings.Add("undo", scene.step.Command() + ": " + difference);
    outcomes_.assign(after.C.begin() + 1, after.C.end());
    return true;
  }
  if (after.Mode == "R" && !after.ModifyMode && !before.ModifyMode && MayEdit(scene))
    steps_.Did(Standing(before), Standing(after));
  return false;
}

}  // namespace walks
