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

void CheckAll(const View& view) {
  CheckBoxes(view);
  CheckStrip(view);
  CheckWays(view);
  CheckLine(view);
  kScreens.at(view.Now().form)(view);
}

}  // namespace walks
