#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/truth/distributions.h"
#include "tools/accuracy/truth/orders.h"

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

// The borders of the three routines.
const std::vector<double> kDeviates = {-37, -5, -1.28, -1e-15, 0, 1e-15, 1.28, 5, 37};
const std::vector<double> kAreas = {
    1e-300, 1e-280, 1e-20, 0.001, 0.08, 0.499, 0.5, 0.501, 0.92, 0.999, 0.9999999999999998};

Search Look(double from, double to, const std::vector<double>& borders, double (*routine)(double),
            Real (*truth)(Real)) {
  Search search;
  search.axes = {{"argument", from, to, 0, borders}};
  search.call = [routine](const Point& at) { return routine(at[0]); };
  search.truth = [truth](const Point& at) { return truth(at[0]); };
  search.takes = [from](const Point& at) { return at[0] > from; };
  search.tries = 40000;
  return search;
}

Entry UpperEntry(const std::string& domain, double from, double to) {
  return {"NormalUpper",
          domain,
          from >= 5 ? "the rational functions of `NormalUpperHill`"
                    : "Taylor series, Marsaglia (2004) eq. 1",
          Measure::Relative,
          Truth("upper", from, to, Upper),
          Steps("normal_upper.csv", "x", from, to, Upper),
          Look(from, to, kDeviates, Upper, truth::NormalUpper)};
}

Entry HillEntry(const std::string& domain, double from, double to) {
  return {"NormalUpperHill",
          domain,
          "rational functions, Hill (1973), AS 66, outer limit 37",
          Measure::Relative,
          Truth("upper", from, to, Hill),
          Steps("normal_upper_hill.csv", "x", from, to, Hill),
          Look(from, to, kDeviates, Hill, truth::NormalUpper)};
}

Entry InverseEntry(const std::string& domain, double from, double to,
                   Measure measure = Measure::Relative) {
  return {"NormalUpperInverse",
          domain,
          "Beasley and Springer (1977), AS 111, and one step of third order",
          measure,
          Truth("inverse", from, to, Inverse),
          Steps("normal_upper_inverse.csv", "p", from, to, Inverse),
          Look(from, to, kAreas, Inverse, truth::NormalUpperInverse)};
}

Source Polynomials(const std::string& table, const std::string& column) {
  return {table, column, {"x", "degree", "column"}, [](const Row& row) {
            return StatFWinBAS::RoystonPoly(row.Number("x"), static_cast<int>(row.Number("degree")),
                                            static_cast<int>(row.Number("column")));
          }};
}

Search LookAtPolynomials() {
  Search search;
  search.axes = {{"x", 0.01, 11}, {"degree", 0, 6, 1}, {"column", 1, 10, 1}};
  search.call = [](const Point& at) {
    return StatFWinBAS::RoystonPoly(at[0], static_cast<int>(at[1]), static_cast<int>(at[2]));
  };
  search.truth = [](const Point& at) {
    return truth::RoystonPoly(at[0], static_cast<int>(at[1]), static_cast<int>(at[2]));
  };
  return search;
}

}  // namespace

std::vector<Entry> NormalEntries() {
  return {
      UpperEntry("x to 0", -40, 0),
      UpperEntry("x to 1.28", 0, 1.28),
      UpperEntry("x to 3", 1.28, 3),
      UpperEntry("x to 5", 3, 5),
      UpperEntry("x to 37", 5, 37),
      HillEntry("x to 0", -40, 0),
      HillEntry("x to 1.28", 0, 1.28),
      HillEntry("x to 37", 1.28, 37),
      InverseEntry("p to 1E-280", 1e-300, 1e-280),
      InverseEntry("p to 1E-20", 1e-280, 1e-20),
      InverseEntry("p to 0.001", 1e-20, 1e-3),
      InverseEntry("p to 0.499", 1e-3, 0.499),
      InverseEntry("p to 0.501, absolute", 0.499, 0.501, Measure::Absolute),
      InverseEntry("p to 0.999", 0.501, 0.999),
      InverseEntry("p to 1 - 2E-16", 0.999, 0.9999999999999998),
      {"RoystonPoly", "degree to 6, column 1 to 10, x 0.01 to 11",
       "polynomial, Royston (1995), AS R94", Measure::Mixed,
       Polynomials("royston_poly_truth.csv", "true"), Polynomials("royston_poly.csv", "result"),
       LookAtPolynomials()},
  };
}

std::vector<Entry> NormalPeculiarities() {
  return {
      {"NormalUpperInverse",
       "p from 1E-307 to 1E-300",
       "37, whatever p",
       Measure::Relative,
       Truth("inverse", 0, 1e-300, Inverse),
       {},
       Look(1e-307, 1e-300, kAreas, Inverse, truth::NormalUpperInverse)},
      {"NormalUpperInverse",
       "p from 0.9999999999999999 on",
       "-8.22208221613044, whatever p",
       Measure::Relative,
       Truth("inverse", 0.9999999999999998, 1, Inverse),
       {},
       Listed()},
  };
}

}  // namespace accuracy
