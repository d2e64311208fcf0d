#include "start/basis_form.h"

namespace start {

void BasisForm::BasisStatus() {
  Flags();
  BoodschFrame.Show();
  menuExtrPol.enabled = false;
  menuTools.Show();
  MenuPlot.enabled = true;
  if (session.Mode == DataMode::None) {
    IdentFrame.Hide();
    NameTxB.locked = false;
    SampSizTxB.locked = false;
    menuTools.Hide();
    return;
  }
  if (session.Mode != DataMode::Raw)
    StatusKnown();
  else if (workflow::SeriesBegun(session))
    StatusRaw();
  else
    StatusRawChosen();
  StatusStrip();
}

// There is no series to name yet; the message says what can be done.
void BasisForm::StatusRawChosen() {
  for (screen::Control* control :
       {&IdentFrame, &DescriptFrame, &OriModiCmd, &CmdContinu, &menuTools})
    control->Hide();
}

void BasisForm::StatusRaw() {
  BoodschFrame.Hide();
  IdentFrame.Show();
  NameTxB.text = session.Name;
  SampSizTxB.text = ShownTrimmed(session.M);
  NameTxB.locked = false;
  SampSizTxB.locked = false;
  OriModiCmd.Hide();
  CmdContinu.visible = session.IdentOk;
  if (!session.IdentOk) {
    BoodschFrame.Show();
    DescriptFrame.Hide();
    menuTools.Hide();
    return;
  }
  // The series itself can't be edited while other values are tried on top of it.
  CmdContinu.enabled = !session.ModifyMode;
  DescriptFrame.visible = session.ModifyMode;
  if (session.ModifyMode) {
    GMTxB.locked = false;
    GSDTxB.locked = false;
    ShowStatistics();
    ShowDegrees();
  }
  if (session.DescOk) {
    OriModiCmd.Show();
    menuExtrPol.enabled = session.LimitsOk;
  } else {
    menuTools.Hide();
  }
}

void BasisForm::StatusKnown() {
  IdentFrame.Show();
  CmdContinu.Hide();
  NameTxB.Show();
  NameTxB.locked = false;
  SampSizTxB.locked = false;
  NameTxB.text = session.Name;
  SampSizTxB.text = session.M < 1 ? std::string() : ShownTrimmed(session.M);
  ShowStatistics();
  MenuPlot.enabled = false;
  if (!session.IdentOk) {
    BoodschFrame.Show();
    DescriptFrame.Hide();
    OriModiCmd.Hide();
    menuTools.Hide();
    return;
  }
  BoodschFrame.Hide();
  DescriptFrame.Show();
  ShowDegrees();
  GMTxB.locked = false;
  GSDTxB.locked = false;
  if (!session.DescOk) {
    menuTools.Hide();
    SetFocus(GlobalBAS::InRangeGM(session.GM) ? GSDTxB : GMTxB);
    OriModiCmd.Hide();
    return;
  }
  OriModiCmd.Show();
  if (session.LimitsOk) menuExtrPol.enabled = true;
}

void BasisForm::ShowStatistics() {
  GMTxB.text = GlobalBAS::InRangeGM(session.GM) ? ShownTrimmed(session.GM) : std::string();
  GSDTxB.text = GlobalBAS::InRangeGSD(session.GSD) ? ShownTrimmed(session.GSD) : std::string();
}

void BasisForm::ShowDegrees() {
  DegreesLbl.text = ShownTrimmed(session.df);
  DimLbl.text = session.Unit;
}

void BasisForm::StatusStrip() {
  Tabs.visible = workflow::StripVisible(session);
  if (!Tabs.visible) {
    MenuPlot.Hide();
    OfferPicture();
    TellState();
    return;
  }
  if (session.LimitsOk) menuTools.Show();
  RebuildStrip();
}

void BasisForm::Menuclose_Click() {
  WindnrLbl.text = "2";
  menuopen.enabled = true;
  MenuNewVkrFil.enabled = true;
  menuExtrPol.enabled = false;
  Sluiten();
}

void BasisForm::Sluiten() {
  const bool raw = session.Mode == DataMode::Raw;
  told_ = nullptr;
  record.Close();
  if (raw && tellReading) tellReading(nullptr);

  DesRawFrame.enabled = true;
  DesRawFrame.Show();
  const bool wasTicked = RawOpt.ticked;
  RawOpt.ticked = true;
  DesOpt.ticked = false;
  if (!wasTicked) ChooseRaw();
  IdentFrame.Hide();
  for (screen::Control* box : {&NameTxB, &SampSizTxB}) {
    box->text.clear();
    box->locked = false;
  }
  DescriptFrame.Hide();
  for (screen::Control* box : {&DegreesLbl, &GMTxB, &GSDTxB}) box->text.clear();
  desk.MarkSaved("");
  desk.ForgetSteps();
  OpeningMessage();
  menuTools.Hide();
  MenuPlot.Hide();
  OfferModify();
  OriModiCmd.Hide();
  CmdContinu.Hide();
  Tabs.Hide();
  TellState();
}

}  // namespace start
