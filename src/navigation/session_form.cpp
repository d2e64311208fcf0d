#include "navigation/session_form.h"

#include "catalog/catalog.h"

namespace navigation {
namespace {

const char* TagOfMenu(const screen::Control& menu) {
  struct Shortcut {
    const char* menu;
    const char* tag;
  };
  static constexpr Shortcut kShortcuts[] = {{"MenuLeid", "Le"},
                                            {"MenuWilks", "Wi"},
                                            {"MenuTugg", "Tu"},
                                            {"MenuJahr", "Ap"},
                                            {"MenuLand", "Ex"}};
  for (const Shortcut& shortcut : kShortcuts)
    if (menu.name == shortcut.menu) return shortcut.tag;
  return "";
}

}  // namespace

SessionForm::SessionForm(std::string formName, ScreenId screenId, std::string stripName,
                         ExposureSession& record, Desk& programDesk, screen::Ports& formPorts)
    : Form(std::move(formName), formPorts),
      session(record),
      desk(programDesk),
      id(screenId),
      Tabs(*this, std::move(stripName)) {
  strip = &Tabs;
  Tabs.Choose = [this](const std::string& key) { Tab_Click(key); };
  Menuclose.Click = [this] { desk.CloseAllData(); };
  MenuExit.Click = [this] { desk.Exit(); };
  MenuPlot.Click = [this] { Tab_Click(workflow::TabOf(ScreenId::Plot).key); };
  MenuVerd.Click = [this] { desk.ShowPicture(); };
  MenuComp.Click = [this] { Tab_Click(workflow::TabOf(ScreenId::TwoSamp).key); };
  for (screen::Control* menu : {&MenuLeid, &MenuWilks, &MenuTugg, &MenuJahr, &MenuLand})
    menu->Click = [this, menu] { desk.RunExtrapolation(TagOfMenu(*menu)); };
}

void SessionForm::RebuildStrip() {
  Tabs.tabs.clear();
  for (ScreenId target : workflow::TabSet(session, id)) {
    const workflow::TabText& tab = workflow::TabOf(target);
    Tabs.tabs.push_back({tab.key, LoadResString(tab.caption), LoadResString(tab.tip)});
  }
  Tabs.selected = workflow::TabOf(id).key;
  MenuPlot.visible = workflow::PlotMenuVisible(session, id);
}

void SessionForm::Flags() {
  GlobalBAS::StatusFlags(session);
  if (session.Mode == "R" && session.RawIncomplete) session.DescOk = false;
}

void SessionForm::EnterOwnTab() {
  session.CurrentTab = LoadResString(workflow::TabOf(id).caption);
  Tabs.selected = workflow::TabOf(id).key;
}

void SessionForm::Tab_Click(const std::string& key) {
  const workflow::TabText* tab = workflow::TabByKey(key);
  if (!tab || LoadResString(tab->caption) == session.CurrentTab) return;
  BeforeTabClick();
  // The click itself has moved the toolkit's strip; a closed gate moves it back.
  if (!workflow::GateOpen(session, id, tab->screen)) {
    ClickLedNowhere();
    return;
  }
  BeforeLeavingFor(tab->screen);
  workflow::PassGate(session, id, tab->screen);
  desk.Open(tab->screen);
}

void SessionForm::SetFocusQuietly(screen::Control& control) {
  quietFocus_ = &control;
  SetFocus(control);
}

void SessionForm::ShowFieldNumber(const screen::Control& field, const std::string& number) {
  if (quietFocus_ != &field) WindnrLbl.text = number;
  quietFocus_ = nullptr;
}

std::string SessionForm::Shown(const std::optional<double>& value) const {
  return GlobalBAS::Shown(session, value);
}

std::string SessionForm::ShownTrimmed(const std::optional<double>& value) const {
  return GlobalBAS::ShownTrimmed(session, value);
}

GlobalBAS::Entry SessionForm::EntryOf(const screen::Control& field) const {
  return {field.text, field.touched};
}

GlobalBAS::Notify SessionForm::Notifier() {
  return [this](const std::string& text, const std::string& title) { Complain(text, title); };
}

std::string RegressionWords(const ExposureSession& session, const std::string& estimate) {
  constexpr int kEstimates = 1760;  // "estimates:", of which the singular is taken
  std::string word = GlobalBAS::Trim(LoadResString(kEstimates));
  word.resize(word.size() - 2);
  return session.RegressionLabel + " Rankit " + word + " " + estimate + "=";
}

}  // namespace navigation
