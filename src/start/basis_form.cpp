#include "start/basis_form.h"

#include "catalog/catalog.h"
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
  WireButtons();
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

void BasisForm::WireButtons() {
  RawOpt.Click = [this] { RawOpt_Click(); };
  DesOpt.Click = [this] { DesOpt_Click(); };
  CmdContinu.Click = [this] { CmdContinu_Click(); };
  OriModiCmd.Click = [this] { OriModiCmd_Click(); };
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
      KeepKindOfData();
      return;
    }
    Menuclose_Click();
  }
  ChooseRaw();
}

// The user has declined the other kind.
void BasisForm::KeepKindOfData() {
  RawOpt.ticked = session.Mode == DataMode::Raw;
  DesOpt.ticked = session.Mode == DataMode::Statistics;
  SetFocus(RawOpt.ticked ? RawOpt : DesOpt);
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

// Choosing it again keeps what was entered.
void BasisForm::DesOpt_Click() {
  if (session.Mode != DataMode::None && session.Mode != DataMode::Statistics) {
    if (!desk.MayDropSeries()) {
      KeepKindOfData();
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

}  // namespace start
