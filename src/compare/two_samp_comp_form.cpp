#include "compare/two_samp_comp_form.h"

#include "catalog/catalog.h"

// The screen and its dialogue; entering the reference values stands in two_samp_entry.cpp, the
// results in two_samp_results.cpp.
namespace compare {

TwoSampCompForm::TwoSampCompForm(Record& sessionRecord, navigation::Desk& programDesk,
                                 screen::Ports& formPorts)
    : SessionForm("TwoSampCompForm", navigation::ScreenId::TwoSamp, "TabTwoSamp", sessionRecord,
                  programDesk, formPorts) {
  SampOpt.Click = [this] { ChooseKind(ReferenceKind::Sample, "29a"); };
  PopOpt.Click = [this] { ChooseKind(ReferenceKind::Population, "30a"); };
  CalcCmb.Click = [this] { CalcCmb_Click(); };
  WireReference(sampleSize_, SampSiz2_UpD);
  WireReference(location_, GM2_UpD);
  WireReference(dispersion_, GSD2_UpD);
  WireVariances();
}

void TwoSampCompForm::Load() {
  loaded = true;
  caption = LoadResString(2800);
  IntroLbl.text =
      LoadResString(2805) + session.CR + LoadResString(2810) + session.CR + LoadResString(2815);
  BoodschLbl.text = LoadResString(2885);
  for (screen::Control* box : {&NameTxB, &SampSizTxB, &GMTxB, &GSDTxB, &GSDInfTxb, &GMInfTxb,
                               &SampSizTxb3, &GMTxb3, &GSDTxb3})
    box->locked = true;
  for (screen::Control* control :
       {&MenuPrint, &CalcCmb, &PopSampFrame, &DescrSecond, &GSDEqualFrm, &DescrInfFrm, &PooledFrm})
    control->Hide();
}

void TwoSampCompForm::Activate() {
  EnterOwnTab();
  WindnrLbl.text = "29";
  TabTwoSamp();
  StartCompare();
}

void TwoSampCompForm::TabTwoSamp() {
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
  menuExtrPol.enabled = session.LimitsOk;
  ShowCurrent();
}

void TwoSampCompForm::ShowCurrent() {
  const bool regression = session.RegressionOn;
  HuidigFrame.text = LoadResString(regression ? 2832 : 2830);
  GMLbl.text = regression ? navigation::RegressionWords(session, "GMg") : LoadResString(2006);
  GSDLbl.text = regression ? navigation::RegressionWords(session, "GSDg") : LoadResString(2008);
  NameTxB.text = session.Name;
  SampSizTxB.text = Shown(session.M);
  GMTxB.text = ShownEstimate(session.GM);
  GSDTxB.text = ShownEstimate(session.GSD);
  RefDurLbl.text =
      session.Duration.empty() ? std::string() : LoadResString(364) + "  " + session.Duration;
  for (screen::Control* unit : {&DimLbl, &DimLbl2, &DimLbl3}) unit->text = session.Unit;
}

void TwoSampCompForm::StartCompare() {
  DropResults();
  CalcCmb.Show();
  BoodschFrame.Hide();
  if (session.CompareMode == ReferenceKind::None && !AskForReference()) return;
  ShowReference();
  FillReference();
}

bool TwoSampCompForm::AskForReference() {
  using namespace screen;
  IntroFrame.Show();
  for (screen::Control* control : {&PopSampFrame, &DescrSecond, &GSDEqualFrm, &CalcCmb})
    control->Hide();
  const Message question{LoadResString(2820), LoadResString(2818), Icon::Question, Buttons::YesNo,
                         screen::Answer::Yes};
  if (ports.messageBox.Show(question) != screen::Answer::Yes) return false;
  record.Change([](Given& given) { given.CompareMode = ReferenceKind::Sample; });
  CalcCmb.Show();
  return true;
}

// The frames of the kind that is chosen. A sample's results stand there empty until they come.
void TwoSampCompForm::ShowReference() {
  IntroFrame.Hide();
  PopSampFrame.Show();
  DescrSecond.Show();
  ShowKind();
  const bool sample = session.CompareMode == ReferenceKind::Sample;
  DescrInfFrm.visible = sample;
  PooledFrm.visible = sample;
  ShowVariances();
}

// A value that was never entered starts as that of the current data.
void TwoSampCompForm::FillReference() {
  record.Change([this](Given& given) {
    if (given.M2 == 0) given.M2 = session.M;
    if (given.GM2 == 0) given.GM2 = session.GM;
    if (given.GSD2 == 0) given.GSD2 = session.GSD;
  });
  if (session.df2 == 0) record.Numbers().df2 = session.df;
  for (const Reference* reference : {&sampleSize_, &location_, &dispersion_}) {
    reference->box.text = ShownTrimmed(ValueOf(*reference));
    reference->box.touched = false;
  }
  ClearResults();
  OfferCalculation();
}

void TwoSampCompForm::ChooseKind(ReferenceKind kind, const char* window) {
  WindnrLbl.text = window;
  record.Change([kind](Given& given) { given.CompareMode = kind; });
  ShowKind();
  DropResults();
  OfferCalculation();
}

void TwoSampCompForm::ShowKind() {
  const bool sample = session.CompareMode == ReferenceKind::Sample;
  SampOpt.ticked = sample;
  PopOpt.ticked = !sample;
  for (screen::Control* control : {&GSDEqualFrm, &SampSizLbl2, &SampSizTxB2, &SampSiz2_UpD})
    control->visible = sample;
  if (sample)
    ShowSampleWords();
  else
    ShowPopulationWords();
}

void TwoSampCompForm::ShowSampleWords() {
  DescrSecond.text = LoadResString(2910);
  GMLbl2.text = LoadResString(2930);
  GSDLbl2.text = LoadResString(2920);
  DescrInfFrm.text = LoadResString(2970);
  GSDinferLbl.text = LoadResString(2980);
  GMinferLbl.text = LoadResString(2990);
}

void TwoSampCompForm::ShowPopulationWords() {
  DescrSecond.text = LoadResString(3010);
  GMLbl2.text = LoadResString(3030);
  GSDLbl2.text = LoadResString(3020);
  DescrInfFrm.text = LoadResString(3070);
  GSDinferLbl.text = LoadResString(3080);
  GMinferLbl.text = LoadResString(3090);
}

}  // namespace compare
