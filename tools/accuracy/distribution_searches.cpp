#include "tools/accuracy/distribution_searches.h"

#include <cmath>

#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

using namespace StatFWinBAS;

const Axis kDeviateArea = {"argument", 0.0001, 0.995, 0, {0.025, 0.5, 0.975}};

Axis Degrees(const std::string& name, double from, double to, double step = 1) {
  return {name, from, to, step, {}};
}

bool IsHalf(double p) { return std::abs(p - 0.5) <= 1e-16; }

}  // namespace

Search LookAtStudent(double from, double to) {
  Search search;
  search.axes = {Degrees("df", from, to), {"argument", -1e4, 1e4, 0, {-3, -1, 1, 1.4, 2, 3, 3.09}}};
  search.call = [](const Point& at) { return StudentUpper(at[0], at[1]); };
  search.truth = [](const Point& at) { return truth::StudentUpper(at[0], at[1]); };
  search.tries = 6000;
  return search;
}

Search LookAtDeviate(double from, double to, double step) {
  Search search;
  search.axes = {Degrees("df", from, to, step), kDeviateArea};
  search.call = [](const Point& at) { return StudentUpperInverse(at[1], at[0]); };
  search.truth = [](const Point& at) { return truth::StudentUpperInverse(at[0], at[1]); };
  search.takes = [](const Point& at) { return !IsHalf(at[1]); };
  search.tries = 3000;
  return search;
}

Search LookAtExpansion(double from, double to) {
  Search search = LookAtDeviate(from, to);
  search.call = [](const Point& at) { return StudentUpperInverseSeries(at[1], at[0]); };
  search.takes = [](const Point& at) { return std::abs(at[1] - 0.5) >= 0.001; };
  return search;
}

Search LookAtNoncentral(double from, double to, double step) {
  Search search;
  search.axes = {Degrees("f", from, to, step),
                 {"p", 0.0001, 0.9999, 0, {0.001, 0.05, 0.5, 0.95}},
                 {"K", -1000, 1000, 0, {-4, -2, 1, 2, 4}}};
  search.call = [](const Point& at) { return NoncentralTUpper(at[0], at[1], at[2]); };
  search.truth = [](const Point& at) {
    return truth::NoncentralLower(at[0], truth::NormalUpperInverse(at[1]), at[2]);
  };
  search.takes = [](const Point& at) {
    return !IsHalf(at[1]) && std::abs(std::sqrt(1 + 1 / at[0]) * at[2] - 1) > 1e-16;
  };
  search.tries = 2500;
  return search;
}

Search LookAtOwen(double hTo, double aFrom, double aTo) {
  Search search;
  search.axes = {{"h", 1e-10, hTo, 0, {0.95, 4}}, {"a", aFrom, aTo, 0, {1, 4.21}}};
  search.call = [](const Point& at) { return OwenT(at[0], at[1]); };
  search.truth = [](const Point& at) { return truth::OwenT(at[0], at[1]); };
  search.tries = 5000;
  return search;
}

Search LookAtChi(double from, double to, double chiFrom, double chiTo) {
  Search search;
  search.axes = {Degrees("d1", from, to),
                 {"argument", chiFrom, chiTo, 0, {4.02, 4.87, 13.66, 16.4, 20, 24}}};
  search.call = [](const Point& at) { return ChiUpper(at[0], at[1]); };
  search.truth = [](const Point& at) { return truth::ChiUpper(at[0], at[1]); };
  return search;
}

Search LookAtF(double d1From, double d1To, double d2From, double d2To) {
  Search search;
  search.axes = {
      Degrees("d1", d1From, d1To),
      Degrees("d2", d2From, d2To),
      {"argument", 1e-30, 1e30, 0, {1e-4, 0.01, 0.1, 0.3, 0.5, 0.8, 1, 1.3, 2, 10, 100}}};
  search.call = [](const Point& at) { return FUpper(at[0], at[1], at[2]); };
  search.truth = [](const Point& at) { return truth::FUpper(at[0], at[1], at[2]); };
  search.takes = [](const Point& at) {
    return at[0] != at[1] || std::abs(at[2] - 1) > 1e-10;  // which count as 1
  };
  search.tries = 10000;
  return search;
}

Search From(Real least, Search search) {
  search.counts = [least](Real truth) { return truth >= least; };
  return search;
}

Search Only(std::function<bool(const Point&)> takes, Search search) {
  search.takes = [takes = std::move(takes), before = std::move(search.takes)](const Point& at) {
    return takes(at) && (!before || before(at));
  };
  return search;
}

}  // namespace accuracy
