#include "compliance/perc_ex_form.h"

#include "catalog/catalog.h"

namespace compliance {

PercExForm::PercExForm(Record& sessionRecord, navigation::Desk& programDesk,
                       screen::Ports& formPorts)
    : SessionForm("PercExForm", navigation::ScreenId::PercEx, "TabPercEx", sessionRecord,
                  programDesk, formPorts) {
  AddTestButtons();
  AddVerdictRows();
  SampSizeCkb.Click = [this] { SampSizeCkb_Click(); };
  for (screen::Control* box :
       {&PercExTxB0, &PercExTxB1, &PercExTxB2, &DegrMinTxb, &PercExTxB3, &SampMinTxB})
    box->locked = true;
}

void PercExForm::AddTestButtons() {
  for (const ComplianceTest* test : ComplianceTests()) {
    screen::Control& button =
        testButtons_.emplace_back(*this, screen::Kind::CommandButton, std::string(test->button));
    button.home = TestsFrm.name;
    button.text = TextOf(test->buttonCaption);
    if (test->buttonTip) button.tip = TextOf(*test->buttonTip);
    button.Click = [this, tag = test->tag] { Run(tag); };
  }
}

void PercExForm::Load() {
  loaded = true;
  caption = LoadResString(2304);
  CommentLbl.Hide();
  ComplianceLbl.Hide();
}

void PercExForm::Activate() {
  EnterOwnTab();
  BasisStatus();
  ShowWording();
  SampsizeFrm.Hide();
  SampSizeCkb.text = LoadResString(2302);
  SampSizeCkb.ticked = false;
  ClearSampleSize();
  DimLbl4.text = "%";
}

void PercExForm::BasisStatus() {
  WindnrLbl.text = "23";
  DimLbl4.text.clear();
  CommentLbl.Hide();
  ShowHeader();
  ShowVerdicts();
  ShowIntroduction();
  TestLayout();
  RebuildStrip();
  menuExtrPol.enabled = session.LimitsOk;
}

void PercExForm::ShowHeader() {
  NameLbl.text = session.Name;
  SampSizLbl.text = Shown(session.M);
  DegreesLbl.text = Shown(session.df);
  GMLbl.text = ShownEstimate(session.GM);
  GSDLbl.text = ShownEstimate(session.GSD);
  DimLbl0.text = session.Unit;
  DimLbl1.text.clear();
  VkrValLbl1.text = LimitText(" \\ ");
}

// The limit value with its unit and, where one is stated, its reference period.
std::string PercExForm::LimitText(const std::string& separator) const {
  std::string text = Shown(session.OELV) + " " + session.Unit;
  if (!session.RefPeriod.empty()) text += separator + session.RefPeriod;
  return text;
}

void PercExForm::ShowIntroduction() {
  const std::string& cr = session.CR;
  auto text = [](int row) { return LoadResString(row); };
  // The rule on the sampling duration is the first item of the list, as its dash tells.
  std::string intro = text(2340) + cr + text(2346) + text(2342) + text(2344) + cr + text(2348) +
                      cr + text(2350) + cr + text(2352) + cr + cr + text(2354) +
                      ShownTrimmed(session.M) + text(2355);
  if (session.OELV.value_or(0) > 0 && !session.noEstimates) {
    const double distance = StandardisedDistance(BasisOf(session));
    intro += text(2357) + " = " + ShownTrimmed(distance) + " " + text(2358);
  }
  IntroLbl.text = intro;
}

void PercExForm::ShowWording() {
  const int frame = session.RegressionOn ? 2832 : 2830;
  Frame2.text = LoadResString(frame);
  Frame2.tip = Frame2.text;
  if (session.RegressionOn) {
    GMLbl0.text = navigation::RegressionWords(session, "GMg");
    GSDLbl0.text = navigation::RegressionWords(session, "GSDg");
  } else {
    GMLbl0.text = LoadResString(2006);
    GSDLbl0.text = LoadResString(2008);
  }
}

// Only a test that finds the fraction has a third row.
void PercExForm::ShowResultControls(const ComplianceTest* test) {
  for (screen::Control* control : {&MenuVerd, &MenuPrint, &PercExLbl0, &PercExLbl1, &PercExTxB0,
                                   &PercExTxB1, &DimLbl2, &DimLbl3, &CommentLbl})
    control->visible = test != nullptr;
  const bool fraction = test && !test->words(session).fraction.empty();
  for (screen::Control* control : {&PercExLbl2, &PercExTxB2, &DimLbl4}) control->visible = fraction;
  IntroFrm.visible = test == nullptr;
}

void PercExForm::TestLayout() {
  DimLbl2.text = "%";
  DimLbl3.text = session.Unit;
  CommentLbl.Hide();
  const ComplianceTest* test = FindTest(session.TestTag);
  ShowResultControls(test);
  if (test) {
    ShowResult(*test);
  } else {
    UTLFrm.text = LoadResString(2320);
    ComplianceLbl.Hide();
    OfferSampleSize(false);
  }
  if (!(session.OELV.value_or(0) > 0)) {
    desk.Open(navigation::ScreenId::Basis);
    return;
  }
  VkrValLbl1.text = LimitText(" \\  ");
}

}  // namespace compliance
