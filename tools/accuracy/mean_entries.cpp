#include <cmath>

#include "tools/accuracy/entries.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"
#include "ucl/land_probability.h"
#include "ucl/mean_limit.h"

namespace accuracy {
namespace {

using support::Row;

ucl::JahrLimit Jahr(const Row& row) {
  return ucl::JahrUCL(row.Number("AMu"), row.Number("GSD"), row.Number("df"), row.Number("D"),
                      row.Number("OELV"));
}

const std::vector<std::string> kJahr = {"df", "AMu", "GSD", "OELV", "D"};

Entry ProbabilityEntry(const std::string& domain, double from, double to) {
  return {"LandProbability",
          domain,
          "three adaptive integrals, Land (1975)",
          Measure::Absolute,
          {"land_truth.csv",
           "true",
           {"nu", "a2", "a3"},
           [](const Row& row) {
             return UCLBAS::LandProbability(row.Number("nu"), row.Number("a2"), row.Number("a3"));
           },
           [from, to](const Row& row) {
             return row.Text("function") == "LandProbability" && row.Number("nu") >= from &&
                    row.Number("nu") <= to;
           }}};
}

double Limit(const Row& row) {
  return UCLBAS::LandExactUCL(0.5, row.Number("nu"), row.Number("s"), row.Number("mean"),
                              row.Number("confidence"))
      .UCL;
}

Entry LimitEntry(const std::string& domain, double from, double to) {
  const std::vector<std::string> inputs = {"nu", "s", "mean", "confidence"};
  const auto takes = [from, to](const Row& row) {
    return row.Number("nu") >= from && row.Number("nu") <= to;
  };
  return {"LandExactUCL",
          domain,
          "bracketing secant on `LandProbability`, Land (1975)",
          Measure::Absolute,
          {"land_cases.csv", "true_UCL", inputs, Limit, takes},
          {"land_cases.csv", "fixed_UCL", inputs, Limit, takes}};
}

ucl::LandResult Pressed(const Row& row) {
  ExposureSession s;
  s.M = row.Number("M");
  s.df = row.Number("df");
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.OELV = row.Number("OELV");
  s.D = row.Number("D");
  ucl::MeanStatistics(s);
  return ucl::LandCmb(s);
}

const std::vector<std::string> kSession = {"M", "GM", "GSD", "OELV", "D"};

Entry PressEntry(const std::string& what, const std::string& domain, const std::string& column,
                 double (*result)(const ucl::LandResult&)) {
  const auto press = [result](const Row& row) { return result(Pressed(row)); };
  return {"LandCmb: " + what,
          domain,
          "halving of the confidence on `LandExactUCL`",
          Measure::Absolute,
          {"land_sessions.csv", "true_" + column, kSession, press},
          {"land_sessions.csv", "fixed_" + column, kSession, press}};
}

}  // namespace

std::vector<Entry> MeanEntries() {
  return {
      {"JahrUCL: UCL",
       "natural logarithm",
       "`StudentUpperInverse`, Jahr (1987)",
       Measure::Absolute,
       {},
       {"jahr.csv", "UCL", kJahr, [](const Row& row) { return Jahr(row).UCL; }}},
      {"JahrUCL: exceedance",
       "percent",
       "`StudentUpper`, Jahr (1987)",
       Measure::Absolute,
       {},
       {"jahr.csv", "PercEx", kJahr, [](const Row& row) { return Jahr(row).PercEx; }}},
      ProbabilityEntry("nu 1", 1, 1),
      ProbabilityEntry("nu 2", 2, 2),
      ProbabilityEntry("nu 3 to 5", 3, 5),
      ProbabilityEntry("nu above 5", 6, 1e9),
      LimitEntry("nu 1, natural logarithm", 1, 1),
      LimitEntry("nu 2, natural logarithm", 2, 2),
      LimitEntry("nu above 2, natural logarithm", 3, 1e9),
      PressEntry("A", "percent", "A", [](const ucl::LandResult& result) { return result.A; }),
      PressEntry("UCL", "natural logarithm", "UCL",
                 [](const ucl::LandResult& result) { return result.UCL; }),
  };
}

}  // namespace accuracy
