#include "session/limit_checks.h"

#include <algorithm>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace {

constexpr int kLeastInRange = 3;  // a line through fewer points tells nothing

// The value as it was entered, then what is wrong with it.
std::string Refusal(double t, int textId) {
  return GlobalBAS::Str(t) + " " + LoadResString(textId);
}

// 1 and the number of outcomes up to and with `t`, so that a tie with the limit falls outside.
int FirstAbove(const Given& g, double t) {
  int first = 1;
  for (int i = 1; i <= SampleCount(g) - 1 && !(NearestOutcome(g, i) > t); ++i) ++first;
  return first;
}

int LastBelow(const Given& g, double t) {
  int last = SampleCount(g);
  for (int i = SampleCount(g); i >= 2 && !(NearestOutcome(g, i) < t); --i) --last;
  return last;
}

// The limit that counts for the entered `t`, and the complaint; the first rule that fires decides.
double SettleLower(Given& g, double t, std::string& complaint) {
  const int count = SampleCount(g);
  if (Checked(NearestOutcome(g, count) * 0.9999) <= t) {
    complaint = Refusal(t, 1745);
    return DefaultLOQ(g);
  }
  if (count >= kLeastInRange && t > NearestOutcome(g, g.LastInRange - 2)) {
    complaint = Refusal(t, 1737);
    return NearestOutcome(g, g.LastInRange - 3);
  }
  if (DefaultLOQ(g) > t) {
    complaint = Refusal(t, 1744);
    return DefaultLOQ(g);
  }
  if (t >= NearestOutcome(g, 1)) g.FirstInRange = static_cast<std::int16_t>(FirstAbove(g, t));
  return t;
}

double SettleUpper(Given& g, double t, std::string& complaint) {
  const int count = SampleCount(g);
  if (Checked(NearestOutcome(g, 1) * 1.0001) >= t) {
    complaint = Refusal(t, 1735);
    return DefaultURR(g);
  }
  if (count >= kLeastInRange && t < NearestOutcome(g, g.FirstInRange + 2)) {
    complaint = Refusal(t, 1736);
    return NearestOutcome(g, g.FirstInRange + 3);
  }
  if (Checked(kAboveHighest * 1.0001 * NearestOutcome(g, count)) < t) {
    complaint = Refusal(t, 1743);
    return DefaultURR(g);
  }
  if (!(t > NearestOutcome(g, count))) g.LastInRange = static_cast<std::int16_t>(LastBelow(g, t));
  return t;
}

// A range that has collapsed outweighs what was wrong with the limit.
void CountAndTell(Given& g, LimitComplaint& complaint) {
  const std::string collapsed = ControleDetectieBereik(g);
  if (!collapsed.empty()) complaint.MsgText = collapsed;
}

void Tell(ExposureSession& s, const LimitComplaint& complaint) {
  s.MsgText = complaint.MsgText;
  s.MsgTitle = complaint.MsgTitle;
}

}  // namespace

double NearestOutcome(const Given& g, int i) {
  const int count = SampleCount(g);
  if (count < 1 || g.C.size() <= static_cast<std::size_t>(count)) {
    fault::Throw(FaultKind::Subscript);
  }
  return g.C[static_cast<std::size_t>(std::clamp(i, 1, count))];
}

double DefaultLOQ(const Given& g) { return Checked(kBelowLowest * NearestOutcome(g, 1)); }

double DefaultURR(const Given& g) {
  return Checked(kAboveHighest * NearestOutcome(g, SampleCount(g)));
}

LimitComplaint ControleOndergrens(Given& g, double t) {
  LimitComplaint complaint{"", LoadResString(1738)};
  g.FirstInRange = 1;
  if (!g.DetecOn) return complaint;
  t = SettleLower(g, t, complaint.MsgText);
  CountAndTell(g, complaint);
  g.LOQ = t;
  g.LOQStated = t != DefaultLOQ(g);
  return complaint;
}

LimitComplaint ControleBovengrens(Given& g, double t) {
  LimitComplaint complaint{"", LoadResString(1735)};
  g.LastInRange = static_cast<std::int16_t>(SampleCount(g));
  if (!g.DetecOn) return complaint;
  t = SettleUpper(g, t, complaint.MsgText);
  CountAndTell(g, complaint);
  g.URR = t;
  g.URRStated = t != DefaultURR(g);
  return complaint;
}

// A stated limit that nothing is wrong with stays stated, also where it meets the default.
LimitComplaint RecheckRange(Given& g) {
  const bool loqStated = g.LOQStated;
  const bool urrStated = g.URRStated;
  g.FirstInRange = 1;
  g.LastInRange = static_cast<std::int16_t>(SampleCount(g));
  if (!loqStated) g.LOQ = DefaultLOQ(g);
  if (!urrStated) g.URR = DefaultURR(g);
  const LimitComplaint lower = ControleOndergrens(g, g.LOQ);
  const LimitComplaint upper = ControleBovengrens(g, g.URR);
  g.LOQStated = g.LOQStated || (loqStated && lower.MsgText.empty());
  g.URRStated = g.URRStated || (urrStated && upper.MsgText.empty());
  return lower.MsgText.empty() ? upper : lower;
}

// The method also moves a copy of the limit to the default of the end that it resets. Nobody reads
// that copy, so LOQ and URR keep the value that led to the message.
std::string ControleDetectieBereik(Given& g) {
  const int count = SampleCount(g);
  g.NInRange = static_cast<std::int16_t>(g.LastInRange - g.FirstInRange + 1);
  if (g.NInRange >= 2) return {};
  std::string text = LoadResString(1739);
  if (g.FirstInRange > count - 1) {
    text += LoadResString(1740);
    g.FirstInRange = 1;
  } else if (g.LastInRange < 2) {
    text += LoadResString(1741);
    g.LastInRange = static_cast<std::int16_t>(count);
  }
  return text;
}

void ControleOndergrens(ExposureSession& s, double t) {
  Tell(s, ControleOndergrens(static_cast<Given&>(s), t));
}

void ControleBovengrens(ExposureSession& s, double t) {
  Tell(s, ControleBovengrens(static_cast<Given&>(s), t));
}

void ControleDetectieBereik(ExposureSession& s, double /*t*/) {
  const std::string text = ControleDetectieBereik(static_cast<Given&>(s));
  if (!text.empty()) s.MsgText = text;
}
