#include "start/basis_form.h"

#include <algorithm>

#include "catalog/catalog.h"
#include "stats/coefficient_status.h"

namespace start {
namespace {

constexpr int kModify = 725;
constexpr int kReset = 730;

}  // namespace

BasisForm::BasisForm(ExposureSession& record, navigation::Desk& programDesk,
                     screen::Ports& formPorts)
    : SessionForm("BasisForm", navigation::ScreenId::Basis, "TabBasis", record, programDesk,
                  formPorts) {
  WireMenus();
  WireFields();
}

void BasisForm::WireMenus() {
  menuopen.Click = [this] {
    if (!desk.MayDropSeries()) return;
    session.Mode = "R";
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
  session.Unit.clear();
  session.Duration.clear();
  session.RefPeriod.clear();
  OriModiCmd.text = LoadResString(kModify);
  OriModiCmd.Hide();
  session.ModifyMode = false;
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
  if (!session.Mode.empty()) {
    if (!desk.MayDropSeries()) {
      RawOpt.ticked = session.Mode == "R";
      DesOpt.ticked = session.Mode == "D";
      return;
    }
    Menuclose_Click();
  }
  ChooseRaw();
}

void BasisForm::ChooseRaw() {
  session.Mode = "R";
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
  if (session.Mode == "D") return;
  keptSession_ = false;
  DesOpt_Click();
  keptSession_ = session.Mode != "D";
  if (keptSession_) SetFocus(RawOpt);
}

void BasisForm::DesOpt_Click() {
  const bool declinedJustNow = keptSession_;
  keptSession_ = false;
  if (!session.Mode.empty() && session.Mode != "D") {
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
  session.Mode = "D";
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
  if (!session.Mode.empty()) {
    if (!desk.MayDropSeries()) return;
    Menuclose_Click();
  }
  RawOpt.ticked = true;
  DesOpt.ticked = false;
  WindnrLbl.text = "6";
  session.RawIncomplete = true;
  session.DetecOn = false;
  session.Mode = "R";
  IdentFrame.Show();
  DesRawFrame.enabled = false;
  menuopen.enabled = false;
  MenuNewVkrFil.enabled = false;
  ShowMessage(LoadResString(250) + session.CR);
  SetFocusQuietly(NameTxB);
}

void BasisForm::CmdContinu_Click() {
  BasisStatus();
  GrowSeries(session);
  session.RawIncomplete = HasUnfilled(session);
  Tab_Click(workflow::TabOf(navigation::ScreenId::DataCtrl).key);
}

void BasisForm::OfferModify() { OriModiCmd.text = LoadResString(kModify); }

void BasisForm::OriModiCmd_Click() {
  if (!session.ModifyMode) {
    OriModiCmd.text = LoadResString(kReset);
    session.ModifyMode = true;
    ori_ = {session.Name, session.M, session.df, session.GM, session.GSD};
    session.Name += LoadResString(765);
    session.M = session.df + 1;
  } else {
    OfferModify();
    session.ModifyMode = false;
    for (screen::Control* box : {&NameTxB, &SampSizTxB, &GMTxB, &GSDTxB}) box->locked = true;
    session.Name = ori_.Name;
    session.M = ori_.M;
    session.df = ori_.df;
    session.GM = ori_.GM;
    session.GSD = ori_.GSD;
  }
  BasisStatus();
}

void BasisForm::LeaveName() {
  if (NameTxB.locked) return;
  GlobalBAS::CheckName(session, NameTxB.text, session.Name, Notifier());
  const bool refused = session.InputState != 0;
  BasisStatus();
  if (refused) SetFocus(NameTxB);
}

void BasisForm::LeaveSampleSize() {
  if (SampSizTxB.locked) return;
  const bool typed = SampSizTxB.touched;
  const double before = session.M;
  GlobalBAS::CheckM(session, EntryOf(SampSizTxB), session.M, Notifier());
  const bool refused = session.InputState != 0;
  if (session.M != before) SampleSizeChanged();
  BasisStatus();
  KeepFocus(SampSizTxB, refused, typed);
}

void BasisForm::StepSampleSize(double step) {
  if (SampSizTxB.locked) return;
  const double before = session.M;
  session.M = std::clamp(session.M + step, 2.0, static_cast<double>(kMaxSampleSize));
  if (session.M != before) SampleSizeChanged();
  BasisStatus();
}

// A refused sample size changes nothing else. A modified one is a what-if on top of the series and
// leaves the series alone.
void BasisForm::SampleSizeChanged() {
  if (session.M < 2 || session.M > kMaxSampleSize) return;
  if (session.ModifyMode) {
    session.df = session.M - 1;
    return;
  }
  if (session.Mode == "R") {
    GrowSeries(session);
    session.RawIncomplete = HasUnfilled(session);
  }
  DegreesOfFreedom(session);
}

void BasisForm::LeaveStatistic(screen::Control& field) {
  if (field.locked) return;
  const bool typed = field.touched;
  const bool isGM = &field == &GMTxB;
  double& value = isGM ? session.GM : session.GSD;
  if (isGM)
    GlobalBAS::CheckGM(session, EntryOf(field), value, Notifier());
  else
    GlobalBAS::CheckGSD(session, EntryOf(field), value, Notifier());
  const bool refused = session.InputState != 0;
  if (!refused) {
    const auto width = static_cast<std::int16_t>(GlobalBAS::GeneralText(value).size());
    session.SigDigits = std::max(session.SigDigits, width);
  }
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
