#include "navigation/session_form.h"

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "navigation/live_line.h"
#include "session/derivation.h"
#include "session/series_text.h"

namespace navigation {

SessionForm::SessionForm(std::string formName, ScreenId screenId, std::string stripName,
                         Record& sessionRecord, Desk& programDesk, screen::Ports& formPorts)
    : Form(std::move(formName), formPorts),
      record(sessionRecord),
      session(sessionRecord.Now()),
      flow(sessionRecord.Flow()),
      desk(programDesk),
      id(screenId),
      Tabs(*this, std::move(stripName)) {
  strip = &Tabs;
  Tabs.Choose = [this](const std::string& key) { Tab_Click(key); };
  MenuSave.Click = [this] { desk.SaveSeries(); };
  MenuSave.enabled = false;
  MenuSave.Refused = [this] {
    if (workflow::SeriesBegun(session))
      Report({.did = Did::SaveRefused});
    else
      Report({.did = Did::Said, .what = OwnText(Own::NoSeriesToSave)});
  };
  Menuclose.Click = [this] { desk.CloseAllData(); };
  MenuExit.Click = [this] { desk.Exit(); };
  MenuPlot.Click = [this] { Tab_Click(workflow::TabOf(ScreenId::Plot).key); };
  MenuVerd.Click = [this] { desk.ShowPicture(); };
  MenuComp.Click = [this] { Tab_Click(workflow::TabOf(ScreenId::TwoSamp).key); };
  AddExtrapolationMenus();
}

void SessionForm::AddExtrapolationMenus() {
  for (const ExtrapolationMenu& item : desk.Extrapolations()) {
    screen::Control& menu =
        extrapolationMenus_.emplace_back(*this, screen::Kind::Menu, std::string(item.name));
    menu.home = item.home;
    menu.text = TextOf(item.caption);
    menu.Click = [this, tag = item.tag] { desk.RunExtrapolation(tag); };
  }
}

void SessionForm::RebuildStrip() {
  Tabs.tabs.clear();
  for (ScreenId target : workflow::TabSet(session, id)) {
    const workflow::TabText& tab = workflow::TabOf(target);
    Tabs.tabs.push_back({tab.key, LoadResString(tab.caption), LoadResString(tab.tip)});
  }
  Tabs.selected = workflow::TabOf(id).key;
  MenuPlot.visible = workflow::PlotMenuVisible(session, id);
  OfferPicture();
  TellState();
}

void SessionForm::Flags() { record.StatusFlags(); }

void SessionForm::EnterOwnTab() {
  flow.CurrentTab = id;
  Tabs.selected = workflow::TabOf(id).key;
}

void SessionForm::Tab_Click(const std::string& key) {
  const workflow::TabText* tab = workflow::TabByKey(key);
  if (!tab || tab->screen == session.CurrentTab) return;
  BeforeTabClick();
  // The click itself has moved the toolkit's strip; a closed gate moves it back.
  if (!workflow::GateOpen(session, id, tab->screen)) {
    TellClosed(tab->screen);
    ClickLedNowhere();
    return;
  }
  record.ForgetRefusals();
  BeforeLeavingFor(tab->screen);
  workflow::PassGate(flow, id, tab->screen);
  desk.Open(tab->screen);
}

// What has just been said of a refused limit is the reason already.
void SessionForm::TellClosed(ScreenId target) {
  const LastAction* told = record.Reported(id);
  const bool limit = workflow::ObstacleTo(session, id, target) == workflow::Obstacle::NoLimit;
  if (limit && told && told->did == Did::LimitRefused) return;
  Report({.did = Did::TabClosed, .target = target});
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

std::string SessionForm::ShownEstimate(const std::optional<double>& value) const {
  return session.noEstimates || !value ? kUnknown : Shown(value);
}

void SessionForm::OfferPicture() {
  MenuVerd.tip = desk.PictureObstacle();
  MenuVerd.enabled = MenuVerd.tip.empty();
}

void SessionForm::FollowSave(const LastAction* told) {
  for (const char* place : {"NameTxB", "NameLbl"}) {
    screen::Control* shown = Find(place);
    if (!shown) continue;
    shown->text = session.Name;
    break;  // beside the field the label is the field's caption
  }
  if (told) Report(*told);
  TellState();
}

void SessionForm::Report(LastAction action) { record.Report(id, std::move(action)); }

void ShowLine(screen::Control& line, const Record& record, ScreenId screen) {
  // Dark letters stand out on it, and it stands out in the window, light or dark.
  constexpr screen::Colour kBand{255, 204, 77};
  const LiveText now = LiveLine(record, screen);
  line.text = now.text;
  line.colour = now.band ? std::optional(kBand) : std::nullopt;
}

void SessionForm::TellState() {
  OfferSteps();
  MenuSave.enabled = CompleteSeries(session);
  printMenus.Offer();
  ShowLine(StatusLbl, record, id);
  for (screen::Tab& tab : Tabs.tabs)
    if (const workflow::TabText* found = workflow::TabByKey(tab.key))
      tab.closed = WhyClosed(session, id, found->screen);
}

GlobalBAS::Entry SessionForm::EntryOf(const screen::Control& field) const {
  return {field.text, field.touched};
}

GlobalBAS::Notify SessionForm::Notifier() {
  return [this](const GlobalBAS::Complaint& complaint) {
    Complain(complaint.text, complaint.title, complaint.advice);
  };
}

std::string RegressionWords(const ExposureSession& session, const std::string& estimate) {
  return wording::RegressionWords(session, estimate);
}

}  // namespace navigation
