#include <cmath>
#include <map>
#include <string>

#include "compliance/en689.h"
#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "tests/support/letters.h"
#include "tools/accuracy/compliance_searches.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using support::Row;
using Call = std::function<double(const Row&)>;

ExposureSession WithFactor(const Row& row) {
  ExposureSession s;
  s.df = row.Number("df");
  s.GM = 1;
  s.GSD = 2;
  s.U = 95;
  s.D = row.Number("b");
  return s;
}

compliance::FractionSearch FractionOf(const Row& row) {
  return compliance::En689Fraction(WithFactor(row), row.Number("a"));
}

// A limit beyond the bounds has no number, a fraction beyond them a text in its place.
bool HasNumber(const Row& row) {
  const std::string& kind = row.Text("kind");
  if (kind == "wilksutl") return std::abs(row.Number("true")) < 690;
  return kind != "fraction" || !FractionOf(row).text;
}

// Rows of compliance_truth.csv of one kind; `a` and `b` are arguments of that kind.
Source Truth(const std::string& kind, double from, double to, const Call& call) {
  static const std::map<std::string, std::vector<Column>> inputs = {
      {"wilks", {"df", {"a", "Ur"}}},
      {"wilksutl", {"df", {"a", "U"}, {"b", "GSD"}}},
      {"conf", {"df", {"a", "u"}, {"b", "r"}}},
      {"factor", {"df", {"a", "U"}, {"b", "D"}}},
      {"fraction", {"df", {"a", "Ur"}, {"b", "D"}}}};
  return {"compliance_truth.csv", "true", inputs.at(kind), call, [kind, from, to](const Row& row) {
            return row.Text("kind") == kind && row.Number("df") >= from && row.Number("df") <= to &&
                   HasNumber(row);
          }};
}

double Exceedance(const Row& row) {
  return compliance::WilksExceedance(row.Number("df"), row.Number("a"));
}
double LogLimit(const Row& row) {
  return std::log(
      compliance::WilksToleranceLimit(1, row.Number("b"), row.Number("a"), row.Number("df")).UTL);
}
double Confidence(const Row& row) {
  return compliance::En689ConfidenceAt(row.Number("df"), row.Number("a"), row.Number("b"));
}

double Factor(const Row& row) {
  ExposureSession s = WithFactor(row);
  s.U = row.Number("a");
  return std::log2(compliance::En689ToleranceLimit(s).UTL);
}
double Fraction(const Row& row) { return FractionOf(row).u; }

ExposureSession Session(const Row& row) {
  ExposureSession s;
  s.CR = "\r";
  s.M = row.Number("M");
  s.df = row.Number("df");
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.OELV = row.Number("OELV");
  s.U = row.Number("U");
  return s;
}

using Press = double (*)(ExposureSession& s, double Ur);

// Whole tests, by a column of sessions_tests.csv.
Source Steps(const std::string& column, Press press, double from = 1, double to = 1e9) {
  const bool search = column.starts_with("Tu_");
  return {"sessions_tests.csv",
          column,
          {"M", "df", "GM", "GSD", "OELV", "U", "D"},
          [press](const Row& row) {
            ExposureSession s = Session(row);
            s.D = row.Number("D");
            return press(s, row.Number("Ur"));
          },
          // Where a trial confidence lies within rounding of the mark, either way is right.
          [search, from, to](const Row& row) {
            if (row.Number("df") < from || row.Number("df") > to) return false;
            if (!search) return row.Text("Wi_state") == "ok";
            return row.Text("Tu_state") == "ok" && row.Number("U") > 50 &&
                   !row.Text("Tu_margin").empty() && row.Number("Tu_margin") > 1e-7;
          }};
}

double WilksPercEx(ExposureSession& s, double Ur) {
  compliance::WilksTest(s, Ur);
  return s.PercEx;
}
double WilksUTL(ExposureSession& s, double Ur) {
  compliance::WilksTest(s, Ur);
  return s.UTL;
}
double En689PercEx(ExposureSession& s, double Ur) {
  compliance::En689Test(s, Ur);
  return s.PercEx;
}
double En689UTL(ExposureSession& s, double Ur) {
  compliance::En689Test(s, Ur);
  return s.UTL;
}

double Optimised(const Row& row) {
  ExposureSession s = Session(row);
  s.NInRange = static_cast<std::int16_t>(row.Number("NInRange"));
  s.RegressionOn = row.Text("RegressionOn") == "1";
  s.TestTag = support::TagOf(row.Text("TestTag"));
  compliance::OptimiseSampleSize(s);
  return s.PercEx;
}

constexpr double kAll = 1e9;
constexpr const char* kSearch = "bisection on `NoncentralTUpper`, EN 689:2018 Annex F";
constexpr const char* kConfidence = "`NoncentralTUpper`, percent";

}  // namespace

std::vector<Entry> ComplianceEntries() {
  return {
      {"WilksExceedance", "percent", "`StudentUpper`, Wilks (1941), Proschan (1953)",
       Measure::Absolute, Truth("wilks", 1, kAll, Exceedance), Steps("Wi_PercEx", WilksPercEx),
       LookAtWilksExceedance()},
      {"WilksToleranceLimit", "ln(UTL / GM)", "`StudentUpperInverse`", Measure::Absolute,
       Truth("wilksutl", 1, kAll, LogLimit), Steps("Wi_UTL", WilksUTL), LookAtWilksLimit()},
      {"OptimiseSampleSize",
       "the exceedance, percent, as `WilksExceedance`",
       "`StudentUpper` at each df to 99",
       Measure::Absolute,
       {},
       {"sample_size_optimisation.csv",
        "PercEx",
        {"M", "GM", "GSD", "OELV", "U"},
        Optimised,
        [](const Row& row) {
          return row.Text("state") == "ok" && row.Text("TestTag") == "Wi" && row.Number("U") > 50;
        }},
       Listed()},
      {"En689ConfidenceAt", "df to 200", kConfidence, Measure::Absolute,
       Truth("conf", 1, 200, Confidence), Steps("Tu_PercEx", En689PercEx, 1, 200),
       LookAtConfidence(1, 200)},
      {"En689ConfidenceAt", "df above 200", kConfidence, Measure::Absolute,
       Truth("conf", 201, kAll, Confidence), Steps("Tu_PercEx", En689PercEx, 201, kAll),
       LookAtConfidence(201, 1999)},
      {"En689ToleranceLimit", "df to 200, ln(UTL / GM) / ln GSD, as a part of it or of 1", kSearch,
       Measure::Mixed, Truth("factor", 1, 200, Factor), Steps("Tu_UTL", En689UTL, 1, 200),
       LookAtFactor(1, 200)},
      {"En689ToleranceLimit", "df above 200, ln(UTL / GM) / ln GSD, as a part of it or of 1",
       kSearch, Measure::Mixed, Truth("factor", 201, kAll, Factor),
       Steps("Tu_UTL", En689UTL, 201, kAll), LookAtFactor(201, 1999)},
      {"En689Fraction",
       "df to 200, Ur -10 to 10, D 0.01 to 99.99, percent",
       kSearch,
       Measure::Absolute,
       Truth("fraction", 1, 200, Fraction),
       {},
       LookAtFraction(1, 200)},
      {"En689Fraction",
       "df above 200, Ur and D as above, percent",
       kSearch,
       Measure::Absolute,
       Truth("fraction", 201, kAll, Fraction),
       {},
       LookAtFraction(201, 1999)},
  };
}

std::vector<Entry> CompliancePeculiarities() {
  return {
      {"En689Fraction",
       "confidence at U below 1E-46 or above 99.999999999",
       "a text for nothing or for all at once, percent, without a search beyond U",
       Measure::Absolute,
       {"compliance_truth.csv",
        "true",
        {"df", {"a", "Ur"}, {"b", "D"}},
        [](const Row& row) {
          return FractionOf(row).text == std::string(compliance::kFractionAll) ? 100.0 : 0.0;
        },
        [](const Row& row) { return row.Text("kind") == "fraction" && !HasNumber(row); }},
       {},
       LookAtFractionText()},
  };
}

}  // namespace accuracy
