#include <utility>

#include "catalog/catalog.h"
#include "compare/two_samp_comp_form.h"

// The decision on the variances and the results of the comparison screen.
namespace compare {
namespace {

constexpr screen::Colour kChosen{0, 0, 255};
constexpr char kNothing[] = "      ";

}  // namespace

void TwoSampCompForm::WireVariances() {
  auto wire = [this](screen::Control& option, VarianceChoice choice) {
    option.Click = [this, choice] {
      record.Change([choice](Given& given) { given.GSDChoice = choice; });
      ShowVariances();
      // The test on the dispersions does not depend on the choice and helps to make it.
      GMInfTxb.text = kNothing;
      PooledFrm.Hide();
      MenuPrint.Hide();
      OfferCalculation();
    };
  };
  wire(EqualOpt, VarianceChoice::Pooled);
  wire(DifferOpt, VarianceChoice::Separate);
}

void TwoSampCompForm::ShowVariances() {
  using enum VarianceChoice;
  auto show = [this](screen::Control& option, VarianceChoice byOption, VarianceChoice byCancel) {
    option.ticked = session.GSDChoice == byOption || session.GSDChoice == byCancel;
    option.colour = option.ticked ? std::optional(kChosen) : std::nullopt;
  };
  show(EqualOpt, Pooled, PooledByProbability);
  show(DifferOpt, Separate, SeparateByProbability);
}

void TwoSampCompForm::CalcCmb_Click() {
  if (std::exchange(refused_, false)) return;
  if (Reference* wrong = FirstOutOfRange()) {
    Accept(*wrong);
    SetFocus(wrong->box);
    return;
  }
  Inference();
  CalcCmb.Hide();
  SetFocus(GSDInfTxb);  // which the button would leave to chance
}

void TwoSampCompForm::Inference() {
  ClearResults();
  ShowReference();
  DescrInfFrm.Show();
  const ComparisonBasis basis = ComparisonBasisOf(session);
  const InferenceResult found =
      compare::Inference(basis, [this](double A) { return AskOnVariances(A); });
  if (!found.done) return;
  if (found.combined) record.Change([&found](Given& given) { given.GSDChoice = found.GSDChoice; });
  record.Numbers().df2 = basis.M2 - 1;
  record.Keep(ComparisonResult{found.dispersion.A, found.location.A, found.combined,
                               found.location.caption, found.location.v, found.both.GM,
                               found.both.GSD});
  ShowResults();
}

void TwoSampCompForm::ShowResults() {
  const ComparisonResult* result = record.Comparison();
  if (!result) return;
  GSDInfTxb.text = Shown(result->dispersionA);
  GMInfTxb.text = Shown(result->locationA);
  if (result->combined) {
    SampSizLbl3.text = LoadResString(result->degreesCaption);
    SampSizTxb3.text = Shown(result->degrees);
    GMTxb3.text = Shown(result->GM);
    GSDTxb3.text = Shown(result->GSD);
    ShowVariances();
  }
  MenuPrint.Show();
}

// Only results have something to print.
bool TwoSampCompForm::ShowsResults() const { return MenuPrint.visible && record.Comparison(); }

// Asked over the screen that shows A. The record holds the answer once this has returned.
Answer TwoSampCompForm::AskOnVariances(double A) {
  using namespace screen;
  GSDInfTxb.text = Shown(A);
  const Message question{LoadResString(2945), LoadResString(2940), Icon::Question,
                         Buttons::YesNoCancel, screen::Answer::No};
  switch (ports.messageBox.Show(question)) {
    case screen::Answer::Yes:
      return compare::Answer::Yes;
    case screen::Answer::No:
      return compare::Answer::No;
    default:
      return compare::Answer::Cancel;
  }
}

void TwoSampCompForm::DropResults() {
  DescrInfFrm.Hide();
  PooledFrm.Hide();
  MenuPrint.Hide();
}

void TwoSampCompForm::ClearResults() {
  GSDInfTxb.text = kNothing;
  GMInfTxb.text = kNothing;
  for (screen::Control* box : {&SampSizTxb3, &GMTxb3, &GSDTxb3}) box->text.clear();
}

}  // namespace compare
