#include "tools/accuracy/distribution_sources.h"

#include <cmath>

#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"

namespace accuracy {
namespace {

using support::Row;
using Call = std::function<double(const Row&)>;

// Calls `routine` with the numbers of two columns.
Call Of(const std::string& first, const std::string& second, double (*routine)(double, double)) {
  return [=](const Row& row) { return routine(row.Number(first), row.Number(second)); };
}

double Area(double df, double t) { return StatFWinBAS::StudentUpper(df, t); }
double Deviate(double df, double p) { return StatFWinBAS::StudentUpperInverse(p, df); }
double Expansion(double df, double p) { return StatFWinBAS::StudentUpperInverseSeries(p, df); }
double Owen(double h, double a) { return StatFWinBAS::OwenT(h, a); }
double Chi(double df, double chi) { return StatFWinBAS::ChiUpper(df, chi); }

double Noncentral(const Row& row) {
  return StatFWinBAS::NoncentralTUpper(row.Number("f"), row.Number("p"), row.Number("K"));
}

Call F(const std::string& ratio) {
  return [ratio](const Row& row) {
    return StatFWinBAS::FUpper(row.Number("d1"), row.Number("d2"), row.Number(ratio));
  };
}

Takes Function(const std::string& function, const Takes& takes) {
  return
      [function, takes](const Row& row) { return row.Text("function") == function && takes(row); };
}

Source StudentTable(const std::string& function, double (*routine)(double, double),
                    const Takes& takes) {
  return {"student_truth.csv",
          "true",
          {"df", "argument"},
          Of("df", "argument", routine),
          Function(function, takes)};
}

}  // namespace

Takes Both(Takes first, Takes second) {
  return [first = std::move(first), second = std::move(second)](const Row& row) {
    return first(row) && second(row);
  };
}

Takes Not(Takes takes) {
  return [takes = std::move(takes)](const Row& row) { return !takes(row); };
}

Takes Between(const std::string& column, double from, double to) {
  return [column, from, to](const Row& row) {
    return row.Number(column) >= from && row.Number(column) <= to;
  };
}

Takes Odd(const std::string& column) {
  return [column](const Row& row) { return std::fmod(row.Number(column), 2) == 1; };
}

Source StudentTruth(const Takes& takes) { return StudentTable("upper", Area, takes); }
Source DeviateTruth(const Takes& takes) { return StudentTable("inverse", Deviate, takes); }
Source ExpansionTruth(const Takes& takes) { return StudentTable("inverse", Expansion, takes); }

Source NoncentralTruth(const Takes& takes) {
  return {"noncentral_t_truth.csv", "true", {"f", "p", "K"}, Noncentral, takes};
}

Source OwenTruth(const Takes& takes) {
  return {"owen_t_truth.csv", "true", {"h", "a"}, Of("h", "a", Owen), takes};
}

Source ChiTruth(const Takes& takes) {
  return {"chi_f_truth.csv",
          "true",
          {"d1", "argument"},
          Of("d1", "argument", Chi),
          Function("chi", takes)};
}

Source FTruth(const Takes& takes) {
  return {"chi_f_truth.csv", "true", {"d1", "d2", "argument"}, F("argument"), Function("f", takes)};
}

Source StudentSteps(const Takes& takes) {
  return {"student_upper.csv", "value", {"df", "t"}, Of("df", "t", Area), takes};
}

Source DeviateSteps(const Takes& takes) {
  return {"student_upper_inverse.csv", "t", {"p", "df"}, Of("df", "p", Deviate), takes};
}

Source ExpansionSteps(const Takes& takes) {
  return {"student_upper_inverse_series.csv", "t", {"p", "df"}, Of("df", "p", Expansion), takes};
}

Source NoncentralSteps(const Takes& takes) {
  return {"noncentral_t_upper.csv", "value", {"f", "p", "K"}, Noncentral, takes};
}

Source OwenSteps(const Takes& takes) {
  return {"owen_t.csv", "T", {"h", "a"}, Of("h", "a", Owen), takes};
}

Source ChiSteps(const Takes& takes) {
  return {"chi_upper.csv", "value", {"df", "chi"}, Of("df", "chi", Chi), takes};
}

Source FSteps(const Takes& takes) {
  return {"f_upper.csv", "value", {"d1", "d2", "F"}, F("F"), takes};
}

bool AtOne(const Row& row) {
  const double f = row.Number("f");
  return std::abs(std::sqrt(1 + 1 / f) * row.Number("K") - 1) <= 1e-16;
}

}  // namespace accuracy
