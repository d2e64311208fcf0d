#include "base/fault.h"
#include "compare/inference.h"
#include "compliance/en689.h"
#include "compliance/leidel.h"
#include "compliance/sample_size.h"
#include "compliance/wilks.h"
#include "drive/call.h"

namespace drive {
namespace {

double Ur(const ExposureSession& s) {
  if (!s.OELV) throw Failure("the record has no OELV");
  return Divide(Log(Divide(*s.OELV, s.GM)), Log(s.GSD));
}

void Leidel(Call& c) {
  c.s.PercEx = compliance::LeidelExceedance(Ur(c.s));
  c.s.UTL = compliance::LeidelToleranceLimit(c.s.GM, c.s.GSD, compliance::LeidelDeviate(c.s.U));
  c.Tell(compliance::LeidelComplies(c.s.PercEx));
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

const std::vector<Routine>& ComplianceRoutines() {
  static const std::vector<Routine> routines = {
      {"LeidelTest", 0, Leidel},   {"WilksTest", 0, Wilks},
      {"En689Test", 0, En689},     {"OptimiseSampleSize", 0, SampleSize},
      {"Inference", 1, Inference},
  };
  return routines;
}

}  // namespace drive
