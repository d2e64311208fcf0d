#include "catalog/catalog.h"
#include "compare/two_samp_comp_form.h"

// Entering the reference values on the comparison screen.
namespace compare {

void TwoSampCompForm::WireReference(Reference& reference, screen::Control& pair) {
  screen::Control& box = reference.box;
  box.GotFocus = [&box] { box.selectAll = true; };
  box.LostFocus = [this, &reference] { Leave(reference); };
  box.TabKey = [this, &reference] { AcceptAndInfer(reference, false); };
  box.EnterKey = [this, &reference] { AcceptAndInfer(reference, true); };
  box.Change = [this] {
    DropResults();
    CalcCmb.Show();
  };
  pair.StepUp = [this, &reference] { Step(reference, 1); };
  pair.StepDown = [this, &reference] { Step(reference, -1); };
}

// One message for one error: who was told leaves in silence. The button may tell it again.
void TwoSampCompForm::Leave(Reference& reference) {
  // The focus follows behind a screen that was left or whose data were closed: what stands in the
  // box is not of the record any more.
  if (session.CurrentTab != id && !reference.box.touched) return;
  if (ToldBefore(reference))
    refused_ = false;
  else
    Accept(reference);
}

bool TwoSampCompForm::ToldBefore(const Reference& reference) const {
  const double value = ValueOf(reference);
  return !reference.box.touched && reference.told == value && !reference.inRange(value);
}

// An entry that was refused keeps the focus; one that nobody typed is told, but lets the user go.
// An empty sample size is no entry at all: the box shows its value again.
bool TwoSampCompForm::Accept(Reference& reference) {
  screen::Control& box = reference.box;
  const bool typed = box.touched;
  const bool empty = GlobalBAS::Trim(box.text).empty();
  const bool noEntry = empty && &box == &SampSizTxB2;
  double value = ValueOf(reference);
  reference.check(flow, EntryOf(box), value, Notifier());
  record.Change([&](Given& given) { given.*reference.field = value; });
  refused_ = !noEntry && session.InputState != 0;
  reference.told = refused_ ? std::optional(ValueOf(reference)) : std::nullopt;
  box.touched = false;
  box.text = ShownTrimmed(ValueOf(reference));
  if (refused_ && typed) SetFocus(box);
  if (FirstOutOfRange()) CalcCmb.Hide();
  return !noEntry && !refused_;
}

// The Tab key on a box that nothing was typed in asks no question again whose answer stands.
void TwoSampCompForm::AcceptAndInfer(Reference& reference, bool always) {
  const bool typed = reference.box.touched;
  if (!always && ToldBefore(reference)) return;
  if (!Accept(reference) || FirstOutOfRange()) return;
  if (always || typed || !ShowsResults()) Inference();
}

TwoSampCompForm::Reference* TwoSampCompForm::FirstOutOfRange() {
  const bool sample = session.CompareMode == ReferenceKind::Sample;
  for (Reference* reference : {&sampleSize_, &location_, &dispersion_}) {
    if (reference == &sampleSize_ && !sample) continue;
    if (!reference->inRange(ValueOf(*reference))) return reference;
  }
  return nullptr;
}

// A text that is still being typed counts first; a sample size is looked at in any case.
void TwoSampCompForm::Step(Reference& reference, int direction) {
  screen::Control& box = reference.box;
  if (box.touched || &box == &SampSizTxB2) Accept(reference);
  const ReferenceStep step = reference.step(ValueOf(reference), direction);
  record.Change([&](Given& given) { given.*reference.field = step.value; });
  if (step.text) flow.MsgText = LoadResString(step.text);
  box.text = ShownTrimmed(ValueOf(reference));
  DropResults();
  OfferCalculation();
}

void TwoSampCompForm::BeforeTabClick() {
  for (Reference* reference : {&sampleSize_, &location_, &dispersion_})
    if (reference->box.touched) Accept(*reference);
}

}  // namespace compare
