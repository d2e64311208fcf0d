#include "session/record.h"

#include <algorithm>
#include <utility>

#include "catalog/catalog.h"
#include "session/derivation.h"
#include "session/global_bas.h"

namespace {

constexpr int kDefaultUnit = 314;

// Whether `next`, once it is sorted, holds the same outcomes 1 to M.
bool SameSeries(const Given& before, const Given& next) {
  const int M = SeriesCount(before);
  if (M != SeriesCount(next)) return false;
  if (before.C == next.C) return true;
  // A refused file tells its size and brings no outcomes.
  if (before.refusedFile || next.refusedFile) return false;
  const std::vector<double> C = ConsequencesOf(next).given.C;
  return std::equal(before.C.begin() + 1, before.C.begin() + 1 + M, C.begin() + 1);
}

bool SameRange(const Given& a, const Given& b) {
  return a.DetecOn == b.DetecOn && a.FirstInRange == b.FirstInRange &&
         a.LastInRange == b.LastInRange;
}

// The range and the line that were laid over a series do not outlive it.
LimitComplaint FollowSeries(Given& next) {
  next.regression.reset();
  Given sorted = ConsequencesOf(next).given;
  if (!next.DetecOn || next.original || !CompleteSeries(sorted)) return {};
  const LimitComplaint complaint = RecheckRange(sorted);
  next = std::move(sorted);
  return complaint;
}

// What the sample's statistics follow from, without what is only told beside them.
Given SampleOf(Given given) {
  given.Name = given.Unit = given.RefPeriod = given.Duration = "";
  given.OELV.reset();
  given.limitStated = false;
  given.U = given.D = 0;
  given.CompareMode = ReferenceKind::None;
  given.GSDChoice = VarianceChoice::None;
  given.M2 = given.GM2 = given.GSD2 = 0;
  return given;
}

// What a report tells of, in a form that is the same as long as that is.
Given ToldOf(const ExposureSession& s, Did did) {
  Given told;
  if (did == Did::LimitRefused) {
    told.OELV = s.OELV;
    return told;
  }
  told.Mode = s.Mode;
  told.Name = s.Name;
  told.Unit = s.Unit.empty() ? LoadResString(kDefaultUnit) : s.Unit;
  told.M = s.M;
  told.C.assign(s.C.begin(),
                s.C.begin() + std::min(SeriesCount(s) + 1, static_cast<int>(s.C.size())));
  told.DetecOn = s.DetecOn;
  if (s.DetecOn) {
    told.LOQ = s.LOQ;
    told.URR = s.URR;
  }
  told.regression = s.regression;
  return told;
}

}  // namespace

Record::Record() {
  now_.C.assign(1, 0.0);
  now_.LnC.assign(1, 0.0);
  now_.GridData.assign(1, {});
  now_.SortOrder = "Onbekend";
}

LimitComplaint Record::Change(const std::function<void(Given&)>& change) {
  const Given& before = now_;
  Given next = before;
  change(next);
  if (next == before) return {};
  if (SampleOf(next) == SampleOf(before)) {
    Take(std::move(next), now_);
    return {};
  }
  LimitComplaint complaint;
  // A line is that of its range.
  if (!SameRange(before, next) && next.regression == before.regression) next.regression.reset();
  const bool both = before.Mode == DataMode::Raw && next.Mode == DataMode::Raw;
  if (both && !SameSeries(before, next)) complaint = FollowSeries(next);
  Consequences all = ConsequencesOf(std::move(next));
  Take(std::move(all.given), std::move(all.derived));
  return complaint;
}

void Record::Restore(const GivenSeries& series) {
  Given next = now_;
  static_cast<GivenSeries&>(next) = series;
  Consequences all = ConsequencesOf(std::move(next));
  Take(std::move(all.given), std::move(all.derived));
}

void Record::Take(Given given, Derived derived) {
  const TestBasis basis = BasisOf(now_);
  static_cast<Given&>(now_) = std::move(given);
  static_cast<Derived&>(now_) = std::move(derived);
  if (BasisOf(now_) != basis) static_cast<Computed&>(now_) = {};
  if (now_.RegressionOn) now_.RegressionLabel = CensoringLabel(now_);
  now_.IdentOk = GlobalBAS::Identified(now_);
  now_.DescOk = now_.IdentOk && GlobalBAS::EstimatesInRange(now_);
}

void Record::Evaluate(Estimates estimates) {
  Given next = now_;
  next.inForce = estimates;
  Consequences all = ConsequencesOf(std::move(next));
  Take(std::move(all.given), std::move(all.derived));
  constexpr std::int16_t kNoSpread = 4;
  constexpr std::int16_t kTooLarge = 5;
  if (now_.spread != Spread::Fine)
    now_.InputState = now_.spread == Spread::None ? kNoSpread : kTooLarge;
}

void Record::StatusFlags() {
  ExposureSession flagged = now_;
  GlobalBAS::StatusFlags(flagged);
  Change([&](Given& given) { given = flagged; });
  now_.IdentOk = flagged.IdentOk;
  now_.DescOk = flagged.DescOk && !now_.RawIncomplete;
  now_.LimitsOk = flagged.LimitsOk;
}

void Record::AcceptSeries() {
  now_.IdentOk = true;
  now_.DescOk = !now_.noEstimates && !now_.RawIncomplete;
}

void Record::Close() {
  ExposureSession fresh = Record().now_;
  fresh.OELV = now_.OELV;
  fresh.limitStated = now_.limitStated;
  fresh.U = now_.U;
  fresh.D = now_.D;
  fresh.VersionText = now_.VersionText;
  fresh.CR = now_.CR;
  fresh.CurrentTab = now_.CurrentTab;
  fresh.DeveloperMode = now_.DeveloperMode;
  const bool limits = now_.LimitsOk;
  *this = Record();
  now_ = std::move(fresh);
  // A limit that was accepted gets its defaults once more; it counts as set with the next data.
  if (limits) StatusFlags();
  now_.LimitsOk = false;
}

void Record::Keep(const TestResult& result) {
  const TestBasis basis = BasisOf(now_);
  test_.Keep(basis, result);
  if (result.UTL.value && !result.olderLimit) UTL_.Keep(basis, *result.UTL.value);
  if (result.PercEx.value) now_.PercEx = *result.PercEx.value;
  now_.UTL = StandingUTL().value_or(0);
}

void Record::Keep(const MeanResult& result) {
  mean_.Keep(BasisOf(now_), result);
  now_.UCL = result.UCL;
}

void Record::Keep(const ComparisonResult& result) {
  comparison_.Keep(ComparisonBasisOf(now_), result);
}

void Record::Drop(Extrapolation tag) {
  if (tag == Extrapolation::Jahr || tag == Extrapolation::Land)
    mean_.Drop();
  else
    test_.Drop();
}

void Record::Report(ScreenId screen, LastAction action) {
  lastAction_ = std::move(action);
  actedOn_ = screen;
  toldOf_ = ToldOf(now_, lastAction_.did);
}

const LastAction* Record::Reported(ScreenId screen) const {
  if (lastAction_.did == Did::Nothing || screen != actedOn_) return nullptr;
  return ToldOf(now_, lastAction_.did) == toldOf_ ? &lastAction_ : nullptr;
}

void Record::ForgetRefusals() {
  if (lastAction_.did == Did::TabClosed || lastAction_.did == Did::SaveRefused) lastAction_ = {};
}

const TestResult* Record::Test() const {
  const TestResult* kept = test_.For(BasisOf(now_));
  return kept && kept->test == now_.TestTag ? kept : nullptr;
}

bool Record::TestIsStale() const {
  const bool mean = now_.TestTag == Extrapolation::Jahr || now_.TestTag == Extrapolation::Land;
  return now_.TestTag != Extrapolation::None && !mean && test_.Any() && !Test();
}

const MeanResult* Record::Mean() const {
  const MeanResult* kept = mean_.For(BasisOf(now_));
  return kept && kept->method == now_.TestTag ? kept : nullptr;
}

const ComparisonResult* Record::Comparison() const {
  return comparison_.For(ComparisonBasisOf(now_));
}

std::optional<double> Record::StandingUTL() const {
  const double* kept = UTL_.For(BasisOf(now_));
  return kept ? std::optional(*kept) : std::nullopt;
}
