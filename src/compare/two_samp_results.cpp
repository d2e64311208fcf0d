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
  auto wire = [this](screen::Control& option, const char* choice) {
    option.Click = [this, choice] {
      session.GSDChoice = choice;
      ShowVariances();
      // The test on the dispersions does not depend on the choice and helps to make it.
      GMInfTxb.text = kNothing;
      PooledFrm.Hide();
      MenuPrint.Hide();
      standing_ = false;
      OfferCalculation();
    };
  };
  wire(EqualOpt, "Y");
  wire(DifferOpt, "N");
}

void TwoSampCompForm::ShowVariances() {
  auto show = [this](screen::Control& option, const char* byOption, const char* byCancel) {
    option.ticked = session.GSDChoice == byOption || session.GSDChoice == byCancel;
    option.colour = option.ticked ? std::optional(kChosen) : std::nullopt;
  };
  show(EqualOpt, "Y", "P");
  show(DifferOpt, "N", "A");
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
  const InferenceResult result =
      compare::Inference(session, [this](double A) { return AskOnVariances(A); });
  if (!result.done) return;
  GSDInfTxb.text = Shown(result.dispersion.A);
  GMInfTxb.text = Shown(result.location.A);
  if (result.combined) {
    SampSizLbl3.text = LoadResString(result.location.caption);
    SampSizTxb3.text = Shown(result.location.v);
    GMTxb3.text = Shown(result.both.GM);
    GSDTxb3.text = Shown(result.both.GSD);
    ShowVariances();
  }
  MenuPrint.Show();
  standing_ = true;
}

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
  standing_ = false;
}

void TwoSampCompForm::ClearResults() {
  standing_ = false;
  GSDInfTxb.text = kNothing;
  GMInfTxb.text = kNothing;
  for (screen::Control* box : {&SampSizTxb3, &GMTxb3, &GSDTxb3}) box->text.clear();
}

}  // namespace compare
