// The frame of the smallest sample, offered behind the Wilks test.
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "compliance/perc_ex_form.h"

namespace compliance {
namespace {

void Caption(screen::Control& label, const std::optional<int>& row) {
  if (row) label.text = LoadResString(*row);
}

}  // namespace

void PercExForm::SampSizeCkb_Click() {
  SampsizeFrm.visible = SampSizeCkb.ticked;
  const ComplianceTest* test = FindTest(session.TestTag);
  if (!SampSizeCkb.ticked || !test || !test->offersSampleSize) return;
  ClearSampleSize();
  SampsizeFrm.text = LoadResString(kSampleSizeCaption);
  const SampleSizeResult found = OptimiseSampleSize(BasisOf(session));
  if (found.outcome == SampleSizeCase::CoverageTooLow) {
    OfferSampleSize(true);
    flow.MsgText = OwnText(Own::CoverageTooLow);
    Complain(session.MsgText, LoadResString(kCoverageTitle));
    return;
  }
  record.Numbers().PercEx = found.PercEx;
  ShowSampleSize(found.boxes);
  if (found.outcome == SampleSizeCase::AnySize)
    Complain(LoadResString(kAnySampleSizeText), LoadResString(kAnySampleSizeTitle));
}

void PercExForm::ClearSampleSize() {
  for (screen::Control* control : {&ComMinLbl, &DegrMinTxb, &PercExTxB3, &SampMinTxB})
    control->text.clear();
}

void PercExForm::ShowSampleSize(const SampleSizeBoxes& boxes) {
  ComMinLbl.text = boxes.ComMinLbl;
  Caption(DegrMinLbl, boxes.DegrMinLbl);
  Caption(PercExLbl3, boxes.PercExLbl3);
  Caption(SampMinLbl, boxes.SampMinLbl);
  PercExTxB3.text = Shown(boxes.PercExTxB3);
  const std::string infinite = boxes.infinite ? LoadResString(kInfinite) : "";
  DegrMinTxb.text = boxes.infinite ? infinite : Shown(boxes.DegrMinTxb);
  SampMinTxB.text = boxes.infinite ? infinite : Shown(boxes.SampMinTxB);
}

}  // namespace compliance
