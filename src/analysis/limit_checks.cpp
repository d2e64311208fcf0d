#include "analysis/limit_checks.h"

#include <algorithm>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace analysis {
namespace {

constexpr double kBelowLowest = 0.95;   // default LOQ, as a part of the lowest outcome
constexpr double kAboveHighest = 1.05;  // default URR, as a multiple of the highest outcome
constexpr int kLeastInRange = 3;        // a line through fewer points tells nothing

// C(i); an index outside 1 to M means the nearer end, never the median in C(0).
double Outcome(const ExposureSession& s, int i) {
  const int count = SampleCount(s);
  if (count < 1 || s.C.size() <= static_cast<std::size_t>(count)) {
    fault::Throw(FaultKind::Subscript);
  }
  return s.C[static_cast<std::size_t>(std::clamp(i, 1, count))];
}

double DefaultLOQ(const ExposureSession& s) { return Checked(kBelowLowest * Outcome(s, 1)); }

double DefaultURR(const ExposureSession& s) {
  return Checked(kAboveHighest * Outcome(s, SampleCount(s)));
}

// The value as it was entered, then what is wrong with it.
void Refuse(ExposureSession& s, double t, int textId) {
  s.MsgText = GlobalBAS::Str(t) + " " + LoadResString(textId);
}

// 1 and the number of outcomes up to and with `t`, so that a tie with the limit falls outside.
int FirstAbove(const ExposureSession& s, double t) {
  int first = 1;
  for (int i = 1; i <= SampleCount(s) - 1 && !(Outcome(s, i) > t); ++i) ++first;
  return first;
}

int LastBelow(const ExposureSession& s, double t) {
  int last = SampleCount(s);
  for (int i = SampleCount(s); i >= 2 && !(Outcome(s, i) < t); --i) --last;
  return last;
}

// The limit that counts for the entered `t`; the first rule that fires decides.
double SettleLower(ExposureSession& s, double t) {
  const int count = SampleCount(s);
  if (Checked(Outcome(s, count) * 0.9999) <= t) {
    Refuse(s, t, 1745);
    return DefaultLOQ(s);
  }
  if (count >= kLeastInRange && t > Outcome(s, s.LastInRange - 2)) {
    Refuse(s, t, 1737);
    return Outcome(s, s.LastInRange - 3);
  }
  if (DefaultLOQ(s) > t) {
    Refuse(s, t, 1744);
    return DefaultLOQ(s);
  }
  if (t >= Outcome(s, 1)) s.FirstInRange = static_cast<std::int16_t>(FirstAbove(s, t));
  return t;
}

double SettleUpper(ExposureSession& s, double t) {
  const int count = SampleCount(s);
  if (Checked(Outcome(s, 1) * 1.0001) >= t) {
    Refuse(s, t, 1735);
    return DefaultURR(s);
  }
  if (count >= kLeastInRange && t < Outcome(s, s.FirstInRange + 2)) {
    Refuse(s, t, 1736);
    return Outcome(s, s.FirstInRange + 3);
  }
  if (Checked(kAboveHighest * 1.0001 * Outcome(s, count)) < t) {
    Refuse(s, t, 1743);
    return DefaultURR(s);
  }
  if (!(t > Outcome(s, count))) s.LastInRange = static_cast<std::int16_t>(LastBelow(s, t));
  return t;
}

}  // namespace

void ControleOndergrens(ExposureSession& s, double t) {
  s.MsgTitle = LoadResString(1738);
  s.MsgText.clear();
  s.FirstInRange = 1;
  if (!s.DetecOn) return;
  t = SettleLower(s, t);
  ControleDetectieBereik(s, t);
  s.LOQ = t;
}

void ControleBovengrens(ExposureSession& s, double t) {
  s.MsgTitle = LoadResString(1735);
  s.MsgText.clear();
  s.LastInRange = static_cast<std::int16_t>(SampleCount(s));
  if (!s.DetecOn) return;
  t = SettleUpper(s, t);
  ControleDetectieBereik(s, t);
  s.URR = t;
}

// The method also moves the copy `t` to the default of the end that it resets. Nobody reads that
// copy again, so it stays: LOQ and URR keep the value that led to the message.
void ControleDetectieBereik(ExposureSession& s, double /*t*/) {
  const int count = SampleCount(s);
  s.NInRange = static_cast<std::int16_t>(s.LastInRange - s.FirstInRange + 1);
  if (s.NInRange >= 2) return;
  s.MsgText = LoadResString(1739);
  if (s.FirstInRange > count - 1) {
    s.MsgText += LoadResString(1740);
    s.FirstInRange = 1;
  } else if (s.LastInRange < 2) {
    s.MsgText += LoadResString(1741);
    s.LastInRange = static_cast<std::int16_t>(count);
  }
}

}  // namespace analysis
