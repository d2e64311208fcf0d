#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "compliance/en689.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/record.h"

// How far the compliance tests are from the mathematical values. The bounds are the errors last
// seen with a little room; they only ever get smaller.
namespace {

using support::Row;
using table::WorstAbsolute;

class ComplianceAccuracy : public table::Delivered {};

std::string Where(const Row& row) {
  return row.Where() + " df " + row.Text("df") + ", " + row.Text("a") + ", " + row.Text("b");
}

// With these, a tolerance limit is 2 to the power of its factor.
ExposureSession Session(double df, double U, double D) {
  ExposureSession s = support::SampleRecord(df + 1, 1, 2, 1);
  s.U = U;
  s.D = D;
  return s;
}

double ToleranceFactor(double df, double U, double D) {
  return std::log2(compliance::En689ToleranceLimit(Session(df, U, D)).UTL);
}

double Factor(const Row& row) {
  return ToleranceFactor(row.Number("df"), row.Number("a"), row.Number("b"));
}

double LogLimit(const Row& row) {
  const double df = row.Number("df");
  const double GSD = row.Number("b");
  return compliance::WilksToleranceLimit(1, GSD, row.Number("a"), df).WilksFactor *
         compliance::WilksSpread(df) * std::log(GSD);
}

// Starts next to the answer: from a coverage far off, the confidence is all or nothing, and the
// search ends with its text at once.
double Fraction(const Row& row) {
  const double U = std::floor(row.Number("true") * 10) / 10 - 0.1;
  const ExposureSession s = Session(row.Number("df"), U, row.Number("b"));
  const compliance::FractionSearch search = compliance::En689Fraction(s, row.Number("a"));
  EXPECT_EQ(search.text, nullptr) << row.Where();
  return search.u;
}

double Measured(const Row& row) {
  const std::string& kind = row.Text("kind");
  if (kind == "wilks") return compliance::WilksExceedance(row.Number("df"), row.Number("a"));
  if (kind == "wilksutl") return LogLimit(row);
  if (kind == "conf")
    return compliance::En689ConfidenceAt(row.Number("df"), row.Number("a"), row.Number("b"));
  return kind == "factor" ? Factor(row) : Fraction(row);
}

// The noncentral t is an approximation by one normal tail above 200 degrees of freedom.
std::string Region(const Row& row) {
  const bool exact =
      row.Text("kind").starts_with("wilks") ? row.Number("df") <= 1000 : row.Number("df") <= 200;
  return row.Text("kind") + (exact ? "" : ", many degrees of freedom");
}

TEST_F(ComplianceAccuracy, HoldsAgainstArbitraryPrecision) {
  std::map<std::string, WorstAbsolute> regions;
  for (const Row& row : support::ReadTable("compliance_truth.csv"))
    regions[Region(row)].Take(Measured(row), row.Number("true"), Where(row));
  const std::map<std::string, double> ratchets{
      {"wilks", 7e-13},     {"wilks, many degrees of freedom", 7e-13},
      {"wilksutl", 1.7e-5}, {"wilksutl, many degrees of freedom", 5.2e-13},
      {"conf", 1.5e-5},     {"conf, many degrees of freedom", 0.11},
      {"factor", 3.6e-3},   {"factor, many degrees of freedom", 7.8e-4},
      {"fraction", 2e-3},   {"fraction, many degrees of freedom", 3.4e-3}};
  ASSERT_EQ(regions.size(), ratchets.size());
  for (const auto& [region, largest] : regions) largest.Hold(region, ratchets.at(region));
}

// The search stops within 0.001 percent of the confidence, so the factor is as good as that.
TEST_F(ComplianceAccuracy, TheTabulatedToleranceFactorsComeOutWithinTheStopOfTheSearch) {
  WorstAbsolute exact;
  WorstAbsolute approximate;
  for (const Row& row : support::ReadTable("tolerance_k_derived.csv")) {
    const double df = row.Number("n") - 1;
    const double k =
        ToleranceFactor(df, 100 * row.Number("coverage"), 100 * row.Number("confidence"));
    (df <= 200 ? exact : approximate)
        .Take(k / row.Number("k"), 1,
              row.Where() + " n " + row.Text("n") + ", " + row.Text("coverage") + ", " +
                  row.Text("confidence"));
  }
  exact.Hold("factors, relative", 5.2e-4);
  approximate.Hold("factors, relative, many degrees of freedom", 1.9e-3);
}

TEST_F(ComplianceAccuracy, TheFactorsOfTheStandardComeOutToItsLastDecimal) {
  WorstAbsolute factors;
  for (const Row& row : support::ReadTable("en689_2018_table_UT.csv")) {
    factors.Take(ToleranceFactor(row.Number("n") - 1, 95, 70), row.Number("UT_published"),
                 row.Where() + " n " + row.Text("n"));
  }
  factors.Hold("factors UT", 5e-4);
}

}  // namespace
