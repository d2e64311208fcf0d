#include <cmath>
#include <functional>

#include "compliance/en689.h"
#include "compliance/leidel.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "tools/accuracy/numbers.h"
#include "tools/accuracy/performance.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

constexpr double kGSD = 2.5;

// The natural logarithm of the limit that 5 percent of the population exceed.
double Quantile() { return std::log(kGSD) * static_cast<double>(truth::NormalUpperInverse(0.05L)); }

double Distance(const DrawnSample& sample) { return (Quantile() - sample.lnGM) / sample.lnGSD; }

ExposureSession Record(const DrawnSample& sample) {
  ExposureSession s;
  s.M = sample.M;
  s.df = sample.M - 1;
  s.GM = std::exp(sample.lnGM);
  s.GSD = std::exp(sample.lnGSD);
  s.OELV = std::exp(Quantile());
  s.U = 95;
  s.D = 70;
  return s;
}

using Verdict = std::function<bool(const DrawnSample&)>;
using Limit = std::function<double(const DrawnSample&)>;  // its natural logarithm

double LeidelLimit(const DrawnSample& sample) {
  return sample.lnGM + sample.lnGSD * compliance::LeidelDeviate(95);
}
double WilksLimit(const DrawnSample& sample) {
  return std::log(compliance::WilksToleranceLimit(std::exp(sample.lnGM), std::exp(sample.lnGSD), 95,
                                                  sample.M - 1)
                      .UTL);
}
double En689Limit(const DrawnSample& sample) {
  return std::log(compliance::En689ToleranceLimit(Record(sample)).UTL);
}

bool LeidelComplies(const DrawnSample& sample) {
  return compliance::LeidelComplies(compliance::LeidelExceedance(Distance(sample)));
}
bool WilksComplies(const DrawnSample& sample) {
  return compliance::WilksComplies(compliance::WilksExceedance(sample.M - 1, Distance(sample)));
}
bool En689Complies(const DrawnSample& sample) {
  const ExposureSession s = Record(sample);
  const double UTL = std::exp(En689Limit(sample));
  return compliance::En689Complies(s.df, UTL, s.OELV.value_or(0)).value_or(false);
}

std::string Of(double M) { return "M " + NumberText(M) + ", U 95"; }

Performance Verdicts(const std::string& routine, double M, const std::string& promised, int runs,
                     const Verdict& complies) {
  return {routine,
          "compliance of a population of which 5 % exceed the limit, percent",
          Of(M) + (promised.empty() ? "" : ", D 70"),
          promised,
          runs,
          [=](Chance& chance, int n) {
            Tally tally;
            for (int i = 0; i < n; ++i) tally.Add(complies(Draw(chance, M, kGSD)) ? 100 : 0);
            return tally.Result();
          }};
}

// How often the limit lies above the 95 percent of the population that it is for.
Performance Cover(const std::string& routine, double M, const std::string& promised, int runs,
                  const Limit& limit) {
  return {routine,
          "limits above the quantile that they are for, percent",
          Of(M) + (promised.empty() ? "" : ", D 70"),
          promised,
          runs,
          [=](Chance& chance, int n) {
            Tally tally;
            for (int i = 0; i < n; ++i)
              tally.Add(limit(Draw(chance, M, kGSD)) >= Quantile() ? 100 : 0);
            return tally.Result();
          }};
}

// The share of the population below the limit, on average.
Performance Share(const std::string& routine, double M, const std::string& promised, int runs,
                  const Limit& limit) {
  return {routine,
          "share of the population below the limit, mean, percent",
          Of(M),
          promised,
          runs,
          [=](Chance& chance, int n) {
            Tally tally;
            for (int i = 0; i < n; ++i) {
              const double z = limit(Draw(chance, M, kGSD)) / std::log(kGSD);
              tally.Add(100 * static_cast<double>(truth::NormalUpper(-z)));
            }
            return tally.Result();
          }};
}

}  // namespace

std::vector<Performance> CompliancePerformances() {
  constexpr int kRuns = 200000;
  constexpr int kSearches = 20000;
  std::vector<Performance> all;
  for (const double M : {3, 6, 10, 30}) {
    all.push_back(Verdicts("LeidelComplies", M, "", kRuns, LeidelComplies));
    all.push_back(Cover("LeidelToleranceLimit", M, "", kRuns, LeidelLimit));
    all.push_back(Share("LeidelToleranceLimit", M, "95", kRuns, LeidelLimit));
    all.push_back(Verdicts("WilksComplies", M, "", kRuns, WilksComplies));
    all.push_back(Cover("WilksToleranceLimit", M, "", kRuns, WilksLimit));
    all.push_back(Share("WilksToleranceLimit", M, "95", kRuns, WilksLimit));
    if (M > 5) all.push_back(Verdicts("En689Complies", M, "30", kSearches, En689Complies));
    all.push_back(Cover("En689ToleranceLimit", M, "70", kSearches, En689Limit));
  }
  all.push_back(Cover("En689ToleranceLimit", 202, "70", kSearches, En689Limit));
  return all;
}

}  // namespace accuracy
