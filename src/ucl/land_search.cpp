#include "ucl/land_search.h"

#include <cmath>
#include <optional>
#include <utility>

#include "base/fault.h"
#include "catalog/own_texts.h"
#include "ucl/land_probability.h"

namespace UCLBAS {
namespace {

// A trial value with the value of the function there.
struct Point {
  double x = 0;
  double f = 0;
  double Sign() const { return SignNonZero(f); }
};

class Search {
 public:
  Search(double nu, double s, double p, LandWatch& watch) : nu_(nu), s_(s), p_(p), watch_(watch) {}

  double f(double c) {
    ++watch_.Evaluations;
    return Checked(LandProbability(nu_, s_, c) - p_);
  }
  void Take(const Point& first, const Point& second);
  bool Converged() const;
  void Pass();
  double Best() const { return B_.x; }
  double Other() const { return A_.x; }
  bool Lost() const { return A_.Sign() == B_.Sign(); }

 private:
  bool IsOutside(double x) const;
  double SecantPoint() const;
  std::optional<double> QuadraticPoint() const;
  void Refine(const Point& X2);
  void AfterFailedQuadratic();
  void AfterPoorSecant(bool outside);
  void Midpoint();
  void Show(const char* step, LandSign sign);

  double nu_;
  double s_;
  double p_;
  LandWatch& watch_;
  Point A_;  // the other end of the bracket
  Point B_;  // the better end
  Point X_;  // the latest secant point; its value is that of an earlier one when it lies outside
};

void Search::Take(const Point& first, const Point& second) {
  const bool firstIsBetter = std::abs(second.f) > std::abs(first.f);
  B_ = firstIsBetter ? first : second;
  A_ = firstIsBetter ? second : first;
}

bool Search::Converged() const {
  const double width = A_.x - B_.x;
  if (A_.x == 0 || B_.x == 0) return std::abs(width) <= 1E-8;
  return std::abs(Divide(width, SmallerOf(std::abs(A_.x), std::abs(B_.x)))) <= 1E-5;
}

// An end itself lies inside.
bool Search::IsOutside(double x) const {
  if (B_.x > A_.x) return x > B_.x || x < A_.x;
  if (B_.x < A_.x) return x < B_.x || x > A_.x;
  return false;
}

// The secant's zero, but not closer to the better end than 2.5 % of the bracket (1 % where that end
// is nearly the root from above).
double Search::SecantPoint() const {
  const double X = Checked(B_.x + Divide((A_.x - B_.x) * B_.f, B_.f - A_.f));
  const double t = Divide(X - B_.x, A_.x - B_.x);
  if (t >= 0.01 && (t >= 0.025 || B_.f > 1E-8)) return X;
  return Checked(B_.x + 0.025 * (A_.x - B_.x));
}

// Nothing when it lies outside the bracket, as it does when the divisor vanishes.
std::optional<double> Search::QuadraticPoint() const {
  if (A_.f == 0) return std::nullopt;
  const double divisor = Checked((X_.f - B_.f) * (1 - Divide(X_.f, A_.f)));
  if (divisor == 0) return std::nullopt;
  const double X2 = Checked(X_.x + Divide((B_.x - X_.x) * X_.f, divisor));
  if (IsOutside(X2)) return std::nullopt;
  return X2;
}

void Search::Refine(const Point& X2) {
  const double size = std::abs(X2.f);
  if (!(std::abs(B_.f) >= size && std::abs(A_.f) >= size)) {
    A_ = X_;
    return;
  }
  const bool better = std::abs(X_.f) > size;
  if (X2.Sign() == X_.Sign()) {
    A_ = B_;
  } else {
    A_ = better ? X_ : X2;
  }
  B_ = better ? X2 : X_;
}

void Search::Midpoint() {
  const double x = Checked((A_.x + B_.x) / 2);
  const Point X2{x, f(x)};
  (X2.Sign() == B_.Sign() ? B_ : A_) = X2;
  if (std::abs(B_.f) > std::abs(A_.f)) std::swap(A_, B_);
}

void Search::AfterFailedQuadratic() {
  (X_.Sign() == B_.Sign() ? B_ : A_) = X_;
  Midpoint();
  Show("secant + bisection ......", LandSign::Window);
}

void Search::AfterPoorSecant(bool outside) {
  if (!outside) (X_.Sign() == B_.Sign() ? B_ : A_) = X_;
  Midpoint();
  // Without the blank: the mark of this way.
  Show("secant +bisection ......", LandSign::SecantLabel);
}

void Search::Show(const char* step, LandSign sign) {
  watch_.Secant = step;
  watch_.SecantTxb = {B_.x, A_.x};
  watch_.Tell(sign);
}

void Search::Pass() {
  X_.x = SecantPoint();
  const bool outside = IsOutside(X_.x);
  if (!outside) X_.f = f(X_.x);
  if (outside || std::abs(B_.f) <= std::abs(X_.f) || X_.Sign() == B_.Sign()) {
    AfterPoorSecant(outside);
    return;
  }
  const std::optional<double> X2 = QuadraticPoint();
  if (!X2) {
    AfterFailedQuadratic();
    return;
  }
  Refine({*X2, f(*X2)});
  Show("secant + quadratic ......", LandSign::Window);
}

void ShowInterval(LandWatch& watch, double x1, double x2) {
  watch.InitTxb = {x1, x2};
  watch.SecantTxb = {};
  watch.ConFactTxb.reset();
  watch.Tell(LandSign::Window);
}

}  // namespace

void LandRootSearch(double nu, double s, double& x1, double& x2, double& f1, double& f2, double p,
                    double& C, std::int16_t& status, LandWatch& watch) {
  Search search(nu, s, p, watch);
  if (status == 1) {
    f1 = f2;
    f2 = search.f(x2);
  } else if (status == -1) {
    f2 = f1;
    f1 = search.f(x1);
  } else {
    f1 = search.f(x1);
    f2 = search.f(x2);
  }
  status = 0;
  if (SignNonZero(f1) == SignNonZero(f2)) {
    status = f1 < 0 ? -1 : 1;
    return;
  }
  search.Take({x1, f1}, {x2, f2});
  ShowInterval(watch, x1, x2);
  while (!search.Converged()) {
    const double best = search.Best();
    const double other = search.Other();
    search.Pass();
    C = search.Best();
    if (search.Lost()) throw RunTimeError(FaultKind::InvalidOperation, OwnText(Own::LandLost));
    if (search.Best() == best && search.Other() == other) return;
  }
}

}  // namespace UCLBAS
