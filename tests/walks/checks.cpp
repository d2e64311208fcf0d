#include "tests/walks/checks.h"

#include <map>

#include "drive/failure.h"
#include "drive/look.h"
#include "drive/text.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

using Check = void (*)(const View&);

const std::map<std::string, Check> kScreens = {
    {"BasisForm", CheckStart},      {"DataCtrlForm", CheckRawData},
    {"GrenzenForm", CheckLimits},   {"DescriptForm", CheckDescriptive},
    {"PlotForm", CheckPlot},        {"PercExForm", CheckTests},
    {"UCLForm", CheckMean},         {"TwoSampCompForm", CheckComparison},
    {"VerdelingForm", CheckPicture}};

// A box that tells a run-time error.
bool Fault(const screen::Message& box) {
  for (const char* words : {"overflow", "division by zero", "invalid operation",
                            "subscript out of range", "missing text", "could not be finished"})
    if (box.text.find(words) != std::string::npos) return true;
  return false;
}

}  // namespace

void View::Number(const std::string& rule, const std::string& control, double value) const {
  if (page.Visible(control) && !BlankOrUnknown(page.Text(control))) Must(rule, control, value);
}

void View::Must(const std::string& rule, const std::string& control, double value) const {
  const std::string& text = page.Text(control);
  scene.findings.Count();
  if (Shows(text, value, Now().SigDigits)) return;
  // The right number, but as it was rounded before the series had its present digits.
  Wrong(ShowsAtSomeWidth(text, value) ? "width" : rule,
        control + " shows " + drive::Quoted(text) + ", right is " + Word(value));
}

void CheckBoxes(const View& view) {
  for (const screen::Message& box : view.scene.step.boxes)
    if (Fault(box)) view.Wrong("fault-box", drive::Quoted(box.text));
}

void CheckWidgets(const View& view) {
  screen::Form& form = view.page.Stage().Shown();
  try {
    for (screen::Control* control : form.controls)
      if (control->kind != screen::Kind::CommonDialog)
        drive::LookOf(view.page.Stage(), {&form, control});
  } catch (const drive::Failure& failure) {
    view.Wrong("widget", failure.what());
  }
}

// The menu offers to take back whatever the user has done, and nothing else.
void CheckSteps(const View& view) {
  const Seen& now = view.Now();
  if (now.Mode != "R" || now.ModifyMode || now.C.size() <= 1) return;
  const auto check = [&view](const char* item, bool wanted) {
    const screen::Control* menu = view.page.Stage().Shown().Find(item);
    if (menu && menu->enabled != wanted)
      view.Wrong("undo", std::string(item) + (wanted ? " is closed" : " is open"));
  };
  check("MenuUndo", view.model.Steps().CanUndo());
}

void CheckAll(const View& view) {
  CheckSteps(view);
  CheckBoxes(view);
  // The trial of a printer's font shows nothing of the series.
  if (view.Now().form == "frmPrintkeu") return;
  CheckStrip(view);
  CheckWays(view);
  CheckLine(view);
  kScreens.at(view.Now().form)(view);
}

}  // namespace walks
