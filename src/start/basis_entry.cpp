#include <algorithm>
#include <cmath>
#include <utility>

#include "catalog/own_texts.h"
#include "start/basis_form.h"

// The fields of the start screen: what becomes of an entry, and where the user goes from it.
namespace start {

void BasisForm::WireFields() {
  auto field = [this](screen::Control& box, const screen::Control& frame, const char* window,
                      const screen::Handler& leave) {
    box.GotFocus = [this, &box, window] {
      ShowFieldNumber(box, window);
      box.selectAll = true;
      taken_ = nullptr;
    };
    // The choice of other data takes a field away with what stood in it.
    box.EnterKey = [&box, &frame, leave] {
      if (frame.visible && !box.locked) leave();
    };
    box.LostFocus = [this, &box] {
      if (std::exchange(taken_, nullptr) != &box || box.touched) box.EnterKey();
    };
  };
  field(NameTxB, IdentFrame, "4", [this] { LeaveName(); });
  field(SampSizTxB, IdentFrame, "3a", [this] { LeaveSampleSize(); });
  field(GMTxB, DescriptFrame, "14", [this] { LeaveStatistic(GMTxB); });
  field(GSDTxB, DescriptFrame, "20", [this] { LeaveStatistic(GSDTxB); });
  SampSizTxB.TabKey = [this] { TabFrom(SampSizTxB, CmdContinu); };
  GSDTxB.TabKey = [this] { TabFrom(GSDTxB, Tabs); };
  SampSize_UpD.StepUp = [this] { StepSampleSize(1); };
  SampSize_UpD.StepDown = [this] { StepSampleSize(-1); };
}

// A name that nobody has changed is that of a file, and good for it.
void BasisForm::LeaveName() {
  if (!NameTxB.touched && !session.Name.empty()) {
    BasisStatus();
    focusWanted = nullptr;
    return;
  }
  std::string typed = session.Name;
  GlobalBAS::CheckName(flow, NameTxB.text, typed, Notifier());
  record.Change([&typed](Given& given) { given.Name = typed; });
  const bool refused = session.InputState != 0;
  BasisStatus();
  if (refused) SetFocus(NameTxB);
}

// A series without a name has that of its file now.
void BasisForm::FollowSave(const LastAction* told) {
  BasisStatus();
  focusWanted = nullptr;
  SessionForm::FollowSave(told);
}

void BasisForm::LeaveSampleSize() {
  const bool typed = SampSizTxB.touched;
  double M = session.M;
  GlobalBAS::CheckM(flow, EntryOf(SampSizTxB), M, Notifier());
  const bool refused = session.InputState != 0;
  // A number beyond all numbers is no sample size that could be kept.
  if (std::isfinite(M)) TakeSampleSize(M);
  BasisStatus();
  KeepFocus(SampSizTxB, refused, typed);
}

void BasisForm::StepSampleSize(double step) {
  if (SampSizTxB.locked) return;
  TakeSampleSize(std::clamp(session.M + step, 2.0, static_cast<double>(kMaxSampleSize)));
  BasisStatus();
}

// A series is evaluated anew for its first M outcomes, by the degrees of freedom of its range.
void BasisForm::TakeSampleSize(double M) {
  if (M == session.M) return;
  LimitComplaint complaint;
  Edit(OwnText(Own::StepSampleSize, {GlobalBAS::GeneralText(M)}), [&] {
    complaint = record.Change([M](Given& given) {
      given.M = M;
      if (given.inForce != Estimates::Typed) given.inForce = Estimates::RangeDegrees;
    });
  });
  if (!complaint.MsgText.empty()) Complain(complaint.MsgText, complaint.MsgTitle);
}

void BasisForm::LeaveStatistic(screen::Control& field) {
  const bool typed = field.touched;
  // One message for one error: who was told leaves in silence.
  if (!typed && told_ == &field) {
    BasisStatus();
    focusWanted = nullptr;
    return;
  }
  const bool isGM = &field == &GMTxB;
  double value = isGM ? session.TypedGM : session.TypedGSD;
  const auto check = isGM ? GlobalBAS::CheckGM : GlobalBAS::CheckGSD;
  check(flow, EntryOf(field), value, Notifier());
  const bool refused = session.InputState != 0;
  record.Change([&](Given& given) {
    (isGM ? given.TypedGM : given.TypedGSD) = value;
    if (refused || !typed) return;
    const auto width = static_cast<std::int16_t>(GlobalBAS::GeneralText(value).size());
    given.typedWidth = std::max(given.typedWidth, width);
  });
  if (refused)
    told_ = &field;
  else if (told_ == &field)
    told_ = nullptr;
  BasisStatus();
  KeepFocus(field, refused, typed);
}

// Behind an entry by which the data are complete the user goes on to where they are used. A field
// that is only looked at keeps the order of the eye.
void BasisForm::TabFrom(screen::Control& field, screen::Control& next) {
  if (!field.touched) return;
  field.EnterKey();
  taken_ = focusWanted == &field ? nullptr : &field;
  const bool shown = next.visible && next.enabled;
  if (!focusWanted && shown) SetFocus(next);
}

// A refused entry keeps the focus. A field in which nothing was typed lets the user go wherever
// the user goes: who wants to mend the sample size first, or to choose other data, is not held in
// an empty GM.
void BasisForm::KeepFocus(screen::Control& field, bool refused, bool typed) {
  if (!typed)
    focusWanted = nullptr;
  else if (refused)
    SetFocus(field);
}

}  // namespace start
