#include "ucl/ucl_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "ucl/mean_limit.h"

namespace ucl {
namespace {

using UCLBAS::LandSign;
using UCLBAS::LandWatch;

constexpr screen::Colour kGreen{0, 128, 0};

std::string TwoLines(const std::string& cr, int first, int second) {
  return LoadResString(first) + cr + LoadResString(second);
}

// The progress window, until the end of the scope however that comes.
class ProgressWindow {
 public:
  explicit ProgressWindow(LandHulpForm& window) : window_(window) { window.Begin(); }
  ~ProgressWindow() { window_.shown = false; }
  ProgressWindow(const ProgressWindow&) = delete;
  ProgressWindow& operator=(const ProgressWindow&) = delete;

 private:
  LandHulpForm& window_;
};

}  // namespace

UCLForm::UCLForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts)
    : SessionForm("UCLForm", navigation::ScreenId::UCL, "TabUCL", sessionRecord, programDesk,
                  formPorts),
      landHulp(sessionRecord.Now(), formPorts) {
  JahrCmb.Click = [this] { JahrCmb_Click(); };
  LandCmb.Click = [this] { LandCmb_Click(); };
  for (screen::Control* box : {&AMuTxb, &UCLTxB, &PercExTxB}) box->locked = true;
}

void UCLForm::Load() {
  caption = LoadResString(2400);
  JahrCmb.text = TwoLines(session.CR, 2415, 2416);
  LandCmb.text = TwoLines(session.CR, 2417, 2418);
  SampSizCmb.text = TwoLines(session.CR, 2419, 2420);
  SampSizCmb.Hide();  // no calculation of a sample size for the mean stands behind it
  ConclFrm.text = LoadResString(2429);
  PercExLbl1.text = "%";
}

void UCLForm::Activate() {
  BasisStatus();
  if (session.TestTag == Extrapolation::Land && record.Mean()) return;
  EnterOwnTab();
  ShowIdentification();
  ShowStatistics();
  UCLResults();
  ShowWording();
  ShowGate();
}

void UCLForm::BasisStatus() {
  RebuildStrip();
  menuExtrPol.enabled = true;
}

void UCLForm::ShowIdentification() {
  NameLbl.text = session.Name;
  SampSizLbl.text = Shown(session.M);
  if (!session.Duration.empty()) SampSizLbl.text += " " + LoadResString(2105) + session.Duration;
  DegreesLbl.text = Shown(session.df);
  for (screen::Control* label : {&DimLbl0, &DimLbl1, &DimLbl2}) label->text = session.Unit;
}

void UCLForm::ShowStatistics() {
  const MeanStatistics mean = MeanStatisticsOf(BasisOf(session));
  Computed& kept = record.Numbers();
  kept.LnGM = mean.LnGM;
  kept.LnGSD = mean.LnGSD;
  GMuLbl1.text = Shown(kept.GMu = mean.GMu);
  GSDLbl1.text = Shown(session.GSD);
  AMuTxb.text = Shown(kept.AMu = mean.AMu);
}

void UCLForm::ShowWording() {
  Frame2.text = LoadResString(session.RegressionOn ? 2832 : 2830);
  Frame2.tip = Frame2.text;
  if (session.RegressionOn) {
    GMuLbl0.text = navigation::RegressionWords(session, "GMg");
    GSDLbl0.text = navigation::RegressionWords(session, "GSDg");
  } else {
    GMuLbl0.text = LoadResString(2010);
    GSDLbl0.text = LoadResString(2008);
  }
  VkrValLbl.text = Shown(session.OELV) + " " + session.Unit;
  if (!session.RefPeriod.empty()) VkrValLbl.text += " \\" + session.RefPeriod;
  PercExLbl0.text = LoadResString(2407);
  UCLLbl.text = LoadResString(2408) + " " + ShownTrimmed(session.D) + LoadResString(2409);
}

// The green button is the recommended one.
void UCLForm::ShowGate() {
  IntroLbl.text = LoadResString(2421);
  for (int row = 2422; row <= 2427; ++row) IntroLbl.text += session.CR + LoadResString(row);
  const bool land = LandIsOffered(session.M, session.D);
  if (land) IntroLbl.text += session.CR + LoadResString(2428);
  LandCmb.visible = land;
  if (land) {
    LandCmb.colour = kGreen;
    JahrCmb.colour.reset();
  } else {
    JahrCmb.colour = kGreen;
  }
}

void UCLForm::ShowResultControls(bool result) {
  for (screen::Control* control : {&MenuVerd, &MenuPrint, &DimLbl2, &UCLLbl, &UCLTxB, &Methodlbl,
                                   &PercExLbl0, &PercExLbl1, &PercExTxB, &ConclFrm})
    control->visible = result;
  IntroFrm.visible = !result;
}

void UCLForm::UCLResults() {
  flow.MsgTitle.clear();
  flow.MsgText.clear();
  const bool method = session.TestTag != Extrapolation::None;
  ShowResultControls(method);
  for (screen::Control* control : {&UCLTxB, &PercExTxB}) control->text.clear();
  if (!method) {
    WindnrLbl.text = "24";
    Methodlbl.text.clear();
  } else if (const MeanResult* result = record.Mean()) {
    ShowResult(*result);
  }
  OfferPicture();
}

void UCLForm::ShowResult(const MeanResult& result) {
  UCLTxB.text = result.UCL < kLargestLogLimit ? Shown(Exp(result.UCL)) : std::string();
  const bool jahr = result.method == Extrapolation::Jahr;
  PercExTxB.text = jahr && result.A == 0 ? "    <1E-16" : Shown(result.A);
}

void UCLForm::TellLimitBeyondNumbers(double UCL) {
  if (UCL >= kLargestLogLimit) Complain(LoadResString(2432) + Shown(UCL) + ").", "UCL");
}

void UCLForm::BeginMethod(Extrapolation method, int methodName, const char* window) {
  flow.TestTag = method;
  record.Drop(method);
  Methodlbl.text = LoadResString(methodName);
  WindnrLbl.text = window;
  UCLResults();
}

void UCLForm::JahrCmb_Click() {
  BeginMethod(Extrapolation::Jahr, 2430, "24b");
  const TestBasis basis = BasisOf(session);
  const JahrLimit found = JahrLimits(basis, MeanStatisticsOf(basis).AMu);
  record.Keep(MeanResult{Extrapolation::Jahr, found.UCL, found.PercEx});
  record.Numbers().PercEx = found.PercEx;
  UCLResults();
  TellLimitBeyondNumbers(found.UCL);
  Refresh();
}

// After a fault nothing of the search remains: the screen is back at its introduction. A refusal
// leaves the boxes empty: a number of Jahr's must not stand under Land's name.
void UCLForm::LandCmb_Click() {
  BeginMethod(Extrapolation::Land, 2431, "24a");
  flow.MsgText = LandRefusal(session.M, session.D);
  if (!session.MsgText.empty()) {
    Complain(session.MsgText, session.MsgTitle);
    flow.TestTag = Extrapolation::None;
    OfferPicture();
    return;
  }
  try {
    SearchLand();
  } catch (...) {
    flow.TestTag = Extrapolation::None;
    UCLResults();
    throw;
  }
  UCLResults();
  TellLimitBeyondNumbers(session.UCL);
  Refresh();
}

// Every limit that the search computes is shown, also those of its trial confidences.
void UCLForm::SearchLand() {
  const screen::Busy busy(*this);
  Refresh();
  LandWatch watch;
  watch.Report = [this](const LandWatch& now, LandSign sign) {
    if (sign != LandSign::Limit) {
      landHulp.Follow(now, sign);
      return;
    }
    UCLTxB.text = now.UCL > kLargestLogLimit ? LoadResString(3447) : Shown(Exp(now.UCL));
    UCLTxB.Refresh();
  };
  const ProgressWindow window(landHulp);
  const LandResult found = ucl::LandCmb(BasisOf(session), watch);
  record.Keep(MeanResult{Extrapolation::Land, found.UCL, found.A});
  record.Numbers().PercEx = found.jahr.PercEx;
  record.Numbers().LandConfidence = found.LandConfidence;
}

}  // namespace ucl
