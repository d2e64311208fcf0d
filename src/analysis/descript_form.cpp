#include "analysis/descript_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "stats/estimators.h"

namespace analysis {
namespace {

constexpr int kNoValue = 4;  // InputState of a statistic that the sample does not give
// Runs `calculation`; true when the sample gave no value. InputState is left as the calculation
// left it: a code that stood there before stays unless there is a new one.
template <typename Calculation>
bool GaveNoValue(ExposureSession& session, Calculation calculation) {
  const auto before = session.InputState;
  session.InputState = 0;
  calculation();
  const bool none = session.InputState == kNoValue;
  if (session.InputState == 0) session.InputState = before;
  return none;
}

constexpr char kUnknown[] = "   unknown";
constexpr int kSampleHelp = 101050;
constexpr int kRegressionHelp = 101210;

}  // namespace

DescriptForm::DescriptForm(ExposureSession& record, navigation::Desk& programDesk,
                           screen::Ports& formPorts)
    : SessionForm("DescriptForm", navigation::ScreenId::Descript, "TabDescrip", record, programDesk,
                  formPorts) {
  for (screen::Control* control : controls)
    if (control->kind == screen::Kind::TextBox) control->locked = true;
}

void DescriptForm::Load() { DetecFrame.Hide(); }

void DescriptForm::BasisDescStat() {
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
  menuExtrPol.enabled = session.LimitsOk;
}

void DescriptForm::Activate() {
  BasisDescStat();
  EnterOwnTab();
  WindnrLbl.text = session.Mode == "R" ? "20a" : "20b";
  ShowIdentification();
  ShowGeometric();
  ShowMeans();
  ShowDeviations();
  if (session.DetecOn)
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

void DescriptForm::ShowGeometric() {
  GMTxB.text = Shown(session.GM);
  session.GMu = StatFWinBAS::GMUnbiased(session, session.GM, session.GSD);
  GMuTxB.text = Shown(session.GMu);
  GSDTxB.text = Shown(session.GSD);
  session.LnGM = Log(session.GM);
  session.LnGSD = Log(session.GSD);
}

void DescriptForm::ShowMeans() {
  session.AMml = Exp(session.LnGM + 0.5 * (session.LnGSD * session.LnGSD));
  AMmlTxb.text = Shown(session.AMml);
  session.AMu = StatFWinBAS::FinneyMeanMVU(session.df, session.GM, session.GSD);
  AMuTxb.text = Shown(session.AMu);
  if (session.df <= 3) {
    AMmvTxb.text = kUnknown;
    return;
  }
  session.AMmv = StatFWinBAS::FinneyMeanMMSE(session.df, session.GM, session.GSD);
  AMmvTxb.text = Shown(session.AMmv);
}

void DescriptForm::ShowDeviations() {
  session.SDu = Sqrt(StatFWinBAS::FinneyVarianceMVU(session.df, session.GM, session.GSD));
  SDUTxb.text = Shown(session.SDu);
  const bool noSpread = GaveNoValue(session, [this] { StatFWinBAS::LinearMoments(session); });
  AmlinTxb.text = Shown(session.XM);
  SDlinTxb.text = noSpread ? kUnknown : Shown(session.SDlin);
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

// The record leaves the screen with the sample's GM and GSD, unless the user is trying others. What
// is shown stays what stood in the record before.
void DescriptForm::ShowSampleWords() {
  DescriptFrame.text = LoadResString(2000);
  DescriptFrame.tip = LoadResString(2001);
  DescriptFrame.helpContext = kSampleHelp;
  GMLbl.text = LoadResString(2006);
  GSDLbl.text = LoadResString(2008);
  if (session.Mode != "R" || session.ModifyMode) return;
  if (GaveNoValue(session, [this] { LogMoments(session, session.GM, session.GSD); }))
    GSDTxB.text = kUnknown;
}

void DescriptForm::ShowRegressionWords() {
  DescriptFrame.text = LoadResString(2002);
  DescriptFrame.tip = LoadResString(2003);
  DescriptFrame.helpContext = kRegressionHelp;
  GMLbl.text = navigation::RegressionWords(session, "GMg");
  GSDLbl.text = navigation::RegressionWords(session, "GSDg");
}

}  // namespace analysis
