// The range that the line follows: its menus, scroll bars and the mouse.
#include <algorithm>
#include <cmath>
#include <optional>

#include "analysis/transformations.h"
#include "base/fault.h"
#include "catalog/own_texts.h"
#include "plots/plot_form.h"
#include "plots/regression_line.h"
#include "session/limit_checks.h"

namespace plots {
namespace {

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
  const auto step = [this](screen::Control& menu, Own words, void (PlotForm::*click)()) {
    menu.Click = [this, words, click] {
      Edit(OwnText(words), [this, click] { (this->*click)(); });
    };
  };
  step(MenuLowLim, Own::StepRangeOn, &PlotForm::MenuLowLim_Click);
  step(MenuUpLim, Own::StepRangeOn, &PlotForm::MenuUpLim_Click);
  step(MenuRemDetec, Own::StepRangeOff, &PlotForm::MenuRemDetec_Click);
  const auto highest = [this] {
    return state.CTransf.at(static_cast<std::size_t>(SampleCount(session)));
  };
  const auto lowest = [this] { return state.CTransf.at(1); };
  VScLowLimit.Change = [this, highest] {
    BarMoved(VScLowLimit, highest(), -1, ControleOndergrens);
  };
  // Upward from the highest outcome: the method has it so.
  HScLowLimit.Change = [this, highest] { BarMoved(HScLowLimit, highest(), 1, ControleOndergrens); };
  VScUplimit.Change = [this, highest] { BarMoved(VScUplimit, highest(), -1, ControleBovengrens); };
  HScUplimit.Change = [this, lowest] { BarMoved(HScUplimit, lowest(), 1, ControleBovengrens); };
}

// A limit that stands within its bounds is taken up again.
void PlotForm::MenuLowLim_Click() {
  record.Change([](Given& given) {
    given.DetecOn = true;
    const bool stands =
        DefaultLOQ(given) <= given.LOQ && given.LOQ <= NearestOutcome(given, given.LastInRange - 2);
    if (!stands) ControleOndergrens(given, DefaultLOQ(given));
  });
  OpenPicker(VScLowLimit, HScLowLimit);
  PlotStatus();
}

void PlotForm::MenuUpLim_Click() {
  record.Change([](Given& given) {
    given.DetecOn = true;
    const bool stands =
        NearestOutcome(given, given.FirstInRange + 2) < given.URR && given.URR <= DefaultURR(given);
    if (!stands) ControleBovengrens(given, DefaultURR(given));
  });
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
  record.Change([](Given& given) {
    given.DetecOn = false;
    given.inForce = Estimates::WholeSample;
  });
  flow.RegressionLabel.clear();
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

// A place that no outcome has is passed over.
void PlotForm::BarMoved(const screen::Control& bar, double from, double sign, Check check) {
  flow.MsgText.clear();
  const double t = from + sign * (bar.value * PlotSpan / 100);
  const std::optional<double> value = OutcomeAt(state.Transformation, t);
  if (!value) return;
  const auto move = [&] {
    CheckLimit(check, *value);
    TellComplaint();
    PlotStatus();
  };
  Edit(StepWords(check, *value), move, bar.held);
}

std::string PlotForm::StepWords(Check check, double value) const {
  const Own words = check == Check{ControleOndergrens} ? Own::StepLOQ : Own::StepURR;
  return OwnText(words, {ShownTrimmed(value)});
}

void PlotForm::CheckLimit(Check check, double value) {
  LimitValue = value;
  LimitComplaint complaint;
  record.Change([&](Given& given) { complaint = check(given, value); });
  flow.MsgText = complaint.MsgText;
  flow.MsgTitle = complaint.MsgTitle;
}

// The mouse takes six tenths of the height where the picture has seven: the method has it so.
void PlotForm::PicPlot_MouseDown(double y) {
  if (!Upright()) return;
  flow.MsgText.clear();
  const double below = (y / PicPlot.drawing.ScaleHeight() - 0.2) * 5 / 3;
  const int M = SampleCount(session);
  const double t = state.CTransf.at(static_cast<std::size_t>(M)) - below * PlotSpan;
  const auto value = OutcomeAt(state.Transformation, t);
  const Check check = value ? PickedLimit(*value) : nullptr;
  if (value) LimitValue = *value;
  const auto pick = [&] {
    if (check) CheckLimit(check, *value);
    TellComplaint();
    Activate();
  };
  if (check)
    Edit(StepWords(check, *value), pick);
  else
    pick();
}

// The limit that a click at this outcome means; null for neither.
PlotForm::Check PlotForm::PickedLimit(double value) const {
  const int M = SampleCount(session);
  const bool fitsLOQ = DefaultLOQ(session) <= value && value < NearestOutcome(session, M - 2);
  const bool fitsURR = value > NearestOutcome(session, 3) && value < NearestOutcome(session, M);
  if (LOQActive && fitsLOQ) return ControleOndergrens;
  return !LOQActive && URRActive && fitsURR ? Check{ControleBovengrens} : nullptr;
}

// What a check has put in place of a refused limit shows at once.
void PlotForm::TellComplaint() {
  if (!session.MsgText.empty()) Complain(session.MsgText, session.MsgTitle);
}

}  // namespace plots
