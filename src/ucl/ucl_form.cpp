#include "ucl/ucl_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "ucl/mean_limit.h"

namespace ucl {
namespace {

using UCLBAS::LandSign;
using UCLBAS::LandWatch;

constexpr screen::Colour kGreen{0, 128, 0};
constexpr double kLargestExponent = 701;  // exp of it is shown as a number no more

std::string TwoLines(const std::string& cr, int first, int second) {
  return LoadResString(first) + cr + LoadResString(second);
}

// Shows that the program is at work; however the search ends, the pointer is normal again and the
// progress window gone.
class Busy {
 public:
  explicit Busy(UCLForm& form) : form_(form) { form.busyPointer = true; }
  ~Busy() {
    form_.busyPointer = false;
    form_.landHulp.shown = false;
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  UCLForm& form_;
};

}  // namespace

UCLForm::UCLForm(ExposureSession& record, navigation::Desk& programDesk, screen::Ports& formPorts)
    : SessionForm("UCLForm", navigation::ScreenId::UCL, "TabUCL", record, programDesk, formPorts),
      landHulp(record, formPorts) {
  JahrCmb.Click = [this] { JahrCmb_Click(); };
  LandCmb.Click = [this] { LandCmb_Click(); };
  for (screen::Control* box : {&AMuTxb, &UCLTxB, &PercExTxB}) box->locked = true;
}

void UCLForm::Load() {
  MenuPrint.enabled = false;
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
  if (session.TestTag == "Ex") return;
  EnterOwnTab();
  ShowIdentification();
  ShowStatistics();
  UCLResults();
  ShowWording();
  ShowGate();
  busyPointer = false;
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
  MeanStatistics(session);
  GMuLbl1.text = Shown(session.GMu);
  GSDLbl1.text = Shown(session.GSD);
  AMuTxb.text = Shown(session.AMu);
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
  session.MsgTitle.clear();
  session.MsgText.clear();
  ShowResultControls(!session.TestTag.empty());
  if (!session.TestTag.empty()) {
    JahrLimits(session);
    return;
  }
  WindnrLbl.text = "24";
  // No number of other data waits behind the introduction.
  for (screen::Control* control : {&Methodlbl, &UCLTxB, &PercExTxB}) control->text.clear();
}

void UCLForm::TellLimitBeyondNumbers() {
  Complain(LoadResString(2432) + Shown(session.UCL) + ").", "UCL");
}

void UCLForm::JahrCmb_Click() {
  session.TestTag = "Ap";
  Methodlbl.text = LoadResString(2430);
  WindnrLbl.text = "24b";
  UCLResults();
  if (session.UCL >= kLargestExponent)
    TellLimitBeyondNumbers();
  else
    UCLTxB.text = Shown(Exp(session.UCL));
  PercExTxB.text = session.PercEx == 0 ? "    <1E-16" : Shown(session.PercEx);
  Refresh();
}

// After a fault nothing of the search remains: the screen is back at its introduction.
void UCLForm::LandCmb_Click() {
  const double UCL = session.UCL;
  const double PercEx = session.PercEx;
  try {
    Land();
  } catch (...) {
    session.UCL = UCL;
    session.PercEx = PercEx;
    session.TestTag.clear();
    UCLResults();
    throw;
  }
}

// A refusal leaves the boxes empty: a number of Jahr's must not stand under Land's name.
void UCLForm::Land() {
  session.TestTag = "Ex";
  Methodlbl.text = LoadResString(2431);
  WindnrLbl.text = "24a";
  UCLResults();
  UCLTxB.text.clear();
  PercExTxB.text.clear();
  session.MsgText = LandRefusal(session.M, session.D);
  if (!session.MsgText.empty()) {
    Complain(session.MsgText, session.MsgTitle);
    session.TestTag.clear();
    return;
  }
  SearchLand();
  if (session.UCL < kLargestExponent) {
    UCLTxB.text = Shown(Exp(session.UCL));
  } else {
    UCLTxB.text.clear();
    TellLimitBeyondNumbers();
  }
  Refresh();
}

// Every limit that the search computes is shown, also those of its trial confidences.
void UCLForm::SearchLand() {
  const Busy busy(*this);
  Refresh();
  LandWatch watch;
  watch.Report = [this](const LandWatch& now, LandSign sign) {
    if (sign != LandSign::Limit) {
      landHulp.Follow(now, sign);
      return;
    }
    UCLTxB.text = now.UCL > kLargestExponent ? LoadResString(3447) : Shown(Exp(now.UCL));
    UCLTxB.Refresh();
  };
  landHulp.Begin();
  PercExTxB.text = Shown(ucl::LandCmb(session, watch).A);
}

}  // namespace ucl
