#include <cmath>

#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using support::Row;
using Call = std::function<double(const Row&)>;
using Takes = std::function<bool(const Row&)>;

double StudentArea(const Row& row) {
  return StatFWinBAS::StudentUpper(row.Number("df"), row.Number("t"));
}
double StudentDeviate(const Row& row) {
  return StatFWinBAS::StudentUpperInverse(row.Number("p"), row.Number("df"));
}
double StudentSeries(const Row& row) {
  return StatFWinBAS::StudentUpperInverseSeries(row.Number("p"), row.Number("df"));
}
double Noncentral(const Row& row) {
  return StatFWinBAS::NoncentralTUpper(row.Number("f"), row.Number("p"), row.Number("K"));
}
double Owen(const Row& row) { return StatFWinBAS::OwenT(row.Number("h"), row.Number("a")); }
double Chi(const Row& row) { return StatFWinBAS::ChiUpper(row.Number("df"), row.Number("chi")); }
double F(const Row& row) {
  return StatFWinBAS::FUpper(row.Number("d1"), row.Number("d2"), row.Number("F"));
}

Takes Between(const std::string& column, double from, double to) {
  return [column, from, to](const Row& row) {
    return row.Number(column) >= from && row.Number(column) <= to;
  };
}

// The truth tables name the function of a row and call its last input "argument".
Call Renamed(const std::string& name, double (*routine)(double, double)) {
  return
      [name, routine](const Row& row) { return routine(row.Number(name), row.Number("argument")); };
}

Takes Function(const std::string& function, const Takes& takes) {
  return
      [function, takes](const Row& row) { return row.Text("function") == function && takes(row); };
}

Entry StudentEntry(const std::string& domain, double from, double to, const std::string& method) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpper",
          domain,
          method,
          Measure::Absolute,
          {"student_truth.csv",
           "true",
           {"df", "argument"},
           Renamed("df", [](double df, double t) { return StatFWinBAS::StudentUpper(df, t); }),
           Function("upper", takes)},
          {"student_upper.csv", "value", {"df", "t"}, StudentArea, takes}};
}

Entry DeviateEntry(const std::string& domain, double from, double to, const std::string& method) {
  const Takes takes = Between("df", from, to);
  return {
      "StudentUpperInverse",
      domain,
      method,
      Measure::Relative,
      {"student_truth.csv",
       "true",
       {"df", "argument"},
       Renamed("df", [](double df, double p) { return StatFWinBAS::StudentUpperInverse(p, df); }),
       Function("inverse", takes)},
      {"student_upper_inverse.csv", "t", {"p", "df"}, StudentDeviate, takes}};
}

bool AtOne(double f, double K) { return std::abs(std::sqrt(1 + 1 / f) * K - 1) <= 1e-16; }

bool IsPeculiar(const Row& row) {
  return row.Number("p") == 0.5 || AtOne(row.Number("f"), row.Number("K"));
}

Entry NoncentralEntry(const std::string& domain, double from, double to,
                      const std::string& method) {
  const Takes takes = [from, to](const Row& row) {
    return row.Number("f") >= from && row.Number("f") <= to && !IsPeculiar(row);
  };
  const std::vector<std::string> inputs = {"f", "p", "K"};
  return {"NoncentralTUpper",
          domain,
          method,
          Measure::Absolute,
          {"noncentral_t_truth.csv", "true", inputs, Noncentral, takes},
          {"noncentral_t_upper.csv", "value", inputs, Noncentral, takes}};
}

bool ShortCut(const Row& row) {
  return row.Number("h") != 0 && std::abs(row.Number("h") * row.Number("a")) > 4;
}

bool NoShortCut(const Row& row) {
  return !ShortCut(row) && !(row.Number("h") == 0 && std::abs(row.Number("a")) > 1);
}

// By the finite sums or by the cube root; `column` holds chi.
Takes ChiExact(bool exact, const std::string& df, const std::string& column) {
  return [=](const Row& row) {
    const bool sum = row.Number(df) <= 200 && row.Number(column) <= 24;
    return row.Number(column) >= 1e-16 && sum == exact;
  };
}

Entry ChiEntry(const std::string& domain, bool exact, const std::string& method) {
  return {"ChiUpper",
          domain,
          method,
          Measure::Absolute,
          {"chi_f_truth.csv",
           "true",
           {"d1", "argument"},
           Renamed("d1", [](double df, double chi) { return StatFWinBAS::ChiUpper(df, chi); }),
           Function("chi", ChiExact(exact, "d1", "argument"))},
          {"chi_upper.csv", "value", {"df", "chi"}, Chi, ChiExact(exact, "df", "chi")}};
}

Entry FEntry(const std::string& domain, bool exact, const std::string& method) {
  const Takes takes = [exact](const Row& row) {
    return (row.Number("d1") * row.Number("d2") < 32768) == exact;
  };
  return {"FUpper",
          domain,
          method,
          Measure::Absolute,
          {"chi_f_truth.csv",
           "true",
           {"d1", "d2", "argument"},
           [](const Row& row) {
             return StatFWinBAS::FUpper(row.Number("d1"), row.Number("d2"), row.Number("argument"));
           },
           Function("f", takes)},
          {"f_upper.csv", "value", {"d1", "d2", "F"}, F, takes}};
}

}  // namespace

std::vector<Entry> DistributionEntries() {
  return {
      StudentEntry("df to 30000", 1, 30000, "finite sums, Abramowitz and Stegun 26.7.3, 26.7.4"),
      StudentEntry("df above 30000", 30001, 1e9, "one normal tail, Abramowitz and Stegun 26.7.8"),
      DeviateEntry("df 1 and 2", 1, 2, "closed form"),
      DeviateEntry("df 3 to 1000", 3, 1000, "Newton's steps on the finite sums"),
      DeviateEntry("df above 1000", 1001, 1e9, "`StudentUpperInverseSeries`"),
      {"StudentUpperInverseSeries",
       "every df, a start value below 1000",
       "Cornish-Fisher, Abramowitz and Stegun 26.7.5",
       Measure::Relative,
       {},
       {"student_upper_inverse_series.csv", "t", {"p", "df"}, StudentSeries}},
      NoncentralEntry("f to 200", 1, 200, "Owen (1968), recurrence of AS 5"),
      NoncentralEntry("f above 200", 201, 1e9, "one normal tail, Abramowitz and Stegun 26.7.10"),
      {"OwenT",
       "h a to 4",
       "series of the T function, Owen (1956)",
       Measure::Absolute,
       {"owen_t_truth.csv", "true", {"h", "a"}, Owen, NoShortCut},
       {"owen_t.csv", "T", {"h", "a"}, Owen}},
      ChiEntry("df to 200, chi to 24", true, "finite sums, Abramowitz and Stegun 26.4.4, 26.4.5"),
      ChiEntry("beyond", false, "cube root, Wilson and Hilferty (1931)"),
      FEntry("d1 d2 below 32768", true, "finite sums, Abramowitz and Stegun 26.6.4 to 26.6.8"),
      FEntry("beyond", false, "cube root, Paulson (1942)"),
  };
}

std::vector<Entry> DistributionPeculiarities() {
  return {
      {"StudentUpperInverse",
       "df above 2",
       "the stop holds the relative step against a millionth of t itself",
       Measure::Relative,
       {"student_truth.csv",
        "true",
        {"df", "argument"},
        Renamed("df", [](double df, double p) { return StatFWinBAS::StudentUpperInverse(p, df); }),
        Function("inverse", Between("df", 3, 1000))}},
      {"NoncentralTUpper",
       "p 0.5",
       "the upper tail at K, where all other p give the lower one at K sqrt(f + 1)",
       Measure::Absolute,
       {"noncentral_t_upper.csv",
        "value",
        {"f", "p", "K"},
        Noncentral,
        [](const Row& row) { return row.Number("p") == 0.5; },
        [](const Row& row) {
          const double f = row.Number("f");
          return 1 - StatFWinBAS::StudentUpper(f, row.Number("K") * std::sqrt(f + 1));
        }}},
      {"NoncentralTUpper",
       "from f 201 on",
       "one normal tail in place of the series",
       Measure::Absolute,
       {"noncentral_t_truth.csv", "true", {"f", "p", "K"}, Noncentral, Between("f", 201, 1e9)}},
      {"NoncentralTUpper",
       "A exactly 1",
       "the sum stays 0",
       Measure::Absolute,
       {"noncentral_t_upper.csv",
        "true",
        {"f", "p", "K"},
        Noncentral,
        [](const Row& row) { return AtOne(row.Number("f"), row.Number("K")); }}},
      {"OwenT",
       "h a above 4",
       "the short cut NormalUpper(h) / 2, for any a",
       Measure::Absolute,
       {"owen_t_truth.csv", "true", {"h", "a"}, Owen, ShortCut}},
      {"OwenT",
       "h 0 and a above 1",
       "the sign turns although nothing was swapped",
       Measure::Absolute,
       {"owen_t.csv",
        "true",
        {"h", "a"},
        Owen,
        [](const Row& row) { return row.Number("h") == 0 && std::abs(row.Number("a")) > 1; }}},
      {"ChiUpper",
       "chi below 1E-16",
       "0 where the area is 1",
       Measure::Absolute,
       {"chi_upper.csv",
        "true",
        {"df", "chi"},
        Chi,
        [](const Row& row) { return row.Number("chi") < 1e-16; }}},
  };
}

}  // namespace accuracy
