#include "tests/sessions/play.h"

#include <cmath>
#include <iomanip>
#include <sstream>

#include "base/fault.h"
#include "compare/inference_on_record.h"
#include "compliance/en689.h"
#include "compliance/leidel.h"
#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "stats/student.h"
#include "tests/sessions/random_session.h"
#include "tests/support/letters.h"
#include "ucl/mean_on_record.h"

namespace sessions {
namespace {

class Check {
 public:
  void Percent(const char* what, double value) {
    if (!(value >= 0 && value <= 100)) Complain(what, value);
  }
  void Positive(const char* what, double value) {
    if (!(std::isfinite(value) && value > 0)) Complain(what, value);
  }
  void Finite(const char* what, double value) {
    if (!std::isfinite(value)) Complain(what, value);
  }
  void AtMost(const char* what, int value, int bound) {
    if (value > bound) Complain(what, value);
  }
  void That(const char* what, bool holds) {
    if (!holds) complaints_.emplace_back(what);
  }
  Complaints Told() { return std::move(complaints_); }

 private:
  void Complain(const char* what, double value) {
    std::ostringstream text;
    text << what << " is " << std::setprecision(17) << value;
    complaints_.push_back(text.str());
  }

  Complaints complaints_;
};

void Raise(int& most, int now) {
  if (now > most) most = now;
}

}  // namespace

Complaints PlayLeidel(ExposureSession s) {
  Check check;
  const TestResult result = compliance::LeidelTest(BasisOf(s));
  check.Percent("Leidel's exceedance", result.PercEx.value.value_or(-1));
  check.Positive("Leidel's UTL", result.UTL.value.value_or(0));
  check.That("Leidel's test without its verdict", result.compliance.has_value());
  return check.Told();
}

Complaints PlayWilks(ExposureSession s, Most& most) {
  Check check;
  const auto result = compliance::WilksTest(s, StandardisedDistance(s));
  check.Percent("Wilks's exceedance", s.PercEx);
  check.Finite("Wilks's factor", result.limit.WilksFactor);
  // The test for a small limit takes the mirrored one, so that with U below 50 a limit below every
  // double passes it; it is 0 then.
  if (result.limit.clamp == compliance::Clamp::None && (s.U >= 50 || s.UTL != 0))
    check.Positive("Wilks's UTL", s.UTL);
  if (result.limit.clamp != compliance::Clamp::None)
    check.That("a clamped limit without its text", !s.MsgText.empty());
  double p = 1 - s.U / 100;
  const int passes = StatFWinBAS::StudentUpperInverseSearch(p, s.df).passes;
  check.AtMost("passes of the deviate", passes, 100);
  Raise(most.studentPasses, passes);
  return check.Told();
}

Complaints PlayEn689(ExposureSession s, Most& most) {
  Check check;
  const bool complete = s.U > 50;
  const auto result = compliance::En689Test(s, StandardisedDistance(s));
  check.That("a limit for a coverage to 50 percent, or none above",
             result.limit.has_value() == complete);
  if (result.limit) {
    check.Percent("the confidence", s.PercEx);
    check.Positive("the tolerance limit", result.limit->UTL);
    check.AtMost("evaluations for the limit", result.limit->evaluations, 4000);
    Raise(most.toleranceSearch, result.limit->evaluations);
  } else {
    check.That("no message on the coverage", !s.MsgText.empty());
  }
  check.Percent("the fraction", result.fraction.u);
  check.Percent("the fraction's confidence", result.fraction.ConfNow);
  check.AtMost("evaluations for the fraction", result.fraction.evaluations, 320);
  Raise(most.fractionSearch, result.fraction.evaluations);
  check.That("a verdict with df to 4, or none above", result.compliance.has_value() == (s.df > 4));
  return check.Told();
}

Complaints PlaySampleSize(ExposureSession s, Most& most) {
  using compliance::SampleSizeCase;
  Check check;
  const double M = s.M;
  const double df = s.df;
  s.TestTag = Extrapolation::Wilks;
  const auto result = compliance::OptimiseSampleSize(s);
  check.That("M and df are not put back", s.M == M && s.df == df);
  check.That("not one of the cases", result.outcome != SampleSizeCase::NotWilks);
  check.That("the message on the coverage for another coverage",
             (result.outcome == SampleSizeCase::CoverageTooLow) == (s.U <= 50));
  check.AtMost("evaluations for the sample size", result.evaluations, 100);
  Raise(most.sampleSize, result.evaluations);
  check.Percent("the exceedance", s.PercEx);
  if (result.outcome == SampleSizeCase::Search) check.Positive("Mopt", result.Mopt);
  return check.Told();
}

Complaints PlayComparison(ExposureSession s) {
  using compare::Answer;
  Check check;
  for (const char* mode : {"S", "P"}) {
    for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel}) {
      s.CompareMode = support::KindOf(mode);
      const auto result = compare::Inference(s, [answer](double) { return answer; });
      check.That("not compared", result.done);
      check.Percent("A of the dispersions", result.dispersion.A);
      check.Percent("A of the locations", result.location.A);
      check.Finite("t", result.location.t);
      if (!result.combined) continue;
      check.That("less than one degree of freedom", result.location.v >= 1);
      check.Positive("the combined GM", result.both.GM);
      check.Positive("the combined GSD", result.both.GSD);
    }
  }
  return check.Told();
}

Complaints PlayJahr(ExposureSession s) {
  Check check;
  ucl::TakeMeanStatistics(s);
  check.Positive("AMu", s.AMu);
  check.Finite("GMu", s.GMu);
  ucl::JahrLimits(s);
  check.Finite("Jahr's UCL", s.UCL);
  check.Percent("Jahr's exceedance", s.PercEx);
  return check.Told();
}

Complaints PlayLand(ExposureSession s, Most& most) {
  Check check;
  ucl::TakeMeanStatistics(s);
  s.UCL = -7;
  s.PercEx = -8;
  UCLBAS::LandWatch watch;
  ucl::LandResult result;
  try {
    result = ucl::LandCmb(s, watch);
  } catch (const RunTimeError& fault) {
    // A lost bracket or a fault may end the search, with the record as before. None has been seen.
    check.That("the record changed by a search that a fault ended",
               s.UCL == -7 && s.PercEx == -8 && s.TestTag == Extrapolation::None);
    check.That(fault.what(), false);
    return check.Told();
  }
  check.That("refused although offered, or not although not",
             result.Refusal.empty() == ucl::LandIsOffered(s.M, s.D));
  if (!result.Refusal.empty()) return check.Told();
  ++most.landSearches;
  check.Percent("A", result.A);
  check.Finite("Land's UCL", s.UCL);
  check.Percent("Jahr's exceedance", s.PercEx);
  check.AtMost("halvings", result.Halvings, 21);
  check.AtMost("evaluations of Land's probability", static_cast<int>(watch.Evaluations), 800);
  Raise(most.landEvaluations, static_cast<int>(watch.Evaluations));
  return check.Told();
}

}  // namespace sessions
