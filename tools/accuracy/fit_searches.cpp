#include "tools/accuracy/fit_searches.h"

#include <cmath>
#include <cstddef>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "tools/accuracy/truth/orders.h"

namespace accuracy {
namespace {

// What the seven scales give, there and back.
Real Scaled(const std::string& name, bool there, Real x) {
  if (name == "Lg(Lg(x))") return there ? std::log(std::log(x)) : std::exp(std::exp(x));
  if (name == "Log(x)") return there ? std::log(x) : std::exp(x);
  if (name == "Sqr(x)") return there ? std::sqrt(x) : x * x;
  if (name == "x^2") return there ? x * x : std::sqrt(x);
  if (name == "Exp(x)") return there ? std::exp(x) : std::log(x);
  return name == "1/x" ? 1 / x : x;
}

}  // namespace

Search LookAtRankits(double from, double to) {
  Search search;
  search.axes = {{"n", from, to, 1}, {"r", 1, std::floor(to / 2), 1, {2, 3, 4, 5}}};
  search.call = [](const Point& at) {
    return analysis::RankitsForSampleSize(static_cast<int>(at[0])).at(std::size_t(at[1]));
  };
  search.truth = [](const Point& at) {
    return truth::OrderStatistic(static_cast<int>(at[0]), static_cast<int>(at[1]));
  };
  search.takes = [](const Point& at) { return 2 * at[1] <= at[0]; };
  search.tries = 1500;
  return search;
}

Search LookAtWeights() {
  Search search;
  search.axes = {{"M", 3, 2000, 1}, {"i", 1, 1000, 1}};
  search.call = [](const Point& at) {
    static analysis::ShapiroWeights weights;
    analysis::FillShapiroWeights(static_cast<int>(at[0]), weights);
    return weights.ShapiroCoeffs.at(std::size_t(at[1]));
  };
  search.truth = [](const Point& at) {
    return truth::ShapiroWeights(static_cast<int>(at[0])).at(std::size_t(at[1]));
  };
  search.takes = [](const Point& at) { return 2 * at[1] <= at[0]; };
  search.tries = 300;
  return search;
}

Search LookAtOrderFour() {
  Search search = LookAtRankits(40, 2000);
  search.axes[1] = {"r", 4, 4, 1};
  return search;
}

namespace {

// The slope on the scale 1/x of 20 outcomes with a GSD of e.
double ReciprocalSlope(int first, int last) {
  constexpr int M = 20;
  ExposureSession s;
  s.Mode = DataMode::Raw;
  s.CR = "\r";
  s.M = M;
  s.df = M - 1;
  s.SigDigits = 4;
  analysis::FitState state;
  state.Transformation = "1/x";
  state.RankitTable = analysis::RankitsForSampleSize(M);
  s.C = {0};
  for (int i = 1; i <= M; ++i) s.C.push_back(std::exp(analysis::Score(state.RankitTable, M, i)));
  s.FirstInRange = static_cast<std::int16_t>(first);
  s.LastInRange = static_cast<std::int16_t>(last);
  analysis::FillCTransf(s, state.Transformation);
  return analysis::ProbabilityRegression(s, state).b;
}

}  // namespace

Search LookAtMirroredRange() {
  Search search;
  search.axes = {{"first", 1, 18, 1}, {"last", 3, 20, 1}};
  search.call = [](const Point& at) {
    return ReciprocalSlope(static_cast<int>(at[0]), static_cast<int>(at[1]));
  };
  search.truth = [](const Point& at) {
    return ReciprocalSlope(21 - static_cast<int>(at[1]), 21 - static_cast<int>(at[0]));
  };
  search.takes = [](const Point& at) { return at[1] >= at[0] + 2; };
  search.tries = 400;
  return search;
}

// Three outcomes 0, x and 1.
Search LookAtThree() {
  Search search;
  search.axes = {{"x", 0, 1}};
  const auto test = [](double x) {
    analysis::ShapiroWeights weights;
    return analysis::ShapiroWilk({0, 0, x, 1}, 3, 1, 3, weights);
  };
  search.call = [test](const Point& at) { return test(at[0]).PW; };
  search.truth = [](const Point& at) {
    const Real x = at[0];
    const Real squares = (2 + 2 * x * x - 2 * x) / 3;  // about their mean
    return PublishedForThree(static_cast<double>(0.5L / squares));
  };
  return search;
}

double PublishedForThree(double W) {
  return 6 / std::acos(-1.0) * (std::asin(std::sqrt(W)) - std::asin(std::sqrt(0.75)));
}

// The double logarithm away from its 0, at e; the single one passes through 0 at 1, where it is
// exact to the last digit.
Search LookAtScale(bool there, bool doubled, TransformOf scale) {
  Search search;
  std::vector<std::string> names = {"Lg(Lg(x))"};
  if (!doubled) names = {"Log(x)", "Sqr(x)", "Unt", "x^2", "Exp(x)", "1/x"};
  search.axes = {{"name", 0, static_cast<double>(names.size()) - 1, 1, {}, names},
                 {"argument", 1e-10, 1e10, 0, {1, 2.718281828459045, 10, 44}}};
  if (!there) search.axes[1] = {"argument", 1e-10, doubled ? 6.0 : 700.0, 0, {1, 6}};
  search.call = [=](const Point& at) { return scale(names[std::size_t(at[0])], at[1]); };
  search.truth = [=](const Point& at) { return Scaled(names[std::size_t(at[0])], there, at[1]); };
  search.takes = [=](const Point& at) {
    if (doubled && there) return at[1] >= 1.0001 && std::abs(at[1] - std::exp(1)) >= 0.01;
    return names[std::size_t(at[0])] != "Exp(x)" || !there || at[1] <= 700;
  };
  return search;
}

}  // namespace accuracy
