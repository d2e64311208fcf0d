// The range that the line follows: its menus, scroll bars and the mouse.
#include <algorithm>
#include <cmath>
#include <optional>

#include "analysis/limit_checks.h"
#include "analysis/transformations.h"
#include "base/fault.h"
#include "plots/plot_form.h"
#include "plots/regression_line.h"

namespace plots {
namespace {

constexpr double kBelowLowest = 0.95;
constexpr double kAboveHighest = 1.05;

// C(i); an index outside 1 to M means the nearer end.
double Outcome(const ExposureSession& s, int i) {
  return s.C.at(static_cast<std::size_t>(std::clamp(i, 1, SampleCount(s))));
}

double DefaultLOQ(const ExposureSession& s) { return Checked(kBelowLowest * Outcome(s, 1)); }

double DefaultURR(const ExposureSession& s) {
  return Checked(kAboveHighest * Outcome(s, SampleCount(s)));
}

// Beyond the ends of the frame there may be places that no outcome has.
std::optional<double> OutcomeAt(const std::string& Transformation, double CTransf) {
  try {
    return analysis::InverseTransform(Transformation, CTransf);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

int BarValue(double fraction) {
  return static_cast<int>(std::lround(100 * std::clamp(fraction, 0.0, 1.0)));
}

}  // namespace

void PlotForm::ConnectLimits() {
  MenuLowLim.Click = [this] { MenuLowLim_Click(); };
  MenuUpLim.Click = [this] { MenuUpLim_Click(); };
  MenuRemDetec.Click = [this] { MenuRemDetec_Click(); };
  const auto highest = [this] { return session.LnC.at(static_cast<std::size_t>(session.M)); };
  const auto lowest = [this] { return session.LnC.at(1); };
  VScLowLimit.Change = [this, highest] {
    BarMoved(VScLowLimit, highest(), -1, analysis::ControleOndergrens);
  };
  // Upward from the highest outcome: the method has it so.
  HScLowLimit.Change = [this, highest] {
    BarMoved(HScLowLimit, highest(), 1, analysis::ControleOndergrens);
  };
  VScUplimit.Change = [this, highest] {
    BarMoved(VScUplimit, highest(), -1, analysis::ControleBovengrens);
  };
  HScUplimit.Change = [this, lowest] {
    BarMoved(HScUplimit, lowest(), 1, analysis::ControleBovengrens);
  };
}

void PlotForm::MenuLowLim_Click() {
  session.DetecOn = true;
  const bool stands = DefaultLOQ(session) <= session.LOQ &&
                      session.LOQ <= Outcome(session, session.LastInRange - 2);
  if (!stands) session.LOQ = DefaultLOQ(session);
  OpenPicker(VScLowLimit, HScLowLimit);
  PlotStatus();
}

void PlotForm::MenuUpLim_Click() {
  session.DetecOn = true;
  const bool stands = Outcome(session, session.FirstInRange + 2) < session.URR &&
                      session.URR <= DefaultURR(session);
  if (!stands) session.URR = DefaultURR(session);
  OpenPicker(VScUplimit, HScUplimit);
  PlotStatus();
}

// Either menu marks the lower limit as the one that the mouse picks: the method has it so.
void PlotForm::OpenPicker(screen::Control& upright, screen::Control& across) {
  LOQActive = true;
  URRActive = false;
  HideBars();
  screen::Control& bar = Upright() ? upright : across;
  bar.enabled = true;
  bar.Show();
  SetFocus(bar);  // its arrow keys move the limit, too
}

void PlotForm::MenuRemDetec_Click() {
  ResetAll();
  session.DetecOn = false;
  session.RegressionOn = false;
  session.RegressionLabel.clear();
  session.LOQ = DefaultLOQ(session);
  session.URR = DefaultURR(session);
  session.FirstInRange = 1;
  session.LastInRange = session.NInRange = static_cast<std::int16_t>(SampleCount(session));
  DegreesOfFreedom(session);
  LogMoments(session, session.GM, session.GSD);
  PlotStatus();
}

void PlotForm::ResetAll() {
  LOQActive = false;
  URRActive = false;
  HideBars();
}

void PlotForm::HideBars() {
  for (screen::Control* bar : {&VScLowLimit, &VScUplimit, &HScLowLimit, &HScUplimit}) {
    bar->Hide();
    bar->enabled = false;
  }
}

// With room for the arrows of a bar, so that its slide runs along the axis.
void PlotForm::PlaceBars() {
  constexpr double kArrow = 280;
  const double W = PicPlot.drawing.ScaleWidth();
  const double H = PicPlot.drawing.ScaleHeight();
  const PlotWBas::BarRoom room = PlotWBas::BarRoomOf(W, H);
  for (screen::Control* bar : {&VScLowLimit, &VScUplimit})
    bar->place = {room.left, 0.2 * H - kArrow, room.thickness, 0.7 * H + 2 * kArrow};
  for (screen::Control* bar : {&HScLowLimit, &HScUplimit})
    bar->place = {0.2 * W - kArrow, room.top, 0.6 * W + 2 * kArrow, room.thickness};
  for (screen::Control* bar : {&VScLowLimit, &VScUplimit, &HScLowLimit, &HScUplimit}) {
    const bool fits = !AnnexE() && Upright() == (bar == &VScLowLimit || bar == &VScUplimit);
    if (fits) continue;
    bar->Hide();
    bar->enabled = false;
  }
}

void PlotForm::FollowLimits(const PlotWBas::LimitMark& LOQ, const PlotWBas::LimitMark& URR) {
  screen::Control& low = Upright() ? VScLowLimit : HScLowLimit;
  screen::Control& up = Upright() ? VScUplimit : HScUplimit;
  if (LOQActive) {
    low.value = BarValue(LOQ.fraction);
    low.Show();
  }
  if (up.visible) up.value = BarValue(URR.fraction);
}

void PlotForm::BarMoved(const screen::Control& bar, double from, double sign, Check check) {
  session.MsgText.clear();
  const double t = Checked(from + sign * (bar.value * PlotSpan / 100));
  LimitValue = analysis::InverseTransform(state.Transformation, t);
  check(session, LimitValue);
  if (!Complained()) PlotStatus();
}

// The mouse takes six tenths of the height where the picture has seven: the method has it so.
void PlotForm::PicPlot_MouseDown(double y) {
  if (!Upright()) return;
  session.MsgText.clear();
  const double below = (y / PicPlot.drawing.ScaleHeight() - 0.2) * 5 / 3;
  const int M = SampleCount(session);
  const double t = Checked(session.LnC.at(static_cast<std::size_t>(M)) - below * PlotSpan);
  if (const auto value = OutcomeAt(state.Transformation, t)) {
    LimitValue = *value;
    const bool fitsLOQ = DefaultLOQ(session) <= *value && *value < Outcome(session, M - 2);
    const bool fitsURR = *value > Outcome(session, 3) && *value < Outcome(session, M);
    if (LOQActive && fitsLOQ)
      analysis::ControleOndergrens(session, *value);
    else if (!LOQActive && URRActive && fitsURR)
      analysis::ControleBovengrens(session, *value);
  }
  if (!Complained()) Activate();
}

bool PlotForm::Complained() {
  if (session.MsgText.empty()) return false;
  Complain(session.MsgText, session.MsgTitle);
  return true;
}

}  // namespace plots
