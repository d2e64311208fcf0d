#include "analysis/descript_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "stats/estimators.h"

namespace analysis {
namespace {

constexpr int kSampleHelp = 101050;
constexpr int kRegressionHelp = 101210;

}  // namespace

DescriptForm::DescriptForm(Record& sessionRecord, navigation::Desk& programDesk,
                           screen::Ports& formPorts)
    : SessionForm("DescriptForm", navigation::ScreenId::Descript, "TabDescrip", sessionRecord,
                  programDesk, formPorts) {
  for (screen::Control* control : controls)
    if (control->kind == screen::Kind::TextBox) control->locked = true;
}

void DescriptForm::Load() {
  caption = LoadResString(workflow::TabOf(id).caption);
  DetecFrame.Hide();
}

void DescriptForm::BasisDescStat() {
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
  menuExtrPol.enabled = session.LimitsOk;
}

void DescriptForm::Activate() {
  BasisDescStat();
  EnterOwnTab();
  WindnrLbl.text = session.Mode == DataMode::Raw ? "20a" : "20b";
  ShowIdentification();
  if (session.noEstimates)
    ShowNothing();
  else
    ShowEstimators();
  // Values that are tried on top of the sample have no range of their own.
  if (session.DetecOn && !session.ModifyMode)
    ShowRange();
  else
    ShowNoRange();
}

void DescriptForm::ShowIdentification() {
  NameTxB.text = session.Name;
  SampSizTxB.text = Shown(session.M);
  RefDurLbl.text =
      session.Duration.empty() ? std::string() : LoadResString(364) + "  " + session.Duration;
  DimLbl0.text = session.Unit.empty() ? " " : LoadResString(303) + " " + session.Unit;
  for (screen::Control* label :
       {&DimLbl1, &DimLbl2, &DimLbl3, &DimLbl4, &DimLbl5, &DimLbl6, &DimLbl7, &DimLbl8, &DimLbl9})
    label->text = session.Unit;
}

// The numbers stay in the record for who asks for them by name.
void DescriptForm::ShowEstimators() {
  const StatFWinBAS::Estimators found = StatFWinBAS::EstimatorsOf(session);
  Computed& kept = record.Numbers();
  GMTxB.text = Shown(session.GM);
  GMuTxB.text = Shown(kept.GMu = found.GMu.value_or(0));
  GSDTxB.text = Shown(session.GSD);
  kept.LnGM = found.LnGM;
  kept.LnGSD = found.LnGSD;
  AMmlTxb.text = Shown(kept.AMml = found.AMml);
  AMuTxb.text = Shown(kept.AMu = found.AMu);
  AMmvTxb.text = found.AMmv ? Shown(found.AMmv) : navigation::kUnknown;
  if (found.AMmv) kept.AMmv = *found.AMmv;
  SDUTxb.text = Shown(kept.SDu = found.SDu);
  AmlinTxb.text = Shown(kept.XM = found.linear.XM);
  SDlinTxb.text = found.linear.SDlin ? Shown(found.linear.SDlin) : navigation::kUnknown;
  if (found.linear.SDlin) kept.SDlin = *found.linear.SDlin;
  NoteState(found);
}

// The code that the last of the calculations leaves.
void DescriptForm::NoteState(const StatFWinBAS::Estimators& found) {
  constexpr double kLargeDeviation = 10000;
  flow.InputState = found.GMu ? 0 : 1;
  if (session.Mode != DataMode::Raw || session.DetecOn || session.ModifyMode) return;
  if (!found.linear.SDlin)
    flow.InputState = 4;
  else if (*found.linear.SDlin >= kLargeDeviation)
    flow.InputState = 5;
}

void DescriptForm::ShowNothing() {
  for (screen::Control* box :
       {&GMTxB, &GMuTxB, &GSDTxB, &AMmlTxb, &AMuTxb, &AMmvTxb, &SDUTxb, &AmlinTxb, &SDlinTxb})
    box->text = navigation::kUnknown;
}

void DescriptForm::ShowNoRange() {
  DegreesLbl5.text = Shown(session.NInRange);
  WindnrLbl.text = "20a";
  DetecFrame.Hide();
  DetecLTxb.text = "none";
  DetecUTxb.text = "none";
  ShowSampleWords();
}

void DescriptForm::ShowRange() {
  WindnrLbl.text = "20c";
  DetecFrame.Show();
  DetecLTxb.text = Shown(session.LOQ);
  DetecUTxb.text = Shown(session.URR);
  DegreesLbl7.text = LoadResString(2004);
  DegreesTxb.text = Shown(session.df);
  DegreesLbl5.text = Shown(session.FirstInRange - 1);
  DegreesLbl9.text = Shown(session.M - session.LastInRange);
  DegreesLbl11.text = Shown(session.NInRange);
  DegreesLbl6.text =
      GlobalBAS::FormatNumber(Divide(session.NInRange, session.M) * 100, "   ##0.##") + " %";
  if (session.RegressionOn)
    ShowRegressionWords();
  else
    ShowSampleWords();
}

void DescriptForm::ShowSampleWords() {
  DescriptFrame.text = LoadResString(2000);
  DescriptFrame.tip = LoadResString(2001);
  DescriptFrame.helpContext = kSampleHelp;
  GMLbl.text = LoadResString(2006);
  GSDLbl.text = LoadResString(2008);
  if (session.Mode == DataMode::Raw && !session.ModifyMode) record.Evaluate(session.inForce);
}

void DescriptForm::ShowRegressionWords() {
  DescriptFrame.text = LoadResString(2002);
  DescriptFrame.tip = LoadResString(2003);
  DescriptFrame.helpContext = kRegressionHelp;
  GMLbl.text = navigation::RegressionWords(session, "GMg");
  GSDLbl.text = navigation::RegressionWords(session, "GSDg");
}

}  // namespace analysis
