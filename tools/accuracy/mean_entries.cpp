#include <cmath>
#include <cstdint>

#include "tests/support/record.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/mean_searches.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"
#include "ucl/land_probability.h"
#include "ucl/land_search.h"
#include "ucl/mean_on_record.h"

namespace accuracy {
namespace {

using support::Row;

ucl::JahrLimit Jahr(const Row& row) {
  return ucl::JahrUCL(row.Number("AMu"), row.Number("GSD"), row.Number("df"), row.Number("D"),
                      row.Number("OELV"));
}

const std::vector<Column> kJahr = {"df", "AMu", "GSD", "OELV", "D"};

double JahrLimit(const Row& row) { return Jahr(row).UCL; }
double JahrExceedance(const Row& row) { return Jahr(row).PercEx; }

// Whether the deviate is one of those that converge only linearly.
bool IsOddAbove3(const Row& row) {
  const double df = row.Number("df");
  return df > 3 && df <= 1000 && std::fmod(df, 2) == 1;
}

Entry JahrEntry(const std::string& domain, bool odd) {
  const auto takes = [odd](const Row& row) { return IsOddAbove3(row) == odd; };
  return {"JahrUCL: UCL",
          domain + ", natural logarithm",
          "`StudentUpperInverse`, Jahr (1987)",
          Measure::Absolute,
          {"jahr_truth.csv", "UCL", kJahr, JahrLimit, takes},
          {"jahr.csv", "UCL", kJahr, JahrLimit, takes},
          LookAtJahrLimit(odd)};
}

// The arguments of the table of the parts.
double Part(const Row& row, int argument) {
  return row.Number(std::string("a") + static_cast<char>('0' + argument));
}

std::function<bool(const Row&)> PartsOf(const std::string& routine) {
  return [routine](const Row& row) { return row.Text("routine") == routine; };
}

Entry DensityEntry() {
  return {"LandIntegrand",
          "nu 1 to 999, Aq -60 to -0.02, density from 1E-300",
          "closed form, Land (1975)",
          Measure::Relative,
          {"land_truth.csv",
           "true",
           {"nu", {"a2", "Aq"}, {"a3", "Yq"}, {"a5", "x"}},
           [](const Row& row) {
             return UCLBAS::LandIntegrand(row.Number("nu"), Part(row, 2), Part(row, 3),
                                          Part(row, 4), Part(row, 5));
           },
           [](const Row& row) {
             return row.Text("function") == "LandIntegrand" && row.Number("true") >= 1e-300;
           }},
          {"land_parts.csv",
           "value",
           {"a1", "a2", "a3", "a4", "a5"},
           [](const Row& row) {
             return UCLBAS::LandIntegrand(Part(row, 1), Part(row, 2), Part(row, 3), Part(row, 4),
                                          Part(row, 5));
           },
           PartsOf("LandIntegrand")},
          LookAtLandDensity()};
}

double IntegralOfParts(const Row& row) {
  double result = 0;
  UCLBAS::LandSimpson(Part(row, 1), Part(row, 2), Part(row, 3), Part(row, 4), Part(row, 5),
                      Part(row, 6), result);
  return result;
}

double IntegralOfTruth(const Row& row) {
  double result = 0;
  UCLBAS::LandSimpson(row.Number("a"), row.Number("b"), row.Number("nu"), row.Number("Aq"),
                      row.Number("Yq"), row.Number("Zq"), result);
  return result;
}

Entry IntegralEntry() {
  return {"LandSimpson",
          "from the peak Yq to Yq + k (abs(Yq) + 1), k -10 to 10, nu 1 to 999, Aq -60 to -0.02",
          "adaptive Simpson rule, Lyness (1969)",
          Measure::Absolute,
          {"land_integral_truth.csv", "true", {"nu", "Aq", "a", "b"}, IntegralOfTruth},
          {"land_parts.csv",
           "value",
           {"a1", "a2", "a3", "a4", "a5", "a6"},
           IntegralOfParts,
           PartsOf("LandSimpson")},
          LookAtLandIntegral()};
}

// Land's parts of few degrees of freedom have no table of the steps. The row that misses the peak
// shows the plain steps.
Source ProbabilitySteps(double from, double to) {
  if (to < 3) return {};
  return {"land_parts.csv",
          "value",
          {"a1", "a2", "a3"},
          [](const Row& row) {
            return UCLBAS::LandProbability(Part(row, 1), Part(row, 2), Part(row, 3));
          },
          [from, to](const Row& row) {
            return row.Text("routine") == "LandProbability" && Part(row, 1) >= from &&
                   Part(row, 1) <= to && !row.Text("note").starts_with("hole");
          }};
}

Entry ProbabilityEntry(const std::string& domain, double from, double to) {
  return {"LandProbability",
          domain,
          "three adaptive integrals, Land (1975)",
          Measure::Absolute,
          {"land_truth.csv",
           "true",
           {"nu", {"a2", "s"}, {"a3", "c"}},
           [](const Row& row) {
             return UCLBAS::LandProbability(row.Number("nu"), row.Number("a2"), row.Number("a3"));
           },
           [from, to](const Row& row) {
             return row.Text("function") == "LandProbability" && row.Number("nu") >= from &&
                    row.Number("nu") <= to;
           }},
          ProbabilitySteps(from, to),
          LookAtLandProbability(from, to)};
}

// One search: the root, or the status where the interval does not hold it.
double Sought(const Row& row) {
  double x1 = Part(row, 3), x2 = Part(row, 4), f1 = 0, f2 = 0, C = 0;
  std::int16_t status = 0;
  UCLBAS::LandRootSearch(Part(row, 1), Part(row, 2), x1, x2, f1, f2, Part(row, 5), C, status);
  return status == 0 ? C : status;
}

Entry SearchEntry() {
  return {"LandRootSearch",
          "one interval: C, or the status where it does not hold the root",
          "bracketing secant, in the manner of Dekker (1969) and Brent (1973)",
          Measure::Absolute,
          {},
          {"land_parts.csv",
           "value",
           {"a1", "a2", "a3", "a4", "a5"},
           Sought,
           PartsOf("LandRootSearch")},
          Listed()};
}

const std::vector<Column> kLand = {"nu", "s", "mean", "confidence"};

UCLBAS::LandLimit Limit(const Row& row) {
  return UCLBAS::LandExactUCL(0.5, row.Number("nu"), row.Number("s"), row.Number("mean"),
                              row.Number("confidence"));
}
double Root(const Row& row) { return Limit(row).C; }
double LimitUCL(const Row& row) { return Limit(row).UCL; }

using Takes = std::function<bool(const Row&)>;

double FactorOf(const Row& row) { return Limit(row).Factor; }

// What a whole limit gives, among nu of `from` to `to`, as `truth` and `steps` of its table.
Entry CaseEntry(Entry entry, const std::string& truth, double (*result)(const Row&),
                const std::string& steps, double (*stepped)(const Row&), Takes takes) {
  entry.truth = {"land_cases.csv", truth, kLand, result, takes};
  entry.steps = {"land_cases.csv", steps, kLand, stepped, takes};
  return entry;
}

// Of the confidences that the screen offers; the method's own steps go beyond them.
Takes Offered(double from, double to) {
  return [from, to](const Row& row) {
    return row.Number("nu") >= from && row.Number("nu") <= to && row.Number("s") >= 0.05 &&
           row.Number("confidence") <= 99.75;
  };
}

Entry RootEntry(const std::string& domain, double from, double to) {
  return CaseEntry(
      {"LandRootSearch",
       domain + ", the searches of a limit: H = C sqrt(nu) / s, as a part of it or of 1",
       "the same, in the intervals of `LandExactUCL`",
       Measure::Mixed,
       {},
       {},
       LookAtLandFactor(from, to)},
      "true_Factor", FactorOf, "fixed_C", Root, Offered(from, to));
}

Entry LimitEntry(const std::string& domain, double from, double to, Measure measure) {
  return CaseEntry({"LandExactUCL",
                    domain,
                    "`LandRootSearch` on `LandProbability`, Land (1975)",
                    measure,
                    {},
                    {},
                    LookAtLandLimit(from, to)},
                   "true_UCL", LimitUCL, "fixed_UCL", LimitUCL, Offered(from, to));
}

ucl::LandResult Pressed(const Row& row) {
  ExposureSession s = support::RecordOf(row);
  ucl::TakeMeanStatistics(s);
  return ucl::LandCmb(s);
}

const std::vector<Column> kSession = {"df", "GM", "GSD", "OELV", "D"};

Entry PressEntry(const std::string& what, const std::string& domain, const std::string& column,
                 double (*result)(const ucl::LandResult&)) {
  const auto press = [result](const Row& row) { return result(Pressed(row)); };
  return {"LandCmb: " + what,
          domain,
          "halving of the confidence on `LandExactUCL`",
          Measure::Absolute,
          {"land_sessions.csv", "true_" + column, kSession, press},
          {"land_sessions.csv", "fixed_" + column, kSession, press},
          LookAtLandButton(column == "UCL")};
}

}  // namespace

std::vector<Entry> MeanEntries() {
  return {
      JahrEntry("df odd from 5 to 999", true),
      JahrEntry("every other df", false),
      {"JahrUCL: exceedance",
       "percent",
       "`StudentUpper`, Jahr (1987)",
       Measure::Absolute,
       {"jahr_truth.csv", "PercEx", kJahr, JahrExceedance},
       {"jahr.csv", "PercEx", kJahr, JahrExceedance},
       LookAtJahrExceedance()},
      DensityEntry(),
      IntegralEntry(),
      ProbabilityEntry("nu 1, s 0.05 to 6.9", 1, 1),
      ProbabilityEntry("nu 2, s 0.05 to 6.9", 2, 2),
      ProbabilityEntry("nu 3 to 5, s 0.05 to 6.9", 3, 5),
      ProbabilityEntry("nu 6 to 999, s 0.05 to 6.9", 6, 999),
      SearchEntry(),
      RootEntry("nu 1", 1, 1),
      RootEntry("nu 2", 2, 2),
      RootEntry("nu 3 to 999", 3, 999),
      LimitEntry("nu 1, natural logarithm, as a part of it or of 1", 1, 1, Measure::Mixed),
      LimitEntry("nu 2, natural logarithm", 2, 2, Measure::Absolute),
      LimitEntry("nu 3 to 999, natural logarithm", 3, 999, Measure::Absolute),
      PressEntry("A", "percent, D 95, OELV 1E-4 to 1E+10", "A",
                 [](const ucl::LandResult& result) { return result.A; }),
      PressEntry("UCL", "natural logarithm", "UCL",
                 [](const ucl::LandResult& result) { return result.UCL; }),
  };
}

}  // namespace accuracy
