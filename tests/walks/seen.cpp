#include "tests/walks/seen.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

#include "drive/failure.h"
#include "drive/hands.h"
#include "drive/look.h"
#include "drive/record_fields.h"
#include "drive/text.h"
#include "screen/text_view.h"

namespace walks {
namespace {

class Reader {
 public:
  explicit Reader(const ExposureSession& record) : record_(record) {}

  std::string Text(const char* field) const { return drive::FieldText(record_, field); }
  double Number(const char* field) const { return Value(Text(field)); }
  int Whole(const char* field) const { return static_cast<int>(Number(field)); }
  bool Flag(const char* field) const { return Text(field) == "1"; }
  std::optional<double> Optional(const char* field) const {
    const std::string text = Text(field);
    return text == "empty" ? std::nullopt : std::optional(Value(text));
  }
  std::vector<double> Numbers(const char* field) const {
    std::vector<double> numbers;
    const std::string text = Text(field);
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find(' ', at), text.size());
      numbers.push_back(Value(std::string_view(text).substr(at, end - at)));
      at = end + 1;
    }
    return numbers;
  }

 private:
  // An infinity or what is not a number is told as 0, which no valid field is.
  static double Value(std::string_view text) { return drive::ParseNumber(text).value_or(0); }

  const ExposureSession& record_;
};

void ReadTexts(const Reader& record, Seen& seen) {
  seen.Mode = record.Text("Mode");
  seen.Name = record.Text("Name");
  seen.TestTag = record.Text("TestTag");
  seen.PlotKind = record.Text("PlotKind");
  seen.CompareMode = record.Text("CompareMode");
  seen.GSDChoice = record.Text("GSDChoice");
  seen.Unit = record.Text("Unit");
  seen.Duration = record.Text("Duration");
  seen.RefPeriod = record.Text("RefPeriod");
  seen.CurrentTab = record.Text("CurrentTab");
  seen.RegressionLabel = record.Text("RegressionLabel");
}

void ReadFlags(const Reader& record, Seen& seen) {
  seen.IdentOk = record.Flag("IdentOk");
  seen.DescOk = record.Flag("DescOk");
  seen.LimitsOk = record.Flag("LimitsOk");
  seen.RawIncomplete = record.Flag("RawIncomplete");
  seen.ModifyMode = record.Flag("ModifyMode");
  seen.DetecOn = record.Flag("DetecOn");
  seen.RegressionOn = record.Flag("RegressionOn");
}

void ReadNumbers(const Reader& record, Seen& seen) {
  seen.FirstInRange = record.Whole("FirstInRange");
  seen.LastInRange = record.Whole("LastInRange");
  seen.NInRange = record.Whole("NInRange");
  seen.SigDigits = record.Whole("SigDigits");
  seen.M = record.Number("M");
  seen.df = record.Number("df");
  seen.LOQ = record.Number("LOQ");
  seen.URR = record.Number("URR");
  seen.GM = record.Number("GM");
  seen.GSD = record.Number("GSD");
  seen.U = record.Number("U");
  seen.D = record.Number("D");
  seen.GM2 = record.Number("GM2");
  seen.GSD2 = record.Number("GSD2");
  seen.M2 = record.Number("M2");
  seen.AMu = record.Number("AMu");
  seen.OELV = record.Optional("OELV");
  seen.C = record.Numbers("C");
}

std::string TickedScale(drive::Stage& stage) {
  const screen::Form* plot = stage.Program().FormByName("PlotForm");
  for (const char* menu :
       {"MenuDubLog", "MenuLog", "MenuSqrt", "MenuUntransf", "MenuSqrd", "MenuExp", "MenuRecip"})
    if (plot->Find(menu)->ticked) return menu;
  return "MenuLog";
}

}  // namespace

bool LogOpen(drive::Stage& stage) {
  const auto* form =
      dynamic_cast<const screen::ReadingWindow*>(stage.Program().FormByName("ReportForm"));
  return form && form->shown;
}

Seen Look(drive::Stage& stage) {
  Seen seen;
  seen.form = stage.Shown().name;
  seen.focus = drive::Focused(stage);
  seen.scale = TickedScale(stage);
  seen.unsaved = stage.Program().Unsaved();
  const auto* table = stage.Program().FormByName("DataCtrlForm")->Find("DBGridVkr");
  seen.gridRows = static_cast<const screen::Grid*>(table)->selectedRows;
  const screen::TabStrip* strip = stage.Shown().strip;
  seen.strip = strip && strip->visible && !strip->tabs.empty();
  seen.logOpen = LogOpen(stage);
  const Reader record(stage.Session());
  ReadTexts(record, seen);
  ReadFlags(record, seen);
  ReadNumbers(record, seen);
  return seen;
}

const screen::Control& Page::Control(const std::string& name) const {
  return *stage_.Find(name).control;
}

bool Page::Visible(const std::string& name) const {
  const drive::Target target = stage_.Find(name);
  if (target.form != &stage_.Shown()) return false;
  if (target.control->kind == screen::Kind::PictureLabel) return target.control->visible;
  return stage_.WidgetOf(target).isVisible();
}

bool Page::Usable(const std::string& name) const {
  try {
    const drive::Target target = stage_.Find(name);
    drive::NeedUsable(stage_, target);
    return !target.control->locked;
  } catch (const drive::Failure&) {
    return false;
  }
}

bool Page::IsMenuItem(const screen::Control& control) const {
  if (control.kind != screen::Kind::Menu) return false;
  const QAction* action = stage_.Window().ActionOf(stage_.Shown(), control);
  return action && !action->menu();
}

}  // namespace walks
