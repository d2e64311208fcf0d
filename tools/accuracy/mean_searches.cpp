#include "tools/accuracy/mean_searches.h"

#include <cmath>

#include "tools/accuracy/truth/distributions.h"
#include "tools/accuracy/truth/land.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"
#include "ucl/land_probability.h"
#include "ucl/mean_on_record.h"

namespace accuracy {
namespace {

constexpr double kMostSpread = 6.907755278982137;  // ln 1000
const Axis kSpread = {"s", 0.05, kMostSpread, 0, {0.4, 1, 2.4}};
const Axis kLandConfidence = {"confidence", 0.95, 99.75, 0, {5, 50, 95, 99}};

bool IsOddAbove3(double df) { return df > 3 && df <= 1000 && std::fmod(df, 2) == 1; }

Search Jahr() {
  Search search;
  search.axes = {{"df", 1, 1999, 1, {5, 1000, 1001}},
                 {"AMu", 0.0001, 10000, 0, {1}},
                 {"GSD", 1.001, 1000, 0, {2}},
                 {"OELV", 1e-10, 1e10, 0, {1}},
                 {"D", 0.01, 99.99, 0, {5, 50, 95}}};
  search.tries = 3000;
  return search;
}

ucl::JahrLimit JahrAt(const Point& at) { return ucl::JahrUCL(at[1], at[2], at[0], at[4], at[3]); }

// The peak as Land's probability hands it on: its place and its sine.
struct Peak {
  Peak(double nu, double Aq)
      : Yq(-std::sqrt((nu / 2) * (std::sqrt(1 + 4 * (Aq * Aq)) - 1))),
        Zq(Yq / std::sqrt(nu + Yq * Yq)) {}
  double Yq;
  double Zq;
};

Search Limits(double from, double to) {
  Search search;
  search.axes = {{"nu", from, to, 1, {5, 6}}, kSpread, {"mean", 0, 0}, kLandConfidence};
  search.tries = 40;
  return search;
}

UCLBAS::LandLimit LimitAt(const Point& at) {
  return UCLBAS::LandExactUCL(0.5, at[0], at[1], at[2], at[3]);
}

Real RootAt(const Point& at) { return truth::LandRoot(at[0], at[1], 1 - Real(at[3]) / 100); }

ucl::LandResult Pressed(const Point& at) {
  ExposureSession s;
  s.M = at[0] + 1;
  s.df = at[0];
  s.GM = at[1];
  s.GSD = at[2];
  s.OELV = at[3];
  s.D = at[4];
  ucl::TakeMeanStatistics(s);
  return ucl::LandCmb(s);
}

}  // namespace

Search LookAtJahrLimit(bool odd) {
  Search search = Jahr();
  search.call = [](const Point& at) { return JahrAt(at).UCL; };
  search.truth = [](const Point& at) {
    const Real t = truth::StudentUpperInverse(at[0], 1 - Real(at[4]) / 100);
    return std::log(Real(at[1])) + t / std::sqrt(Real(at[0])) * std::log(Real(at[2]));
  };
  search.takes = [odd](const Point& at) { return IsOddAbove3(at[0]) == odd; };
  return search;
}

Search LookAtJahrExceedance() {
  Search search = Jahr();
  search.call = [](const Point& at) { return JahrAt(at).PercEx; };
  search.truth = [](const Point& at) {
    const Real distance = std::log(Real(at[3]) / Real(at[1])) / std::log(Real(at[2]));
    return 100 * truth::StudentUpper(at[0], distance * std::sqrt(Real(at[0])));
  };
  return search;
}

Search LookAtLandDensity() {
  Search search;
  search.axes = {
      {"nu", 1, 999, 1, {}}, {"Aq", -60, -0.02, 0, {}}, {"x", -1e6, 1e6, 0, {-100, -10, -1}}};
  search.call = [](const Point& at) {
    const Peak peak(at[0], at[1]);
    return UCLBAS::LandIntegrand(at[0], at[1], peak.Yq, peak.Zq, at[2]);
  };
  search.truth = [](const Point& at) {
    const Peak peak(at[0], at[1]);
    return truth::LandDensity(at[0], at[1], peak.Yq, peak.Zq, at[2]);
  };
  search.counts = [](Real truth) { return truth >= 1e-300L; };
  return search;
}

Search LookAtLandIntegral() {
  Search search;
  search.axes = {{"nu", 1, 999, 1, {}}, {"Aq", -60, -0.02, 0, {}}, {"k", -10, 10, 0, {-0.2, 0.2}}};
  const auto end = [](const Peak& peak, double k) { return peak.Yq + k * (-peak.Yq + 1); };
  search.call = [end](const Point& at) {
    const Peak peak(at[0], at[1]);
    double result = 0;
    UCLBAS::LandSimpson(peak.Yq, end(peak, at[2]), at[0], at[1], peak.Yq, peak.Zq, result);
    return result;
  };
  search.truth = [end](const Point& at) {
    const Peak peak(at[0], at[1]);
    return truth::LandIntegral(at[0], at[1], peak.Yq, peak.Zq, peak.Yq, end(peak, at[2]));
  };
  search.tries = 400;
  return search;
}

Search LookAtLandProbability(double from, double to) {
  Search search;
  search.axes = {{"nu", from, to, 1, {}},
                 {"s", 0.05, kMostSpread, 0, {0.4, 1, 2.4}},
                 {"c", -60, 1e5, 0, {-1, 0, 0.1, 1, 10, 100, 1000}}};
  search.call = [](const Point& at) { return UCLBAS::LandProbability(at[0], at[1], at[2]); };
  search.truth = [](const Point& at) { return truth::LandProbability(at[0], at[1], at[2]); };
  search.tries = 500;
  return search;
}

Search LookAtLandFactor(double from, double to) {
  Search search = Limits(from, to);
  search.call = [](const Point& at) { return LimitAt(at).Factor; };
  search.truth = [](const Point& at) { return RootAt(at) * std::sqrt(Real(at[0])) / Real(at[1]); };
  return search;
}

Search LookAtLandLimit(double from, double to) {
  Search search = Limits(from, to);
  search.call = [](const Point& at) { return LimitAt(at).UCL; };
  search.truth = [](const Point& at) {
    return Real(at[2]) + Real(at[1]) * Real(at[1]) / 2 + RootAt(at);
  };
  return search;
}

Search LookAtLandButton(bool limit) {
  Search search;
  search.axes = {{"df", 2, 999, 1, {}},
                 {"GM", 0.0001, 10000, 0, {1}},
                 {"GSD", 1.05, 1000, 0, {1.5, 2, 4}},
                 {"OELV", 1e-4, 1e10, 0, {1}},
                 {"D", 0.95, 99.75, 0, {50, 95}}};
  search.tries = 8;
  const Axis& D = search.axes[4];
  if (!limit) search.axes[4] = {D.name, 95, 95};
  search.call = [limit](const Point& at) { return limit ? Pressed(at).UCL : Pressed(at).A; };
  search.truth = [limit](const Point& at) {
    const Real s = std::log(Real(at[2]));
    const Real theta = std::log(Real(at[1])) + s * s / 2;
    if (limit) return theta + truth::LandRoot(at[0], s, 1 - Real(at[4]) / 100);
    return 100 * truth::LandProbability(at[0], s, std::log(Real(at[3])) - theta);
  };
  return search;
}

}  // namespace accuracy
