// The table of the verdicts of all tests.
#include "catalog/own_texts.h"
#include "compliance/perc_ex_form.h"
#include "compliance/verdicts.h"

namespace compliance {
namespace {

constexpr char kTable[] = "VerdictsTbl";

}  // namespace

PercExForm::VerdictRow::VerdictRow(Form& form, const std::string& number)
    : test{form, screen::Kind::Label, "VerdictTestLbl(" + number + ")"},
      estimate{form, screen::Kind::Label, "VerdictPercLbl(" + number + ")"},
      limit{form, screen::Kind::Label, "VerdictUTLLbl(" + number + ")"},
      verdict{form, screen::Kind::Label, "VerdictLbl(" + number + ")"} {
  for (screen::Control* cell : {&test, &estimate, &limit, &verdict}) cell->home = kTable;
}

void PercExForm::AddVerdictRows() {
  for (std::size_t i = 0; i < ComplianceTests().size(); ++i)
    verdictRows_.emplace_back(*this, GlobalBAS::GeneralText(static_cast<double>(i)));
}

void PercExForm::ShowVerdicts() {
  VerdictsFrm.text = OwnText(Own::VerdictsTitle);
  VerdictTestLbl.text = OwnText(Own::VerdictsTest);
  VerdictPercLbl.text = OwnText(Own::VerdictsEstimate);
  VerdictUTLLbl.text = OwnText(Own::VerdictsLimit, {ShownTrimmed(session.U)});
  VerdictLbl.text = OwnText(Own::VerdictsVerdict);
  VerdictsFrm.visible = session.OELV.value_or(0) > 0 && !session.noEstimates;
  if (!VerdictsFrm.visible) return;
  const Verdicts verdicts = VerdictsOf(session);
  for (std::size_t i = 0; i < verdictRows_.size(); ++i) {
    const Verdict& verdict = verdicts.rows[i];
    VerdictRow& row = verdictRows_[i];
    row.test.text = verdict.test;
    row.estimate.text = verdict.estimate;
    row.limit.text = verdict.limit;
    row.verdict.text = verdict.words;
    ColourVerdict(row.verdict, verdict.compliance);
  }
  VerdictsLbl.text = verdicts.why;
}

}  // namespace compliance
