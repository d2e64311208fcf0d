// How a compliance test is run, and its result shown.
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "compliance/perc_ex_form.h"

namespace compliance {
namespace {

constexpr screen::Colour kGreen{0, 128, 0};
constexpr screen::Colour kRed{192, 0, 0};

}  // namespace

void ColourVerdict(screen::Control& label, std::optional<bool> compliance) {
  label.colour.reset();
  label.sign = screen::Sign::None;
  if (!compliance) return;
  label.colour = *compliance ? kGreen : kRed;
  label.sign = *compliance ? screen::Sign::Tick : screen::Sign::Cross;
}

// A fault may end a test: no earlier result must then stand beside its new captions.
void PercExForm::BeginTest(const ComplianceTest& test) {
  flow.TestTag = test.tag;
  record.Drop(test.tag);
  TestLayout();
  ClearResults();  // nothing is out of date: the button has just been pressed
  WindnrLbl.text = test.window;
  UTLFrm.text = LoadResString(2320) + ": " + TextOf(test.heading);
  OfferSampleSize(false);
}

void PercExForm::ClearResults() {
  for (screen::Control* control : {&PercExTxB0, &PercExTxB1, &PercExTxB2, &ComplianceLbl})
    control->text.clear();
}

// A box that is unticked has no frame.
void PercExForm::OfferSampleSize(bool offered) {
  SampSizeCkb.visible = offered;
  SampSizeCkb.ticked = false;
  SampsizeFrm.Hide();
}

void PercExForm::ShowWords(const ComplianceTest& test) {
  const TestWords words = test.words(session);
  PercExLbl0.text = words.percEx;
  PercExLbl0.tip = PercExTxB0.tip = words.percExTip;
  PercExLbl1.text = words.limit;
  PercExLbl1.tip = PercExTxB1.tip = words.limitTip;
  PercExLbl2.text = words.fraction;
  CommentLbl.text = words.comment;
}

void PercExForm::ShowResult(const ComplianceTest& test) {
  ShowWords(test);
  ClearResults();
  const TestResult* result = record.Test();
  OfferPicture();
  if (!result) {
    ComplianceLbl.Hide();
    return;
  }
  ShowNumbers(*result);
  ShowVerdict(test, *result);
}

void PercExForm::ShowNumbers(const TestResult& result) {
  auto show = [this](screen::Control& box, const ShownNumber& number) {
    box.text = number.text.empty() ? Shown(number.value) : number.text;
  };
  show(PercExTxB0, result.PercEx);
  show(PercExTxB1, result.UTL);
  show(PercExTxB2, result.fraction);
}

void PercExForm::ShowVerdict(const ComplianceTest& test, const TestResult& result) {
  ComplianceLbl.visible = result.compliance.has_value();
  if (!result.compliance) return;
  ColourVerdict(ComplianceLbl, result.compliance);
  ComplianceLbl.text = TextOf(*result.compliance ? test.complies : test.fails);
}

// The layout is shown before a search begins; its boxes then show its candidates.
TestRun PercExForm::HowToRun() {
  TestRun how;
  how.standingUTL = record.StandingUTL();
  how.found = [this](const TestResult& first) {
    ShowNumbers(first);
    Refresh();
  };
  how.progress = [this](TestBox which, double value) {
    screen::Control& box = which == TestBox::Fraction ? PercExTxB2 : PercExTxB1;
    box.text = Shown(value);
    box.Refresh();
  };
  return how;
}

void PercExForm::Run(Extrapolation tag) {
  const ComplianceTest* test = FindTest(tag);
  if (!test) return;
  const TestRun how = HowToRun();
  BeginTest(*test);
  if (session.CurrentTab != id) return;  // without a limit value there is nothing to judge against
  if (test->needsMajority && CoverageTooLow(BasisOf(session))) {
    flow.MsgText = OwnText(Own::CoverageTooLow);
    Complain(session.MsgText, LoadResString(kCoverageTitle));
  }
  const TestResult result = test->run(BasisOf(session), how);
  if (!result.MsgText.empty()) flow.MsgText = result.MsgText;
  record.Keep(result);
  ShowResult(*test);
  OfferSampleSize(test->offersSampleSize);
  Refresh();
}

}  // namespace compliance
