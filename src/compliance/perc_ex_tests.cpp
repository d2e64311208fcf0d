#include "catalog/catalog.h"
#include "compliance/leidel.h"
#include "compliance/perc_ex_form.h"
#include "compliance/wilks.h"

namespace compliance {
namespace {

constexpr screen::Colour kGreen{0, 128, 0};
constexpr screen::Colour kRed{192, 0, 0};
constexpr double kNoConfidence = 1E-14;

const std::string& Blanks() {
  static const std::string blanks(17, ' ');
  return blanks;
}

}  // namespace

// A fault may end a test: no earlier result must then stand beside its new captions.
void PercExForm::BeginTest(const char* tag, const char* windowNumber, int title) {
  session.TestTag = tag;
  shownBasis_ = PresentBasis();
  IntroFrm.Hide();
  ClearResults();
  TestLayout();
  WindnrLbl.text = windowNumber;
  UTLFrm.text = LoadResString(2320) + ": " + LoadResString(title);
  ComplianceLbl.Show();
  OfferSampleSize(false);
  ShowCaptions();
}

void PercExForm::ClearResults() {
  for (screen::Control* control :
       {&PercExTxB0, &PercExTxB1, &PercExTxB2, &ComplianceLbl, &ReasonLbl})
    control->text.clear();
}

// A box that is unticked has no frame.
void PercExForm::OfferSampleSize(bool offered) {
  SampSizeCkb.visible = offered;
  SampSizeCkb.ticked = false;
  SampsizeFrm.Hide();
}

void PercExForm::ShowCaptions() {
  if (session.TestTag == "Le") ShowLeidelCaptions();
  if (session.TestTag == "Wi") ShowWilksCaptions();
  if (session.TestTag == "Tu") ShowTuggleCaptions();
}

void PercExForm::ShowLeidelCaptions() {
  CommentLbl.text = LoadResString(2505) + LoadResString(2506) + LoadResString(2507);
  PercExLbl0.text = PercExLbl0.tip = PercExTxB0.tip = LoadResString(2508);
  PercExLbl1.tip = PercExTxB1.tip = LoadResString(2503);
  PercExLbl1.text = ShownTrimmed(session.U) + LoadResString(2504);
}

void PercExForm::ShowWilksCaptions() {
  CommentLbl.text = LoadResString(2605) + LoadResString(2606) + LoadResString(2607);
  PercExLbl0.text = LoadResString(2602);
  PercExLbl0.tip = PercExTxB0.tip = LoadResString(2605);
  PercExLbl1.tip = PercExTxB1.tip = LoadResString(2608);
  PercExLbl1.text = LoadResString(2603) + ShownTrimmed(session.U) + LoadResString(2604);
}

void PercExForm::ShowTuggleCaptions() {
  CommentLbl.text = LoadResString(2711) + LoadResString(2712) + LoadResString(2713);
  for (screen::Control* control : {&PercExLbl0, &PercExTxB0, &PercExLbl1, &PercExTxB1})
    control->tip.clear();
  const std::string D = ShownTrimmed(session.D);
  PercExLbl0.text = LoadResString(2702) + ShownTrimmed(100 - session.U) + LoadResString(2703);
  PercExLbl1.text = LoadResString(2704) + ShownTrimmed(session.U) + LoadResString(2705) +
                    LoadResString(2706) + D + LoadResString(2707);
  PercExLbl2.text = LoadResString(2708) + LoadResString(2709) + D + LoadResString(2710);
}

void PercExForm::ShowVerdict(bool compliance, int captionIfSo, int captionIfNot) {
  ComplianceLbl.colour = compliance ? kGreen : kRed;
  ComplianceLbl.sign = compliance ? screen::Sign::Tick : screen::Sign::Cross;
  ComplianceLbl.text = LoadResString(compliance ? captionIfSo : captionIfNot);
}

std::string PercExForm::GeneralReason() const {
  return "Results can differ because each test judges another estimate: Leidel the best guess of "
         "the exceedance, Wilks the same with the sample's own uncertainty averaged in, EN 689 a "
         "limit that holds with " +
         ShownTrimmed(session.D) + " % confidence.";
}

void PercExForm::LeidelCmb_Click() {
  BeginTest("Le", "25", 2501);
  PercExTxB0.text = Blanks();
  session.PercEx = LeidelExceedance(Ur);
  ShowVerdict(LeidelComplies(session.PercEx), 2307, 2308);
  PercExTxB0.text = session.PercEx == 0 ? "    <1E-300      " : Shown(session.PercEx);
  ReasonLbl.text = GeneralReason();

  Ur = LeidelDeviate(session.U);
  session.UTL = LeidelToleranceLimit(session.GM, session.GSD, Ur);
  PercExTxB1.text = Shown(session.UTL);
  OfferPicture();
  Refresh();
}

// A limit beyond the bounds leaves that of the test before in the record and in the box.
void PercExForm::WilksCmb_Click() {
  BeginTest("Wi", "26", 2601);
  const WilksResult result = WilksTest(session, Ur);
  WilksFactor = result.limit.WilksFactor;
  ShowVerdict(result.compliance, 2309, 2310);
  PercExTxB0.text = session.PercEx == 0 ? kWilksBelowAllNumbers : Shown(session.PercEx);
  PercExTxB1.text = Shown(session.UTL);
  ReasonLbl.text = GeneralReason();
  if (result.limit.clamp != Clamp::None)
    ReasonLbl.text = session.MsgText + "; its box still shows the limit of the test before.";
  OfferSampleSize(true);
  OfferPicture();
  Refresh();
}

void PercExForm::TuggleCmb_Click() {
  BeginTest("Tu", "27", 2701);
  DimLbl4.text = "%";
  ComplianceLbl.visible = En689Decides(session.df);
  const bool coverageTooLow = CoverageTooLow(session);
  if (coverageTooLow)
    Complain(session.MsgText, LoadResString(kCoverageTitle));
  else
    SearchToleranceLimit();
  SearchFraction();
  if (const auto compliance = En689Complies(session)) ShowVerdict(*compliance, 2305, 2306);
  ReasonLbl.text = TuggleReason(coverageTooLow);
  OfferPicture();
  Refresh();
}

En689Progress PercExForm::CandidateBoxes() {
  return [this](En689Box which, double value) {
    screen::Control& box = which == En689Box::Fraction ? PercExTxB2 : PercExTxB1;
    box.text = Shown(value);
    box.Refresh();
  };
}

void PercExForm::SearchToleranceLimit() {
  PercExTxB0.text = Blanks();
  session.PercEx = En689ConfidenceAt(session.df, session.U, Ur);
  PercExTxB0.text = Shown(session.PercEx);
  if (session.PercEx < kNoConfidence) PercExTxB1.text = "    <1E-14";
  Refresh();
  const ToleranceSearch found = En689ToleranceLimit(session, CandidateBoxes());
  ConfNow = found.ConfNow;
  LowBound = found.LowBound;
  HighBound = found.HighBound;
  if (found.above1E300) PercExTxB1.text = kLimitAbove1E300;
  session.UTL = found.UTL;
}

void PercExForm::SearchFraction() {
  const FractionSearch found = En689Fraction(session, Ur, CandidateBoxes());
  LowBound = found.LowBound;
  HighBound = found.HighBound;
  if (found.text) PercExTxB2.text = found.text;
}

std::string PercExForm::TuggleReason(bool coverageTooLow) const {
  std::string reason;
  if (coverageTooLow) {
    reason = "Without a U above 50 % there is no confidence and no tolerance limit";
    reason +=
        En689Decides(session.df) ? "; the verdict is on the limit of the test before. " : ". ";
  }
  if (!En689Decides(session.df))
    return reason + "Fewer than six results (df up to 4) give no EN 689 decision.";
  return coverageTooLow ? reason : GeneralReason();
}

}  // namespace compliance
