#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drive/stage.h"

namespace walks {

// What of the record, and which screen, a step has left: read through the names that scripts use.
struct Seen {
  std::string form;
  std::string focus;          // the control that has it
  std::vector<int> gridRows;  // the selected ones of the raw data table, 0-based
  std::string scale;          // the ticked scale of the plot: the name of its menu

  std::string Mode, Name, TestTag, PlotKind, CompareMode, GSDChoice;
  std::string Unit, Duration, RefPeriod, RegressionLabel, CurrentTab;
  bool IdentOk = false, DescOk = false, LimitsOk = false, RawIncomplete = false;
  bool ModifyMode = false, DetecOn = false, RegressionOn = false;
  bool unsaved = false;
  bool logOpen = false;  // the window with the log, to which keys go
  bool strip = false;    // the shown screen has tabs and menus that lead to others
  int FirstInRange = 0, LastInRange = 0, NInRange = 0, SigDigits = 0;
  double M = 0, df = 0, LOQ = 0, URR = 0, GM = 0, GSD = 0;
  double U = 0, D = 0, GM2 = 0, GSD2 = 0, M2 = 0, AMu = 0;
  std::optional<double> OELV;
  std::vector<double> C;

  bool operator==(const Seen&) const = default;

  // M as a number of outcomes; 0 for one that no series can have.
  int Count() const { return M >= 2 && M <= 2000 ? static_cast<int>(M) : 0; }
};

// The window with the log is open, beside the main one.
bool LogOpen(drive::Stage& stage);

Seen Look(drive::Stage& stage);

// The shown screen's controls as a user sees them; those of other screens by their state.
class Page {
 public:
  explicit Page(drive::Stage& stage) : stage_(stage) {}

  // NAME of the shown screen, or Form.NAME.
  const screen::Control& Control(const std::string& name) const;
  const std::string& Text(const std::string& name) const { return Control(name).text; }
  // Whether the window shows it, frames and menus around it included.
  bool Visible(const std::string& name) const;
  // Whether it could be clicked or typed in now.
  bool Usable(const std::string& name) const;
  // An item of a menu, which itself is none.
  bool IsMenuItem(const screen::Control& control) const;
  drive::Stage& Stage() const { return stage_; }

 private:
  drive::Stage& stage_;
};

}  // namespace walks
