#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using support::Row;

// Rows of normal_truth.csv of one function, with arguments above `from` up to `to`.
Source Truth(const std::string& function, double from, double to,
             std::function<double(double)> call) {
  return {"normal_truth.csv",
          "true",
          {"argument"},
          [call](const Row& row) { return call(row.Number("argument")); },
          [function, from, to](const Row& row) {
            const double argument = row.Number("argument");
            return row.Text("function") == function && argument > from && argument <= to;
          }};
}

Source Steps(const std::string& table, const std::string& input, double from, double to,
             std::function<double(double)> call) {
  return {table,
          "result",
          {input},
          [input, call](const Row& row) { return call(row.Number(input)); },
          [input, from, to](const Row& row) {
            return row.Number(input) > from && row.Number(input) <= to;
          }};
}

double Upper(double x) { return StatFWinBAS::NormalUpper(x); }
double Hill(double x) { return StatFWinBAS::NormalUpperHill(x); }
double Inverse(double p) { return StatFWinBAS::NormalUpperInverse(p); }

Entry UpperEntry(const std::string& domain, double from, double to) {
  return {"NormalUpper",
          domain,
          to > 5 ? "the rational functions of `NormalUpperHill`"
                 : "Taylor series, Marsaglia (2004) eq. 1",
          Measure::Relative,
          Truth("upper", from, to, Upper),
          Steps("normal_upper.csv", "x", from, to, Upper)};
}

Entry HillEntry(const std::string& domain, double from, double to) {
  return {"NormalUpperHill",
          domain,
          "rational functions, Hill (1973), AS 66, outer limit 37",
          Measure::Relative,
          Truth("upper", from, to, Hill),
          Steps("normal_upper_hill.csv", "x", from, to, Hill)};
}

Entry InverseEntry(const std::string& domain, double from, double to) {
  return {"NormalUpperInverse",
          domain,
          "Beasley and Springer (1977), AS 111, and one step of third order",
          Measure::Relative,
          Truth("inverse", from, to, Inverse),
          Steps("normal_upper_inverse.csv", "p", from, to, Inverse)};
}

Source Polynomials(const std::string& table, const std::string& column) {
  return {table, column, {"x", "degree", "column"}, [](const Row& row) {
            return StatFWinBAS::RoystonPoly(row.Number("x"), static_cast<int>(row.Number("degree")),
                                            static_cast<int>(row.Number("column")));
          }};
}

}  // namespace

std::vector<Entry> NormalEntries() {
  return {
      UpperEntry("x to 0", -1000, 0),
      UpperEntry("x to 1.28", 0, 1.28),
      UpperEntry("x to 3", 1.28, 3),
      UpperEntry("x to 5", 3, 5),
      UpperEntry("x above 5", 5, 1000),
      HillEntry("x to 0", -1000, 0),
      HillEntry("x to 1.28", 0, 1.28),
      HillEntry("x above 1.28", 1.28, 1000),
      InverseEntry("p to 1E-280", 1e-300, 1e-280),
      InverseEntry("p to 1E-20", 1e-280, 1e-20),
      InverseEntry("p to 0.001", 1e-20, 1e-3),
      InverseEntry("p to 0.499", 1e-3, 0.499),
      InverseEntry("p from 0.501 to 0.999", 0.501, 0.999),
      InverseEntry("p to 1 - 2E-16", 0.999, 0.9999999999999998),
      {"RoystonPoly", "degree to 6, column 1 to 10", "polynomial, Royston (1995), AS R94",
       Measure::Relative, Polynomials("royston_poly_truth.csv", "true"),
       Polynomials("royston_poly.csv", "result")},
  };
}

std::vector<Entry> NormalPeculiarities() {
  return {
      {"NormalUpperInverse", "p to 1E-300", "37, whatever p", Measure::Relative,
       Truth("inverse", 0, 1e-300, Inverse)},
      {"NormalUpperInverse", "p from 0.9999999999999999 on", "-8.22208221613044, whatever p",
       Measure::Relative, Truth("inverse", 0.9999999999999998, 1, Inverse)},
  };
}

}  // namespace accuracy
