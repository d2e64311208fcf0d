#include "tools/accuracy/comparison_searches.h"

#include <algorithm>
#include <cmath>

#include "compare/inference_on_record.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

using compare::Answer;
using compare::InferenceResult;

// The arguments in the order of the axes, in the wide type.
struct Case {
  explicit Case(const Point& at)
      : sample(at[0] == 0),
        df(at[1] - 1),
        df2(at[4] - 1),
        m(std::log(Real(at[2]))),
        L(std::log(Real(at[3]))),
        m2(std::log(Real(at[5]))),
        L2(std::log(Real(at[6]))) {}
  bool sample;
  Real df, df2;
  Real m, L, m2, L2;
};

ExposureSession Record(const Point& at) {
  ExposureSession s;
  s.CompareMode = at[0] == 0 ? ReferenceKind::Sample : ReferenceKind::Population;
  s.M = at[1];
  s.df = at[1] - 1;
  s.GM = at[2];
  s.GSD = at[3];
  s.M2 = at[4];
  s.GM2 = at[5];
  s.GSD2 = at[6];
  return s;
}

InferenceResult Compared(const Point& at, Answer answer) {
  ExposureSession s = Record(at);
  return compare::Inference(s, [answer](double) { return answer; });
}

Search Base(bool population) {
  Search search;
  search.axes = {{"mode", 0, population ? 1.0 : 0.0, 1, {}, {"S", "P"}},
                 {"M", 2, 2000, 1, {202}},
                 {"GM", 0.0001, 10000, 0, {1}},
                 {"GSD", 1.001, 1000, 0, {1.1, 2, 2.5, 4}},
                 {"M2", 2, 30000, 1, {202}},
                 {"GM2", 0.0001, 10000, 0, {1}},
                 {"GSD2", 1.001, 1000, 0, {1.1, 2, 2.5, 4}}};
  search.tries = 4000;
  return search;
}

Real TwoSided(Real tail) { return 200 * std::min(tail, 1 - tail); }

Real Pooled(const Case& c) {
  const Real v = c.df + c.df2;
  const Real spread = std::sqrt((c.df * c.L * c.L + c.df2 * c.L2 * c.L2) / v);
  const Real t = (c.m2 - c.m) / spread * std::sqrt((c.df + 1) * (c.df2 + 1) / (v + 2));
  return TwoSided(truth::StudentUpper(v, t));
}

Real AgainstPopulation(const Case& c) {
  return TwoSided(truth::StudentUpper(c.df, std::sqrt(c.df + 1) * (c.m - c.m2) / c.L));
}

Real Satterthwaite(const Case& c) {
  const Real a = c.L * c.L / (c.df + 1);
  const Real b = c.L2 * c.L2 / (c.df2 + 1);
  return (a + b) * (a + b) / (a * a / c.df + b * b / c.df2);
}

Real Separate(const Case& c, Real v) {
  const Real error = std::sqrt(c.L * c.L / (c.df + 1) + c.L2 * c.L2 / (c.df2 + 1));
  return TwoSided(truth::StudentUpper(v, (c.m2 - c.m) / error));
}

// Whether the cut hangs on no last digit.
bool IsSafelyCut(const Point& at) {
  const Real v = Satterthwaite(Case(at));
  return std::abs(v - std::round(v)) > 1e-9L * v;
}

Real MeanOfBoth(const Case& c) {
  return ((c.df + 1) * c.m + (c.df2 + 1) * c.m2) / (c.df + c.df2 + 2);
}

// The weight of the second squared mean is df2 + 2 as it is, df2 + 1 of the united measurements.
Real SpreadOfBoth(const Case& c, Real extra) {
  const Real mean = MeanOfBoth(c);
  const Real squares = c.df * c.L * c.L + c.df2 * c.L2 * c.L2 +
                       (c.df + 1) * (c.m - mean) * (c.m - mean) +
                       (c.df2 + 1) * (c.m2 - mean) * (c.m2 - mean) + extra * c.m2 * c.m2;
  return std::exp(std::sqrt(squares / (c.df + c.df2 + 1)));
}

}  // namespace

Search LookAtDispersions(bool bySums) {
  Search search = Base(true);
  search.call = [](const Point& at) { return Compared(at, Answer::No).dispersion.A; };
  search.truth = [](const Point& at) {
    const Case c(at);
    if (!c.sample) return TwoSided(truth::ChiUpper(c.df, std::sqrt(c.df) * c.L / c.L2));
    return TwoSided(truth::FUpper(c.df, c.df2, c.L * c.L / (c.L2 * c.L2)));
  };
  search.takes = [bySums](const Point& at) {
    if (at[0] == 1) return (at[1] <= 201) == bySums;
    return ((at[1] - 1) * (at[4] - 1) < 32768) == bySums;
  };
  search.tries = 12000;
  return search;
}

Search LookAtPooled() {
  Search search = Base(true);
  search.call = [](const Point& at) { return Compared(at, Answer::No).location.A; };
  search.truth = [](const Point& at) {
    const Case c(at);
    return c.sample ? Pooled(c) : AgainstPopulation(c);
  };
  return search;
}

Search LookAtSeparate(bool cut) {
  Search search = Base(false);
  search.call = [](const Point& at) { return Compared(at, Answer::Yes).location.A; };
  search.truth = [cut](const Point& at) {
    const Case c(at);
    const Real v = Satterthwaite(c);
    return Separate(c, cut ? std::floor(v) : v);
  };
  search.takes = IsSafelyCut;
  return search;
}

Search LookAtBothGM() {
  Search search = Base(false);
  search.call = [](const Point& at) { return Compared(at, Answer::No).both.GM; };
  search.truth = [](const Point& at) { return std::exp(MeanOfBoth(Case(at))); };
  return search;
}

Search LookAtBothGSD() {
  Search search = Base(false);
  search.call = [](const Point& at) { return Compared(at, Answer::No).both.GSD; };
  search.truth = [](const Point& at) { return SpreadOfBoth(Case(at), 1); };
  return search;
}

Search LookAtAnswer() {
  Search search = Base(false);
  search.call = [](const Point& at) { return Compared(at, Answer::Yes).location.A; };
  search.truth = [](const Point& at) { return Pooled(Case(at)); };
  return search;
}

Search LookAtUnited() {
  Search search = Base(false);
  search.call = [](const Point& at) { return Compared(at, Answer::No).both.GSD; };
  search.truth = [](const Point& at) { return SpreadOfBoth(Case(at), 0); };
  return search;
}

}  // namespace accuracy
