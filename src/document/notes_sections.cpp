// What does not apply and why, and where a weak approximation was used.
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "catalog/own_texts.h"
#include "compliance/compliance_tests.h"
#include "compliance/sample_size.h"
#include "document/sections.h"
#include "plots/density_view.h"
#include "session/derivation.h"
#include "session/series_text.h"
#include "session/workflow.h"
#include "stats/estimators.h"
#include "ucl/mean_limit.h"

namespace document {
namespace {

constexpr double kExactDegrees = 200;    // up to here chi-square and noncentral t are summed
constexpr double kExactProduct = 32768;  // below it the F distribution is
constexpr double kLeastForMMSE = 3;

// Sentences, each a block of its own.
class Notes {
 public:
  explicit Notes(std::string title) : section_{std::move(title), {}} {}

  void Add(const std::string& sentence) {
    if (!sentence.empty()) section_.blocks.emplace_back(Words{sentence});
  }
  // "Subject: reason"; nothing without a reason.
  void Add(const std::string& subject, const std::string& reason) {
    if (!reason.empty()) Add(DocText(Doc::NoMethod, {subject, reason}));
  }
  void Add(bool holds, Doc sentence) {
    if (holds) Add(DocText(sentence));
  }
  Section Or(Doc nothing) {
    if (section_.blocks.empty()) Add(DocText(nothing));
    return std::move(section_);
  }

 private:
  Section section_;
};

std::string Tab(ScreenId screen) { return RowName(workflow::TabOf(screen).caption); }

void TellSeries(Notes& notes, const ExposureSession& s) {
  if (s.Mode != DataMode::Raw) {
    notes.Add(DocText(Doc::OutcomesAndPaper), DocText(Doc::OnlyStatistics));
    return;
  }
  if (s.ModifyMode)
    notes.Add(DocText(Doc::OutcomesAndPaper), OwnText(Own::OtherValuesTried));
  else if (!HasPaper(s))
    notes.Add(DocText(Doc::Paper), wording::WhyClosed(s, ScreenId::Descript, ScreenId::Plot));
}

void TellEstimators(Notes& notes, const ExposureSession& s) {
  const StatFWinBAS::Estimators found = StatFWinBAS::EstimatorsOf(s);
  if (!found.GMu) notes.Add(RowName(2010), DocText(Doc::NoGMu));
  if (!(s.df > kLeastForMMSE)) notes.Add(RowName(2016), DocText(Doc::FewDegrees));
  if (!found.linear.SDlin) notes.Add(RowName(2035), DocText(Doc::NoSpread));
  if (!PlotWBas::Drawable(PlotWBas::PopulationNumbers(s)))
    notes.Add(DocText(Doc::Picture), DocText(Doc::PictureNeedsSpread));
}

void TellTests(Notes& notes, const ExposureSession& s) {
  if (!HasTests(s)) {
    const std::string tests = Tab(ScreenId::PercEx) + "; " + Tab(ScreenId::UCL);
    const std::string why = wording::WhyClosed(s, ScreenId::Descript, ScreenId::PercEx);
    notes.Add(tests, why.empty() ? OwnText(Own::NoLimitYet) : why);
    return;
  }
  if (compliance::CoverageTooLow(BasisOf(s)))
    notes.Add(RowName(compliance::kSampleSizeCaption), OwnText(Own::CoverageTooLow));
  notes.Add(RowName(2417), OnOneLine(ucl::LandRefusal(s.M, s.D)));
}

bool BothEndsOut(const ExposureSession& s) {
  return s.FirstInRange > 1 && s.LastInRange < SeriesCount(s);
}

bool LargeSamples(const ExposureSession& s) { return s.df * (s.M2 - 1) >= kExactProduct; }

}  // namespace

Section NotApplying(const ExposureSession& s, const Circumstances& circumstances) {
  Notes notes(DocText(Doc::NotApplying));
  TellSeries(notes, s);
  if (HasEstimates(s)) {
    Section told;  // a fault is told where the numbers should stand
    Try(told, [&] { TellEstimators(notes, s); });
  } else {
    notes.Add(RowName(84), wording::WhyClosed(s, ScreenId::DataCtrl, ScreenId::Descript));
  }
  TellTests(notes, s);
  if (!HasComparison(s, circumstances)) notes.Add(RowName(2850), DocText(Doc::NoComparison));
  return notes.Or(Doc::Everything);
}

Section AccuracyOf(const ExposureSession& s, const Circumstances& circumstances) {
  Notes notes(DocText(Doc::Accuracy));
  if (HasPaper(s)) {
    const bool censored = s.DetecOn && s.NInRange < SeriesCount(s);
    notes.Add(s.M == 3, Doc::ThreeAccuracy);
    notes.Add(censored && !BothEndsOut(s), Doc::CensoredAccuracy);
    notes.Add(censored && BothEndsOut(s), Doc::CensoredBothAccuracy);
  }
  const bool byRange = s.inForce == Estimates::RangeDegrees && s.df < s.M - 1;
  notes.Add(HasEstimates(s) && byRange, Doc::DegreesAccuracy);
  const bool approximated = s.df > kExactDegrees && !compliance::CoverageTooLow(BasisOf(s));
  notes.Add(HasTests(s) && approximated, Doc::En689Accuracy);
  notes.Add(HasTests(s), Doc::JahrAccuracy);
  if (HasComparison(s, circumstances)) {
    const bool sample = s.CompareMode == ReferenceKind::Sample;
    notes.Add(sample && LargeSamples(s), Doc::FAccuracy);
    notes.Add(!sample && s.df > kExactDegrees, Doc::ChiAccuracy);
  }
  return notes.Or(Doc::NoWeakness);
}

}  // namespace document
