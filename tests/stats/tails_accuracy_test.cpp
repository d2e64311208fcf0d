#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

// How far the methods of Student's t, the noncentral t, Owen's T, chi-square and F are from the
// mathematical value. The figures are those of the head comments; they are errors last seen, so
// that a loss of digits is noticed.
namespace {

using support::Row;

using Takes = std::function<bool(const Row&)>;
using Routine = std::function<double(const Row&)>;

double Number(const Row& row, const char* column) { return row.Number(column); }
bool Between(double value, double from, double to) { return from <= value && value <= to; }

std::string Shown(const Row& row, const std::vector<std::string>& inputs) {
  std::string text = row.Where();
  for (const std::string& input : inputs) text += " " + input + " " + row.Text(input);
  return text;
}

struct Truth {
  std::string table;
  std::vector<std::string> inputs;
  Routine routine;
};

// The largest relative error among the rows that `takes` lets through.
void HoldRelative(const char* name, const Truth& truth, double ratchet, const Takes& takes) {
  table::Worst worst;
  for (const Row& row : support::ReadTable(truth.table))
    if (takes(row)) worst.Take(truth.routine(row), Number(row, "true"), Shown(row, truth.inputs));
  worst.Hold(name, ratchet);
}

void HoldAbsolute(const char* name, const Truth& truth, double ratchet, const Takes& takes) {
  table::WorstAbsolute worst;
  for (const Row& row : support::ReadTable(truth.table))
    if (takes(row)) worst.Take(truth.routine(row), Number(row, "true"), Shown(row, truth.inputs));
  worst.Hold(name, ratchet);
}

Truth StudentTruth(double (*routine)(double, double), bool dfFirst) {
  return {"student_truth.csv", {"function", "df", "argument"}, [=](const Row& row) {
            const double df = Number(row, "df"), argument = Number(row, "argument");
            return dfFirst ? routine(df, argument) : routine(argument, df);
          }};
}

Takes Areas(double from, double to, double least) {
  return [=](const Row& row) {
    return row.Text("function") == "upper" && Between(Number(row, "df"), from, to) &&
           Number(row, "true") >= least;
  };
}

enum class Parity { Both, Odd, Even };

// Deviates of areas no farther from 0.5 than `span`.
Takes Deviates(double from, double to, double span, Parity parity = Parity::Both) {
  return [=](const Row& row) {
    const double df = Number(row, "df");
    const bool odd = std::fmod(df, 2) == 1;
    return row.Text("function") == "inverse" && Between(df, from, to) &&
           std::abs(Number(row, "argument") - 0.5) <= span &&
           (parity == Parity::Both || odd == (parity == Parity::Odd));
  };
}

constexpr double kMiddle = 0.475;

class TailsAccuracy : public table::Delivered {};

TEST_F(TailsAccuracy, OfStudentsAreaIsAsStated) {
  const Truth truth = StudentTruth(StatFWinBAS::StudentUpper, true);
  HoldRelative("df to 1001", truth, 2.5e-13, Areas(1, 1001, 0.01));
  HoldRelative("df to 30000", truth, 4e-12, Areas(1002, 30000, 0.01));
  HoldRelative("df above 30000", truth, 8e-9, Areas(30001, 1e6, 0.01));
  HoldAbsolute("every area, df to 1001", truth, 1.2e-14, Areas(1, 1001, 0));
  HoldAbsolute("every area, df to 30000", truth, 3e-13, Areas(1002, 30000, 0));
  HoldAbsolute("every area, df above 30000", truth, 1.2e-10, Areas(30001, 1e6, 0));
}

TEST_F(TailsAccuracy, OfStudentsDeviateIsAsStated) {
  const Truth truth = StudentTruth(StatFWinBAS::StudentUpperInverse, false);
  HoldRelative("df 1 to 3", truth, 1e-11, Deviates(1, 3, kMiddle));
  HoldRelative("df 1 to 3, outside", truth, 3.5e-10, Deviates(1, 3, 1));
  HoldRelative("even", truth, 8e-12, Deviates(4, 1000, kMiddle, Parity::Even));
  HoldRelative("even, outside", truth, 5e-10, Deviates(4, 1000, 1, Parity::Even));
  HoldRelative("odd", truth, 6e-7, Deviates(5, 999, kMiddle, Parity::Odd));
  HoldRelative("odd, outside", truth, 2.2e-6, Deviates(5, 999, 1, Parity::Odd));
  HoldRelative("above 1000", truth, 8e-14, Deviates(1001, 1e6, kMiddle));
  HoldRelative("above 1000, outside", truth, 2.5e-13, Deviates(1001, 1e6, 1));
}

TEST_F(TailsAccuracy, OfTheExpansionIsAsStated) {
  const Truth truth = StudentTruth(StatFWinBAS::StudentUpperInverseSeries, false);
  HoldRelative("df to 9", truth, 0.14, Deviates(1, 9, kMiddle));
  HoldRelative("df to 1000", truth, 5e-6, Deviates(10, 1000, kMiddle));
  HoldRelative("df to 1000, outside", truth, 7e-4, Deviates(10, 1000, 1));
}

TEST_F(TailsAccuracy, OfTheNoncentralAreaIsAsStated) {
  const Truth truth = {"noncentral_t_truth.csv", {"f", "p", "K"}, [](const Row& row) {
                         return StatFWinBAS::NoncentralTUpper(Number(row, "f"), Number(row, "p"),
                                                              Number(row, "K"));
                       }};
  const auto takes = [](double from, double to, Parity parity, bool outside = false) {
    return [=](const Row& row) {
      const double f = Number(row, "f");
      const bool odd = std::fmod(f, 2) == 1;
      return Between(f, from, to) && (outside || Between(Number(row, "p"), 0.001, 0.95)) &&
             (parity == Parity::Both || odd == (parity == Parity::Odd));
    };
  };
  HoldAbsolute("even", truth, 1.5e-13, takes(1, 200, Parity::Even));
  HoldAbsolute("even, outside", truth, 4e-12, takes(1, 200, Parity::Even, true));
  HoldAbsolute("odd to 9", truth, 1e-6, takes(1, 9, Parity::Odd, true));
  HoldAbsolute("odd, from 29 on", truth, 7e-7, takes(29, 200, Parity::Odd, true));
  HoldAbsolute("odd, from 99 on", truth, 6e-9, takes(99, 200, Parity::Odd, true));
  HoldAbsolute("above 200", truth, 2.6e-3, takes(201, 1e6, Parity::Both));
  HoldAbsolute("above 200, outside", truth, 3e-3, takes(201, 1e6, Parity::Both, true));
  HoldAbsolute("above 900", truth, 1.4e-3, takes(900, 1e6, Parity::Both, true));
}

TEST_F(TailsAccuracy, OfOwensFunctionIsAsStated) {
  const Truth truth = {"owen_t_truth.csv", {"h", "a"}, [](const Row& row) {
                         return StatFWinBAS::OwenT(Number(row, "h"), Number(row, "a"));
                       }};
  const auto series = [](const Row& row) {
    const double h = Number(row, "h"), a = Number(row, "a");
    return a != 1 && h * a <= 4;
  };
  HoldAbsolute("series", truth, 4.5e-12,
               [&](const Row& row) { return series(row) && Number(row, "a") > 4E-08; });
  HoldAbsolute("no angle", truth, 7e-9, series);
  HoldAbsolute("angle 1", truth, 1.2e-16, [](const Row& row) { return Number(row, "a") == 1; });
  HoldAbsolute("short cut", truth, 4.2e-7,
               [](const Row& row) { return Number(row, "h") * Number(row, "a") > 4; });
}

TEST_F(TailsAccuracy, OfTheChiSquareAreaIsAsStated) {
  const Truth truth = {"chi_f_truth.csv", {"d1", "argument"}, [](const Row& row) {
                         return StatFWinBAS::ChiUpper(Number(row, "d1"), Number(row, "argument"));
                       }};
  const auto takes = [](double least, bool exact, int parity) {
    return [=](const Row& row) {
      const double df = row.Text("function") == "chi" ? Number(row, "d1") : 0;
      const bool sums = df <= 200 && Number(row, "argument") <= 24;
      return df > 0 && sums == exact && Number(row, "true") >= least &&
             (!exact || std::fmod(df, 2) == parity);
    };
  };
  HoldRelative("even", truth, 4e-15, takes(1e-3, true, 0));
  HoldRelative("even, every area", truth, 3.5e-14, takes(0, true, 0));
  HoldRelative("odd", truth, 4e-13, takes(1e-3, true, 1));
  HoldRelative("odd, every area", truth, 6e-11, takes(0, true, 1));
  HoldRelative("cube root", truth, 6e-3, takes(1e-3, false, 0));
  HoldAbsolute("cube root, every area", truth, 6e-5, takes(0, false, 0));
}

TEST_F(TailsAccuracy, OfTheFAreaIsAsStated) {
  const Truth truth = {"chi_f_truth.csv", {"d1", "d2", "argument"}, [](const Row& row) {
                         return StatFWinBAS::FUpper(Number(row, "d1"), Number(row, "d2"),
                                                    Number(row, "argument"));
                       }};
  const auto takes = [](double from, double to, bool firstEven) {
    return [=](const Row& row) {
      const double d1 = Number(row, "d1"), d2 = Number(row, "d2");
      return row.Text("function") == "f" && Between(d1 * d2, from, to) &&
             std::abs(Number(row, "argument") - 1) > 1e-9 && (!firstEven || std::fmod(d1, 2) == 0);
    };
  };
  HoldRelative("first even", truth, 2e-13, takes(1, 32767, true));
  const auto one = [&](double from, double to) {
    return [=](const Row& row) {
      return takes(1, 32767, false)(row) && Number(row, "d1") == 1 &&
             std::fmod(Number(row, "d2"), 2) == 0 && Between(Number(row, "argument"), from, to);
    };
  };
  HoldAbsolute("sums", truth, 2.2e-13,
               [&](const Row& row) { return takes(1, 32767, false)(row) && !one(0, 1e40)(row); });
  HoldAbsolute("sums of 1 and even", truth, 1.8e-12, one(0.01, 1e40));
  HoldAbsolute("sums of 1 and even, small ratios", truth, 1.7e-11, one(1e-4, 0.01));
  HoldAbsolute("sums of 1 and even, every ratio", truth, 4.8e-7, one(0, 1e40));
  HoldAbsolute("cube root", truth, 5e-3, takes(32768, 1e9, false));
  HoldAbsolute("cube root, up to 2000", truth, 9e-4, [&](const Row& row) {
    return takes(32768, 1e9, false)(row) && Number(row, "d1") < 2001 && Number(row, "d2") < 2001;
  });
}

}  // namespace
