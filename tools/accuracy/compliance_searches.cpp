#include "tools/accuracy/compliance_searches.h"

#include <cmath>

#include "compliance/en689.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

Axis Degrees(double from, double to) { return {"df", from, to, 1, {5, 200, 201, 1000, 1001}}; }
Axis Percent(const std::string& name, double from, double to) {
  return {name, from, to, 0, {5, 50, 70, 80, 90, 95, 99}};
}
Axis Distance(const std::string& name) {
  return {name, -10, 10, 0, {-2, 0.5, 1.6448536269514722, 2, 4}};
}

Real Spread(double df) { return std::sqrt(1 / (Real(df) + 1) + 1); }

// A proportion in percent as its distance from the mean: the deviate that u percent lie below.
Real Below(double u) { return truth::NormalUpperInverse(1 - Real(u) / 100); }

ExposureSession Record(double df, double U, double D) {
  ExposureSession s;
  s.df = df;
  s.GM = 1;
  s.GSD = 2;
  s.U = U;
  s.D = D;
  return s;
}

compliance::FractionSearch FractionAt(const Point& at) {
  return compliance::En689Fraction(Record(at[0], 95, at[2]), at[1]);
}

Search Fractions(double from, double to, bool text) {
  Search search;
  search.axes = {Degrees(from, to), Distance("Ur"), Percent("D", 0.01, 99.99)};
  search.call = [](const Point& at) {
    const compliance::FractionSearch found = FractionAt(at);
    if (!found.text) return found.u;
    return found.text == std::string(compliance::kFractionAll) ? 100.0 : 0.0;
  };
  search.truth = [](const Point& at) {
    return 100 * truth::NormalUpper(-truth::NoncentralQuantile(at[0], at[1], Real(at[2]) / 100));
  };
  search.takes = [text](const Point& at) { return (FractionAt(at).text != nullptr) == text; };
  search.tries = 80;
  return search;
}

}  // namespace

Search LookAtWilksExceedance() {
  Search search;
  search.axes = {Degrees(1, 1999), Distance("Ur")};
  search.call = [](const Point& at) { return compliance::WilksExceedance(at[0], at[1]); };
  search.truth = [](const Point& at) {
    return 100 * truth::StudentUpper(at[0], at[1] / Spread(at[0]));
  };
  search.tries = 8000;
  return search;
}

Search LookAtWilksLimit() {
  Search search;
  search.axes = {Degrees(1, 1999), Percent("U", 0.01, 99.99), {"GSD", 2.5, 2.5}};
  search.call = [](const Point& at) {
    return std::log(compliance::WilksToleranceLimit(1, at[2], at[1], at[0]).UTL);
  };
  search.truth = [](const Point& at) {
    const Real deviate = truth::StudentUpperInverse(at[0], 1 - Real(at[1]) / 100);
    return Spread(at[0]) * deviate * std::log(Real(at[2]));
  };
  // One beyond the bounds has no number.
  search.counts = [](Real truth) { return std::abs(truth) < 690; };
  search.tries = 3000;
  return search;
}

Search LookAtConfidence(double from, double to) {
  Search search;
  search.axes = {Degrees(from, to), Percent("u", 0.01, 99.99), Distance("r")};
  search.call = [](const Point& at) { return compliance::En689ConfidenceAt(at[0], at[1], at[2]); };
  search.truth = [](const Point& at) {
    return 100 * truth::NoncentralLower(at[0], Below(at[1]), at[2]);
  };
  search.takes = [](const Point& at) {
    return std::abs(at[1] - 50) > 1e-13 && std::sqrt(1 + 1 / at[0]) * at[2] != 1;
  };
  search.tries = 2500;
  return search;
}

Search LookAtFactor(double from, double to) {
  Search search;
  search.axes = {Degrees(from, to), Percent("U", 50.01, 99.99), Percent("D", 0.01, 99.99)};
  search.call = [](const Point& at) {
    return std::log2(compliance::En689ToleranceLimit(Record(at[0], at[1], at[2])).UTL);
  };
  search.truth = [](const Point& at) {
    return truth::NoncentralFactor(at[0], Below(at[1]), Real(at[2]) / 100);
  };
  // Limits beyond the doubles have a text.
  search.counts = [](Real truth) { return std::abs(truth) < 990; };
  search.tries = 150;
  return search;
}

Search LookAtFraction(double from, double to) { return Fractions(from, to, false); }

Search LookAtFractionText() { return Fractions(1, 1999, true); }

}  // namespace accuracy
