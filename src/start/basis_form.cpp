#include "start/basis_form.h"

#include <algorithm>
#include <cmath>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "stats/coefficient_status.h"

namespace start {
namespace {

constexpr int kModify = 725;
constexpr int kReset = 730;

}  // namespace

BasisForm::BasisForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts)
    : SessionForm("BasisForm", navigation::ScreenId::Basis, "TabBasis", sessionRecord, programDesk,
                  formPorts) {
  stepMenus.emplace(*this);
  WireMenus();
  WireFields();
}

void BasisForm::WireMenus() {
  menuopen.Click = [this] {
    if (!desk.MayDropSeries()) return;
    RawOpt.ticked = true;
    DesOpt.ticked = false;
    VkrOpen();
  };
  MenuNewVkrFil.Click = [this] { MenuNewVkrFil_Click(); };
}

void BasisForm::WireFields() {
  RawOpt.Click = [this] { RawOpt_Click(); };
  DesOpt.GotFocus = [this] { DesOpt_GotFocus(); };
  DesOpt.Click = [this] { DesOpt_Click(); };
  CmdContinu.Click = [this] { CmdContinu_Click(); };
  OriModiCmd.Click = [this] { OriModiCmd_Click(); };

  auto field = [this](screen::Control& box, const char* window, screen::Handler leave) {
    box.GotFocus = [this, &box, window] {
      ShowFieldNumber(box, window);
      box.selectAll = true;
    };
    box.LostFocus = leave;
    box.EnterKey = leave;
  };
  field(NameTxB, "4", [this] { LeaveName(); });
  field(SampSizTxB, "3a", [this] { LeaveSampleSize(); });
  field(GMTxB, "14", [this] { LeaveStatistic(GMTxB); });
  field(GSDTxB, "20", [this] { LeaveStatistic(GSDTxB); });
  SampSize_UpD.StepUp = [this] { StepSampleSize(1); };
  SampSize_UpD.StepDown = [this] { StepSampleSize(-1); };
}

void BasisForm::Load() {
  IdentFrame.Hide();
  DescriptFrame.Hide();
  OpeningMessage();
  WindnrLbl.text = "2";
  Tabs.Hide();
  for (screen::Control* box : {&NameTxB, &SampSizTxB, &GMTxB, &GSDTxB}) box->text.clear();
  OriModiCmd.text = LoadResString(kModify);
  OriModiCmd.Hide();
  CmdContinu.Hide();
  menuTools.Hide();
  MenuPlot.Hide();
  menuExtrPol.enabled = false;
}

void BasisForm::Activate() {
  EnterOwnTab();
  BasisStatus();
}

// The raw data screen finds the state of a series that is still being typed up to date.
void BasisForm::BeforeLeavingFor(navigation::ScreenId target) {
  if (target == navigation::ScreenId::DataCtrl && session.RawIncomplete) BasisStatus();
}

void BasisForm::OpeningMessage() {
  std::string text =
      LoadResString(20) + session.CR + LoadResString(21) + session.CR + LoadResString(22);
  // Results of other constants, or of none, must not pass for the program's own.
  const std::string warning = StatFWinBAS::CoefficientWarning(session.CR);
  if (!warning.empty()) text += session.CR + warning;
  ShowMessage(text);
}

void BasisForm::ShowMessage(const std::string& text) {
  BoodschFrame.Show();
  BoodschLbl.Show();
  BoodschLbl.text = text;
}

void BasisForm::RawOpt_Click() {
  if (session.Mode != DataMode::None) {
    if (!desk.MayDropSeries()) {
      RawOpt.ticked = session.Mode == DataMode::Raw;
      DesOpt.ticked = session.Mode == DataMode::Statistics;
      return;
    }
    Menuclose_Click();
  }
  ChooseRaw();
}

void BasisForm::ChooseRaw() {
  record.Change([](Given& given) { given.Mode = DataMode::Raw; });
  RawOpt.ticked = true;
  DesOpt.ticked = false;
  WindnrLbl.text = "8";
  menuopen.enabled = true;
  MenuNewVkrFil.enabled = true;
  menuExtrPol.enabled = false;
  ShowMessage(LoadResString(240) + session.CR);
  IdentFrame.Hide();
}

// Coming back to the option by keyboard is no new choice: in mode "D" nothing is chosen again.
// A mouse click gives the focus first and clicks then: a refusal holds for both. The focus goes
// back to the other option, so that the next wish for mode "D" is asked about anew.
void BasisForm::DesOpt_GotFocus() {
  if (session.Mode == DataMode::Statistics) return;
  keptSession_ = false;
  DesOpt_Click();
  keptSession_ = session.Mode != DataMode::Statistics;
  if (keptSession_) SetFocus(RawOpt);
}

void BasisForm::DesOpt_Click() {
  const bool declinedJustNow = keptSession_;
  keptSession_ = false;
  if (session.Mode != DataMode::None && session.Mode != DataMode::Statistics) {
    if (declinedJustNow || !desk.MayDropSeries()) {
      DesOpt.ticked = false;
      RawOpt.ticked = true;
      return;
    }
    Menuclose_Click();
  }
  ChooseStatistics();
}

void BasisForm::ChooseStatistics() {
  record.Change([](Given& given) { given.Mode = DataMode::Statistics; });
  WindnrLbl.text = "7";
  DesOpt.ticked = true;
  RawOpt.ticked = false;
  menuopen.enabled = false;
  MenuNewVkrFil.enabled = false;
  menuExtrPol.enabled = false;
  ShowMessage(LoadResString(245) + session.CR);
  CmdContinu.Hide();
  IdentFrame.Show();
  BasisStatus();
  SetFocusQuietly(NameTxB);
}

void BasisForm::MenuNewVkrFil_Click() {
  if (session.Mode != DataMode::None) {
    if (!desk.MayDropSeries()) return;
    Menuclose_Click();
  }
  RawOpt.ticked = true;
  DesOpt.ticked = false;
  WindnrLbl.text = "6";
  record.Change([](Given& given) {
    given.Mode = DataMode::Raw;
    given.newSeries = true;
    given.DetecOn = false;
  });
  IdentFrame.Show();
  DesRawFrame.enabled = false;
  menuopen.enabled = false;
  MenuNewVkrFil.enabled = false;
  ShowMessage(LoadResString(250) + session.CR);
  SetFocusQuietly(NameTxB);
}

void BasisForm::CmdContinu_Click() {
  BasisStatus();
  Tab_Click(workflow::TabOf(navigation::ScreenId::DataCtrl).key);
}

void BasisForm::OfferModify() { OriModiCmd.text = LoadResString(kModify); }

void BasisForm::OriModiCmd_Click() {
  if (session.ModifyMode)
    Reset();
  else
    Modify();
  BasisStatus();
  OfferSteps();
}

// Other values are tried on top of the data, which stay as they are.
void BasisForm::Modify() {
  OriModiCmd.text = LoadResString(kReset);
  record.Change([this](Given& given) {
    given.original = {given.Name,     given.M,          given.TypedGM,
                      given.TypedGSD, given.typedWidth, given.inForce};
    given.Name += LoadResString(765);
    given.M = session.df + 1;
    given.TypedGM = session.GM;
    given.TypedGSD = session.GSD;
  });
}

void BasisForm::Reset() {
  OfferModify();
  for (screen::Control* box : {&NameTxB, &SampSizTxB, &GMTxB, &GSDTxB}) box->locked = true;
  record.Change([](Given& given) {
    const Original original = *given.original;
    given.original.reset();
    given.Name = original.Name;
    given.M = original.M;
    given.TypedGM = original.TypedGM;
    given.TypedGSD = original.TypedGSD;
    given.typedWidth = original.typedWidth;
    given.inForce = original.inForce;
  });
}

void BasisForm::LeaveName() {
  if (NameTxB.locked) return;
  std::string typed = session.Name;
  GlobalBAS::CheckName(flow, NameTxB.text, typed, Notifier());
  record.Change([&typed](Given& given) { given.Name = typed; });
  const bool refused = session.InputState != 0;
  BasisStatus();
  if (refused) SetFocus(NameTxB);
}

void BasisForm::LeaveSampleSize() {
  if (SampSizTxB.locked) return;
  const bool typed = SampSizTxB.touched;
  double M = session.M;
  GlobalBAS::CheckM(flow, EntryOf(SampSizTxB), M, Notifier());
  const bool refused = session.InputState != 0;
  // A number beyond all numbers is no sample size that could be kept.
  if (std::isfinite(M)) TakeSampleSize(M);
  BasisStatus();
  KeepFocus(SampSizTxB, refused, typed);
}

void BasisForm::StepSampleSize(double step) {
  if (SampSizTxB.locked) return;
  TakeSampleSize(std::clamp(session.M + step, 2.0, static_cast<double>(kMaxSampleSize)));
  BasisStatus();
}

// A series is evaluated anew for its first M outcomes, by the degrees of freedom of its range.
void BasisForm::TakeSampleSize(double M) {
  if (M == session.M) return;
  LimitComplaint complaint;
  Edit(OwnText(Own::StepSampleSize, {GlobalBAS::GeneralText(M)}), [&] {
    complaint = record.Change([M](Given& given) {
      given.M = M;
      if (given.inForce != Estimates::Typed) given.inForce = Estimates::RangeDegrees;
    });
  });
  if (!complaint.MsgText.empty()) Complain(complaint.MsgText, complaint.MsgTitle);
}

void BasisForm::LeaveStatistic(screen::Control& field) {
  if (field.locked) return;
  const bool typed = field.touched;
  const bool isGM = &field == &GMTxB;
  double value = isGM ? session.TypedGM : session.TypedGSD;
  const auto check = isGM ? GlobalBAS::CheckGM : GlobalBAS::CheckGSD;
  check(flow, EntryOf(field), value, Notifier());
  const bool refused = session.InputState != 0;
  record.Change([&](Given& given) {
    (isGM ? given.TypedGM : given.TypedGSD) = value;
    if (refused || !typed) return;
    const auto width = static_cast<std::int16_t>(GlobalBAS::GeneralText(value).size());
    given.typedWidth = std::max(given.typedWidth, width);
  });
  BasisStatus();
  KeepFocus(field, refused, typed);
}

// A refused entry keeps the focus. A field in which nothing was typed lets the user go wherever
// the user goes: who wants to mend the sample size first is not held in an empty GM.
void BasisForm::KeepFocus(screen::Control& field, bool refused, bool typed) {
  if (!refused) return;
  if (typed)
    SetFocus(field);
  else
    focusWanted = nullptr;
}

}  // namespace start
