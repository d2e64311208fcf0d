// The detection range, the limits, the reference values, and what closing leaves.
#include <algorithm>
#include <cmath>

#include "tests/walks/model.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

constexpr double kDefaultOELV = 1;
constexpr double kDefaultU = 95;
constexpr double kDefaultD = 70;

Range RangeOf(const Seen& seen) { return {seen.FirstInRange, seen.LastInRange}; }

std::string Told(const Range& range) { return Word(range.first) + " to " + Word(range.last); }

bool OnRange(const Scene& scene) {
  std::string text;
  const std::string command = scene.step.Command();
  return scene.Typed("DetecLTxb", text) || scene.Typed("DetecUTxb", text) || command == "bar" ||
         command == "drag" || command == "plotclick" || command == "key" ||
         !scene.step.boxes.empty();
}

// What the checks of both limits make of those of before for another series.
bool SettledAnew(const Outcomes& series, const Scene& scene) {
  const double LOQ = scene.before.LOQ;
  const double URR = scene.before.URR;
  const DetectionLimits all{LOQ, URR, {1, static_cast<int>(series.size())}};
  const Seen& after = scene.after;
  for (const DetectionLimits& limits : {WithUpper(series, WithLower(series, all, LOQ), URR),
                                        WithLower(series, WithUpper(series, all, URR), LOQ)})
    if (after.LOQ == limits.LOQ && after.URR == limits.URR && RangeOf(after) == limits.range)
      return true;
  return false;
}

bool ValidOELV(const std::optional<double>& value) {
  return value && *value >= 1E-10 && *value <= 1E+10;
}

std::optional<double> TypedOELV(const std::string& text, const std::optional<double>& old) {
  if (Blank(text)) return old;
  const double value = TypedNumber(text);
  return value == 0 ? 0 : std::clamp(value, 1E-10, 1E+10);
}

// A key that was meant for another field steps this one when what it holds is refused: the default
// stands in it, and the focus stays.
int LeftTo(const Scene& scene, const std::string& field) {
  const std::string command = scene.step.Command();
  const bool stayed = !scene.step.meant.empty() && scene.step.Rest() != field &&
                      scene.before.focus == field && scene.after.focus == field;
  if (!stayed) return 0;
  return command == "up" ? 1 : command == "down" ? -1 : 0;
}

double TypedPercent(const std::string& text, double old) {
  if (Blank(text)) return old;
  const double value = TypedNumber(text);
  return value == 0 ? 0 : std::clamp(value, 0.01, 99.99);
}

// The value of a percent field behind the step.
double GivenPercent(const Scene& scene, const char* field, double old) {
  std::string text;
  if (!scene.On("GrenzenForm")) return old;
  if (scene.Typed(field, text)) return TypedPercent(text, old);
  const int direction = scene.Stepped(field);
  return direction == 0 ? old : SteppedPercent(old, direction);
}

bool Same(double value, double given, double standard) {
  return value == given || (given < 0.01 && value == standard);
}

double TypedReferenceSize(const std::string& text, double old) {
  if (Blank(text)) return old;
  const double value = TypedNumber(text);
  if (std::trunc(value + 0.0001) != value) return std::trunc(value);
  return value == 0 ? 2 : std::clamp(value, 2.0, 30000.0);
}

double TypedReferenceGSD(const std::string& text, double old) {
  if (Blank(text)) return old;
  const double value = TypedNumber(text);
  return value == 0 ? 0 : std::clamp(value, 1.001, 1000.0);
}

// One reference value: typed, stepped, or, when it was never given, that of the current data.
struct ReferenceRule {
  const char* name;
  const char* field;
  double Seen::*value;
  double Seen::*current;
  double (*typed)(const std::string&, double);
  double (*stepped)(double, int);
};

double TypedReferenceGM(const std::string& text, double old) {
  return Blank(text) ? old : TypedNumber(text);
}

const ReferenceRule kReferences[] = {
    {"M2", "SampSizTxB2", &Seen::M2, &Seen::M, TypedReferenceSize, SteppedM2},
    {"GM2", "GMTxB2", &Seen::GM2, &Seen::GM, TypedReferenceGM, SteppedGM2},
    {"GSD2", "GSDTxB2", &Seen::GSD2, &Seen::GSD, TypedReferenceGSD, SteppedGSD2},
};

double GivenReference(const Scene& scene, const ReferenceRule& rule) {
  double old = scene.before.*rule.value;
  std::string text;
  if (scene.On("TwoSampCompForm") && scene.Typed(rule.field, text)) return rule.typed(text, old);
  if (scene.On("TwoSampCompForm") && scene.Stepped(rule.field) != 0)
    return rule.stepped(old, scene.Stepped(rule.field));
  return old;
}

}  // namespace

// Which outcomes lie in range follows from the limits; only a refused limit leaves both at odds.
void Model::AdvanceRange(const Scene& scene) {
  const Seen& after = scene.after;
  if (!complete_ || after.ModifyMode || after.Count() == 0 || scene.StepsBack()) return;
  const Range held = RangeOf(after);
  // Fewer than two are refused, and their count is told all the same.
  if (after.NInRange != held.Count() && after.NInRange >= 2)
    scene.findings.Add("range", Word(after.NInRange) + " outcomes in range " + Told(held));
  const Range all{1, after.Count()};
  const Range counted = after.DetecOn ? Counted(series_, after.LOQ, after.URR) : all;
  const Seen& before = scene.before;
  // Trying another M leaves the series and its range as they are.
  const double M = before.ModifyMode ? MBeforeModify_ : before.M;
  const bool sameSeries = after.M == M && !(edited_ && otherOutcomes_);
  const bool carried = after.DetecOn && before.DetecOn && sameSeries;
  const bool first = held.first == counted.first ||
                     (carried && after.LOQ == before.LOQ && held.first == before.FirstInRange);
  const bool last = held.last == counted.last ||
                    (carried && after.URR == before.URR && held.last == before.LastInRange);
  const bool settled = after.DetecOn && OnRange(scene);
  if ((first && last) || settled) return;
  if (after.DetecOn && !sameSeries && SettledAnew(series_, scene)) return;
  scene.findings.Add("range", "in range are " + Told(held) + ", by the limits " + Told(counted));
}

void Model::AdvanceLimits(const Scene& scene) {
  const Seen& after = scene.after;
  std::optional<double> given = scene.before.OELV;
  std::string text;
  if (scene.On("GrenzenForm") && scene.Typed("VkrValTxB", text)) given = TypedOELV(text, given);
  if (const int direction = scene.Stepped("VkrValTxB"); direction != 0)
    given = SteppedOELV(given, direction);
  else if (const int other = LeftTo(scene, "VkrValTxB"); other != 0 && !ValidOELV(given))
    given = SteppedOELV(kDefaultOELV, other);
  const bool standard = !ValidOELV(given) && after.OELV == kDefaultOELV;
  if (after.OELV != given && !standard)
    scene.findings.Add("limits", "OELV is " + Word(after.OELV.value_or(-1)) + ", given was " +
                                     Word(given.value_or(-1)));
  const double U = GivenPercent(scene, "AlphaTxb", scene.before.U);
  if (!Same(after.U, U, kDefaultU))
    scene.findings.Add("limits", "U is " + Word(after.U) + ", given was " + Word(U));
  const double D = GivenPercent(scene, "DeltaTxb", scene.before.D);
  if (!Same(after.D, D, kDefaultD))
    scene.findings.Add("limits", "D is " + Word(after.D) + ", given was " + Word(D));
}

void Model::AdvanceReference(const Scene& scene) {
  if (scene.after.M == 0) return;
  for (const ReferenceRule& rule : kReferences) {
    const double given = GivenReference(scene, rule);
    const double held = scene.after.*rule.value;
    const bool opened = scene.Chosen("menuopen") && held == 0;
    // A value out of its range is pulled to it when its field is next left.
    const bool pulled = rule.value == &Seen::GSD2 && held == std::clamp(given, 1.001, 1000.0);
    if (held == given || pulled || (given == 0 && held == scene.after.*rule.current) || opened)
      continue;
    scene.findings.Add("reference",
                       std::string(rule.name) + " is " + Word(held) + ", given was " + Word(given));
  }
}

// Nothing of a closed series is left but the limits.
void Model::AdvanceClose(const Scene& scene) {
  const Seen& after = scene.after;
  const bool closing = scene.Chosen("Menuclose") || scene.OptionPressed() ||
                       scene.Clicked("RawOpt") || scene.Clicked("DesOpt") ||
                       scene.Arrived("BasisForm");
  if (after.M != 0 || !after.Name.empty() || scene.before.M == 0 || !closing) return;
  lastLimit.reset();
  std::string left;
  const std::pair<const char*, bool> rests[] = {{"GM", after.GM != 0},
                                                {"GSD", after.GSD != 0},
                                                {"df", after.df != 0},
                                                {"M2", after.M2 != 0},
                                                {"GM2", after.GM2 != 0},
                                                {"GSD2", after.GSD2 != 0},
                                                {"AMu", after.AMu != 0},
                                                {"SigDigits", after.SigDigits != 0},
                                                {"DetecOn", after.DetecOn},
                                                {"RegressionOn", after.RegressionOn},
                                                {"ModifyMode", after.ModifyMode},
                                                {"TestTag", !after.TestTag.empty()},
                                                {"CompareMode", !after.CompareMode.empty()}};
  for (const auto& [field, rest] : rests)
    if (rest) left += std::string(" ") + field;
  if (!left.empty()) scene.findings.Add("close", "the closed set has left" + left);
}

}  // namespace walks
