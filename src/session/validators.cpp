#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "session/global_bas.h"

// What a numeric field accepts. All validators take the same steps; a row of constants tells them
// apart. They leave their verdict in InputState and their complaint in MsgText and MsgTitle, and
// show it. A number beyond a double is an infinity here, and so too small or too large.
namespace GlobalBAS {
namespace {

enum InputCode : std::int16_t { kAccepted, kEmpty, kZero, kTooSmall, kTooLarge };

struct Bounds {
  double lower;
  double upper;
  bool clamps;
  int title;
  int tooSmall;
  int tooLarge;
  int hint;
  std::optional<double> standIn = {};  // what stands where nothing valid does
};

constexpr int kReferenceTooLarge = 381;  // the one text that is ours and not the catalogue's

constexpr Bounds kU = {0.01, 99.99, true, 2120, 2125, 2130, 2135, kDefaultU};
constexpr Bounds kD = {0.01, 99.99, true, 2140, 2145, 2150, 2155, kDefaultD};
// GM keeps a refused value and relies on StatusFlags to mark it; GSD is pulled to its limit.
constexpr Bounds kGM = {0.0001, 10000, false, 770, 775, 780, 785};
constexpr Bounds kGSD = {1.001, 1000, true, 790, 795, 800, 805};
constexpr Bounds kOELV = {1E-10, 1E+10, true, 810, 815, 820, 825, kDefaultOELV};
constexpr Bounds kM = {2, 2000, false, 370, 375, 380, 385};
constexpr Bounds kMRef = {2, 30000, true, 370, 375, kReferenceTooLarge, 385};

std::string ComplaintText(int id) {
  if (id == kReferenceTooLarge) return OwnText(Own::ReferenceTooLarge);
  return LoadResString(id);
}

void Begin(Workflow& s, const Bounds& limits) {
  s.MsgTitle = LoadResString(limits.title);
  s.MsgText.clear();
  s.InputState = kAccepted;
}

bool Within(double value, const Bounds& limits) {
  return value >= limits.lower && value <= limits.upper;
}

// 0.01 with its zero, but 1E-10 and 1E+10 without ten of them.
std::string AdviceNumber(double value) {
  constexpr double kManyZeros = 1E-4;
  constexpr double kManyDigits = 1E+6;
  if (value >= kManyZeros && value < kManyDigits) return FileText(value);
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.begin(), digits.end(), value, std::chars_format::scientific);
  std::string text(digits.begin(), end.ptr);
  std::ranges::replace(text, 'e', 'E');
  return text;
}

// What can be entered, and what stands once the entry has been refused.
std::string AdviceOf(const Bounds& limits, double value) {
  const std::optional<double> stands =
      Within(value, limits) ? std::optional(value) : limits.standIn;
  return OwnText(Own::AllowedRange, {AdviceNumber(limits.lower), AdviceNumber(limits.upper)}) +
         " " +
         (stands ? OwnText(Own::NowStands, {AdviceNumber(*stands)}) : OwnText(Own::NothingStands));
}

void Complain(const Workflow& s, const std::string& advice, const Notify& notify) {
  if (s.InputState > kAccepted) notify({s.MsgText, s.MsgTitle, advice});
}

void CheckLimits(Workflow& s, const Bounds& limits, double& value) {
  if (value < limits.lower) {
    s.InputState = kTooSmall;
    s.MsgText = ComplaintText(limits.tooSmall);
    if (limits.clamps) value = limits.lower;
  } else if (value > limits.upper) {
    s.InputState = kTooLarge;
    s.MsgText = ComplaintText(limits.tooLarge);
    if (limits.clamps) value = limits.upper;
  }
}

// A sample size that is no whole number is cut to one, with the code of an empty entry, so that
// the hint comes up. Whole is what a ten-thousandth more leaves the same; a negative number is
// thereby never whole.
bool CutToWhole(Workflow& s, double& value) {
  if (std::trunc(value + 0.0001) == value) return false;
  value = std::trunc(value);
  s.InputState = kEmpty;
  return true;
}

void JudgeValue(Workflow& s, const Bounds& limits, double& value, bool whole) {
  if (whole && CutToWhole(s, value)) return;
  if (value == 0)
    s.InputState = kZero;
  else
    CheckLimits(s, limits, value);
}

void Check(Workflow& s, const Bounds& limits, const Entry& entry, double& value, bool whole,
           const Notify& notify) {
  Begin(s, limits);
  if (entry.text.empty()) {
    s.InputState = kEmpty;
  } else {
    if (entry.touched) value = ReadNumber(entry.text);
    JudgeValue(s, limits, value, whole);
  }
  if (s.InputState == kEmpty || s.InputState == kZero) s.MsgText = LoadResString(limits.hint);
  Complain(s, AdviceOf(limits, value), notify);
}

bool BeginsWithLetter(const std::string& text) {
  const char first = text.front();
  return (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
}

Entry Trimmed(const Entry& entry) { return {Trim(entry.text), entry.touched}; }

}  // namespace

void CheckU(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  Check(s, kU, entry, value, false, notify);
}

void CheckD(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  Check(s, kD, entry, value, false, notify);
}

// A field whose limit is still absent has no value to stand for: its text is read.
void CheckOELV(Workflow& s, const Entry& entry, std::optional<double>& value,
               const Notify& notify) {
  const Entry read = {entry.text, entry.touched || !value};
  double present = value.value_or(0);
  Check(s, kOELV, read, present, false, notify);
  if (!entry.text.empty()) value = present;
}

void CheckGM(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  Check(s, kGM, Trimmed(entry), value, false, notify);
}

void CheckGSD(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  Check(s, kGSD, Trimmed(entry), value, false, notify);
}

void CheckM(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  Check(s, kM, Trimmed(entry), value, true, notify);
}

void CheckMRef(Workflow& s, const Entry& entry, double& value, const Notify& notify) {
  const Entry trimmed = Trimmed(entry);
  if (trimmed.text.empty()) return;
  const Notify afterPull = [&](Complaint complaint) {
    if (s.InputState == kZero) value = kMRef.lower;
    complaint.advice = AdviceOf(kMRef, value);
    notify(complaint);
  };
  Check(s, kMRef, trimmed, value, true, afterPull);
}

void CheckName(Workflow& s, const std::string& text, std::string& name, const Notify& notify) {
  s.MsgTitle = LoadResString(400);
  s.MsgText.clear();
  s.InputState = kAccepted;
  const std::string trimmed = Trim(text);
  if (!trimmed.empty() && trimmed == name) return;
  if (trimmed.empty()) {
    s.InputState = kEmpty;
    s.MsgText = LoadResString(401);
  } else {
    const bool asBefore = !name.empty() && name.front() == trimmed.front();
    if (!asBefore && !BeginsWithLetter(trimmed)) {
      s.InputState = kZero;
      s.MsgText = LoadResString(390);
    }
  }
  name = s.InputState > kAccepted ? std::string() : trimmed;
  Complain(s, OwnText(Own::NoNameStands), notify);
}

bool InRangeOELV(const std::optional<double>& value) { return value && Within(*value, kOELV); }
bool InRangeU(double value) { return Within(value, kU); }
bool InRangeD(double value) { return Within(value, kD); }
bool InRangeGM(double value) { return Within(value, kGM); }
bool InRangeGSD(double value) { return Within(value, kGSD); }
bool InRangeMRef(double value) { return Within(value, kMRef); }

}  // namespace GlobalBAS
