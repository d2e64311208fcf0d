#include "tests/walks/model.h"

#include <algorithm>

#include "drive/text.h"

namespace walks {

const char* NameOf(Whose whose) {
  switch (whose) {
    case Whose::Whole:
      return "the whole sample";
    case Whose::ByRange:
      return "the whole sample by the range's df";
    case Whose::Line:
      return "the regression";
    default:
      return "typed";
  }
}

bool Scene::Typed(const std::string& field, std::string& text) const {
  const std::string command = step.Command();
  if (command != "type" && command != "enter") return false;
  std::string rest = step.Rest();
  if (drive::TakeWord(rest) != field) return false;
  text = drive::TextArgument(rest);
  return true;
}

int Scene::Stepped(const std::string& field) const {
  if (step.Rest() != field) return 0;
  // A field that could not be entered leaves the key to another one.
  if (!step.meant.empty() && after.focus != field) return 0;
  return step.Command() == "up" ? 1 : step.Command() == "down" ? -1 : 0;
}

bool Scene::Clicked(const std::string& name) const {
  return step.Command() == "click" && step.Rest() == name;
}

bool Scene::Chosen(const std::string& menu) const {
  return step.Command() == "menu" && step.Rest() == menu;
}

bool Scene::OptionPressed() const {
  const std::string key = step.Command() == "key" ? step.Rest() : "";
  return before.focus.ends_with("Opt") && (key == "Space" || key == "Return");
}

bool Scene::Closed() const {
  using screen::Answer;
  const bool kept = std::ranges::any_of(
      step.answers, [](Answer answer) { return answer == Answer::No || answer == Answer::Cancel; });
  // There it leads back to the screen before.
  const bool back = On("VerdelingForm") || On("frmPrintkeu");
  return Chosen("Menuclose") && !back && !kept && after.M == 0 && after.Name.empty();
}

void Model::Advance(const Scene& scene) {
  AdvanceClose(scene);
  AdvanceSeries(scene);
  AdvanceRange(scene);
  AdvanceEstimates(scene);
  AdvanceLimits(scene);
  AdvanceReference(scene);
}

}  // namespace walks
