#include <algorithm>

#include "compare/inference_on_record.h"
#include "compliance/leidel.h"
#include "compliance/tests_on_record.h"
#include "drive/call.h"

namespace drive {
namespace {

TestBasis Basis(const ExposureSession& s) {
  if (!s.OELV) throw Failure("the record has no OELV");
  return BasisOf(s);
}

double Ur(const ExposureSession& s) { return compliance::StandardisedDistance(Basis(s)); }

void Leidel(Call& c) {
  const TestResult result = compliance::LeidelTest(Basis(c.s));
  c.s.PercEx = *result.PercEx.value;
  c.s.UTL = *result.UTL.value;
  c.Tell(*result.compliance);
  c.Tell(c.s.PercEx);
  c.Tell(c.s.UTL);
}

void Wilks(Call& c) {
  const auto result = compliance::WilksTest(c.s, Ur(c.s));
  c.Tell(result.compliance);
  c.Tell(c.s.PercEx);
  c.Tell(result.limit.WilksFactor);
  c.Tell(c.s.UTL);
}

void En689(Call& c) {
  const auto result = compliance::En689Test(c.s, Ur(c.s));
  c.Tell(result.compliance ? std::optional<double>(*result.compliance) : std::nullopt);
  c.Tell(c.s.PercEx);
  c.Tell(c.s.UTL);
  if (result.fraction.text)
    c.Tell(std::string(result.fraction.text));
  else
    c.Tell(result.fraction.u);
}

// Verdict, percentage, limit, and the fraction where the test finds one.
void Plain(Call& c, const compliance::ComplianceTest& test) {
  const TestResult result = test.run(Basis(c.s), {});
  c.Tell(result.compliance ? std::optional<double>(*result.compliance) : std::nullopt);
  for (const ShownNumber* number : {&result.PercEx, &result.UTL, &result.fraction})
    if (number->value) c.Tell(*number->value);
}

// The case in the order in which they are met: not the Wilks test, U too low, one degree of
// freedom, search, any size.
void SampleSize(Call& c) {
  const auto result = compliance::OptimiseSampleSize(c.s);
  c.Tell(static_cast<int>(result.outcome));
  c.Tell(result.df);
  c.Tell(result.Mopt);
  c.Tell(c.s.PercEx);
}

compare::Answer AnswerOf(const std::string& word) {
  if (word == "yes") return compare::Answer::Yes;
  if (word == "no") return compare::Answer::No;
  if (word == "cancel") return compare::Answer::Cancel;
  throw Failure("the answer is yes, no or cancel, not " + word);
}

void Inference(Call& c) {
  const compare::Answer answer = AnswerOf(c.Text(0));
  const auto result = compare::Inference(c.s, [answer](double) { return answer; });
  if (!result.done) return;
  c.Tell(result.dispersion.statistic);
  c.Tell(result.dispersion.A);
  c.Tell(result.location.t);
  c.Tell(result.location.A);
  if (!result.combined) return;
  c.Tell(result.location.v);
  c.Tell(result.both.GM);
  c.Tell(result.both.GSD);
}

}  // namespace

// The first three tell more than a row of the table gives.
const std::vector<Routine>& ComplianceRoutines() {
  static const std::vector<Routine> routines = [] {
    std::vector<Routine> all = {
        {"LeidelTest", 0, Leidel},   {"WilksTest", 0, Wilks},
        {"En689Test", 0, En689},     {"OptimiseSampleSize", 0, SampleSize},
        {"Inference", 1, Inference},
    };
    for (const compliance::ComplianceTest* test : compliance::ComplianceTests()) {
      const auto same = [test](const Routine& known) { return known.name == test->routine; };
      if (std::ranges::none_of(all, same))
        all.push_back({test->routine, 0, [test](Call& c) { Plain(c, *test); }});
    }
    return all;
  }();
  return routines;
}

}  // namespace drive
