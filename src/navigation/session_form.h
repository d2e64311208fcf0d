#pragma once

#include <deque>
#include <optional>
#include <string>

#include "navigation/desk.h"
#include "navigation/print_menus.h"
#include "screen/form.h"
#include "session/global_bas.h"
#include "session/record.h"

namespace navigation {

struct SessionForm;

// What a box shows of an estimate that there is not.
inline constexpr char kUnknown[] = "   unknown";

// The items of the Edit menu that take the user's last step back, and do it again.
struct StepMenus {
  explicit StepMenus(SessionForm& form);

  screen::Control MenuEdit;
  screen::Control MenuUndo;
  screen::Control MenuRedo;
};

// What the working screens have in common: the record, the tab strip, the menus that lead to
// other screens, and the label with the window number.
struct SessionForm : screen::Form {
  SessionForm(std::string formName, ScreenId screenId, std::string stripName, Record& sessionRecord,
              Desk& programDesk, screen::Ports& formPorts);

  Record& record;
  const ExposureSession& session;  // what the record holds now
  Workflow& flow;
  Desk& desk;
  const ScreenId id;

  screen::Control MenuFile{*this, screen::Kind::Menu, "MenuFile"};
  screen::Control MenuSave{*this, screen::Kind::Menu, "MenuSave"};
  PrintMenus printMenus{*this, desk};
  screen::Control& MenuPrint = printMenus.MenuPrint;
  screen::Control Menuclose{*this, screen::Kind::Menu, "Menuclose"};
  screen::Control MenuExit{*this, screen::Kind::Menu, "MenuExit"};
  screen::Control menuTools{*this, screen::Kind::Menu, "menuTools"};
  screen::Control MenuPlot{*this, screen::Kind::Menu, "MenuPlot"};
  screen::Control MenuVerd{*this, screen::Kind::Menu, "MenuVerd"};
  screen::Control menuExtrPol{*this, screen::Kind::Menu, "menuExtrPol"};
  screen::Control MenuAM{*this, screen::Kind::Menu, "MenuAM"};
  screen::Control MenuComp{*this, screen::Kind::Menu, "MenuComp"};
  screen::TabStrip Tabs;
  screen::Control WindnrLbl{*this, screen::Kind::Label, "WindnrLbl"};
  // The live line below the screen (live_line.h).
  screen::Control StatusLbl{*this, screen::Kind::StatusLine, "StatusLbl"};

  // Empties the strip and fills it with the tabs of the present state; MenuPlot follows.
  void RebuildStrip();
  // A click on the tab with that key.
  void Tab_Click(const std::string& key);

  // StatusFlags; besides, an incomplete series has no descriptive statistics.
  void Flags();
  // First step of every activation: this screen's tab is the current one.
  void EnterOwnTab();

  // The number of the window on focus; a number that a choice has just set stays when the choice
  // itself has moved the focus.
  void ShowFieldNumber(const screen::Control& field, const std::string& number);
  // Moves the focus and lets the present window number stand.
  void SetFocusQuietly(screen::Control& control);

  // Runs before the gate of a clicked tab is tested, and once it has been found open.
  virtual void BeforeTabClick() {}
  virtual void BeforeLeavingFor(ScreenId) {}
  // Runs instead of the way out when a click passes no gate.
  virtual void ClickLedNowhere() {}

  // The text of a number as the screens show it: through its mask, and without leading blanks.
  std::string Shown(const std::optional<double>& value) const;
  std::string ShownTrimmed(const std::optional<double>& value) const;
  // The same of GM, GSD and what follows from them; "   unknown" where the series gives none.
  std::string ShownEstimate(const std::optional<double>& value) const;
  // What the validator of a field gets.
  GlobalBAS::Entry EntryOf(const screen::Control& field) const;
  // Shows a validator's complaint.
  GlobalBAS::Notify Notifier();

  // The menu item of the picture is open when the picture can be drawn; otherwise its tip says why
  // not.
  void OfferPicture();

  // One step of the user, which can be taken back: `edit` changes the series or its range, `words`
  // name it in a menu. `goesOn`: with the movement of the step before.
  void Edit(const std::string& words, const screen::Handler& edit, bool goesOn = false);
  // Names the steps that stand to be taken back or done again.
  void OfferSteps();
  // The series stands as it stood before, or behind, one of the user's steps.
  virtual void Restored() { Activate(); }
  // The series has been saved, or could not be, as `told` says; its name may be another one. Null
  // where nothing came of it.
  virtual void FollowSave(const LastAction* told);

  // Tells why the way to `target` is closed.
  void TellClosed(ScreenId target);
  // Tells what the user's action did (last_action.h).
  void Report(LastAction action);
  // Brings the live line up to date, and which tabs are closed and why. Whoever runs handlers calls
  // it behind each of them; no screen needs to.
  void TellState();

 protected:
  // On the screens where the user edits.
  std::optional<StepMenus> stepMenus;

 private:
  void AddExtrapolationMenus();

  const screen::Control* quietFocus_ = nullptr;
  std::deque<screen::Control> extrapolationMenus_;  // controls keep their place
};

// Puts the live line of `screen` into its control.
void ShowLine(screen::Control& line, const Record& record, ScreenId screen);

// Label of a regression estimate, such as "Double censored Rankit estimate GMg=".
std::string RegressionWords(const ExposureSession& session, const std::string& estimate);

}  // namespace navigation
