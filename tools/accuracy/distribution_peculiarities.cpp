#include <cmath>

#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"
#include "tools/accuracy/distribution_searches.h"
#include "tools/accuracy/distribution_sources.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy {
namespace {

using support::Row;

constexpr double kAnyDf = 1e9;

Source WithTruthOfItsOwn(Source source) {
  source.column = "true";
  return source;
}

// The lower area of the noncentral t at a proportion of a half, where it is the central one.
Source AtAHalf() {
  Source source = NoncentralSteps([](const Row& row) { return row.Number("p") == 0.5; });
  source.expected = [](const Row& row) {
    const double f = row.Number("f");
    return 1 - StatFWinBAS::StudentUpper(f, row.Number("K") * std::sqrt(f + 1));
  };
  return source;
}

Search LookAtAHalf() {
  Search search = LookAtNoncentral(1, 1999);
  search.axes[1] = {"p", 0.5, 0.5};
  search.takes = {};
  return search;
}

// K for which sqrt(1 + 1 / f) K is 1, or the double next to it.
Search LookAtOne() {
  Search search = LookAtNoncentral(2, 200);
  search.axes.pop_back();
  const auto factor = [](double f) { return 1 / std::sqrt(1 + 1 / f); };
  search.call = [factor](const Point& at) {
    return StatFWinBAS::NoncentralTUpper(at[0], at[1], factor(at[0]));
  };
  search.truth = [factor](const Point& at) {
    return truth::NoncentralLower(at[0], truth::NormalUpperInverse(at[1]), factor(at[0]));
  };
  search.takes = [factor](const Point& at) {
    return at[1] != 0.5 && std::sqrt(1 + 1 / at[0]) * factor(at[0]) == 1;
  };
  return search;
}

Search LookAtNoDistance() {
  Search search = LookAtOwen(1, 1, 1e10);
  search.axes[0] = {"h", 0, 0};
  search.takes = [](const Point& at) { return at[1] > 1; };
  return search;
}

Search LookAtEqual() {
  Search search = LookAtF(1, 29999, 1, 1);
  search.axes = {{"d1", 1, 29999, 1}, {"argument", 1 - 1e-10, 1 + 1e-10}};
  search.call = [](const Point& at) { return StatFWinBAS::FUpper(at[0], at[0], at[1]); };
  search.truth = [](const Point& at) { return truth::FUpper(at[0], at[0], at[1]); };
  search.takes = [](const Point& at) { return std::abs(at[1] - 1) <= 1e-10; };
  return search;
}

std::vector<Entry> StudentPeculiarities() {
  return {
      {"StudentUpper",
       "df above 30000",
       "one normal tail in place of the sum",
       Measure::Absolute,
       StudentTruth(Between("df", 30001, kAnyDf)),
       {},
       LookAtStudent(30001, kAnyDf)},
      {"StudentUpperInverse",
       "df 1",
       "the tangent by a pi that is cut off behind its 14th decimal, as it is in every routine",
       Measure::Relative,
       DeviateTruth(Between("df", 1, 1)),
       {},
       LookAtDeviate(1, 1)},
      {"StudentUpperInverse",
       "odd df from 5 to 999",
       "the slope lacks the factor (df - 1) / (df - 2), so that the steps alternate about the root "
       "and the stopping rule leaves a part of the last one",
       Measure::Relative,
       DeviateTruth(Both(Between("df", 5, 999), Odd("df"))),
       {},
       LookAtDeviate(5, 999, 2)},
      {"StudentUpperInverse",
       "df 3, and even df to 1000",
       "the steps end when the last one, as a part of t, is below a millionth of t itself",
       Measure::Relative,
       DeviateTruth(Both(Between("df", 3, 1000),
                         [](const Row& row) {
                           const double df = row.Number("df");
                           return df == 3 || std::fmod(df, 2) == 0;
                         })),
       {},
       Only([](const Point& at) { return at[0] == 3 || std::fmod(at[0], 2) == 0; },
            LookAtDeviate(3, 1000))},
      {"StudentUpperInverse",
       "df above 1000",
       "the expansion alone, without a step from it",
       Measure::Relative,
       DeviateTruth(Both(Between("df", 1001, 29999), Not(Between("argument", 0.499, 0.501)))),
       {},
       LookAtExpansion(1001, 29999)},
  };
}

std::vector<Entry> NoncentralPeculiarities() {
  return {
      {"NoncentralTUpper",
       "p 0.5",
       "the upper tail at K, where all other p give the lower one at K sqrt(f + 1)",
       Measure::Absolute,
       AtAHalf(),
       {},
       LookAtAHalf()},
      {"NoncentralTUpper",
       "from f 201 on",
       "one normal tail in place of the series",
       Measure::Absolute,
       NoncentralTruth(Between("f", 201, kAnyDf)),
       {},
       LookAtNoncentral(201, 1999)},
      {"NoncentralTUpper",
       "A exactly 1",
       "the sum stays 0",
       Measure::Absolute,
       WithTruthOfItsOwn(NoncentralSteps(AtOne)),
       {},
       LookAtOne()},
      {"OwenT",
       "h a above 4",
       "the short cut NormalUpper(h) / 2, for any a",
       Measure::Absolute,
       OwenTruth([](const Row& row) {
         return row.Number("a") != 1 && row.Number("h") * row.Number("a") > 4;
       }),
       {},
       Only([](const Point& at) { return at[1] != 1 && at[0] * at[1] > 4; },
            LookAtOwen(40, 0.1, 1e10))},
      {"OwenT",
       "a to 4E-08",
       "0",
       Measure::Absolute,
       OwenTruth(Between("a", 0, 4e-8)),
       {},
       LookAtOwen(40, 1e-12, 4e-8)},
      {"OwenT",
       "h 0 and a above 1",
       "the sign turns although nothing was swapped",
       Measure::Absolute,
       WithTruthOfItsOwn(OwenSteps(
           [](const Row& row) { return row.Number("h") == 0 && std::abs(row.Number("a")) > 1; })),
       {},
       LookAtNoDistance()},
  };
}

std::vector<Entry> VariancePeculiarities() {
  return {
      {"ChiUpper",
       "chi below 1E-16",
       "0 where the area is 1",
       Measure::Absolute,
       WithTruthOfItsOwn(ChiSteps([](const Row& row) { return row.Number("chi") < 1e-16; })),
       {},
       LookAtChi(1, 29999, 1e-30, 9.9e-17)},
      {"ChiUpper",
       "chi above 24 with df to 200",
       "the cube root: areas below 1E-36, and only that is right of them; the areas from 1E-300",
       Measure::Relative,
       ChiTruth(Both(Between("d1", 1, 200), Not(Between("argument", 0, 24)))),
       {},
       From(1e-300L, LookAtChi(1, 200, std::nextafter(24, 25), 38))},
      {"ChiUpper",
       "from df 201 on",
       "the cube root in place of the sum",
       Measure::Absolute,
       ChiTruth(Between("d1", 201, kAnyDf)),
       {},
       LookAtChi(201, 29999, 1e-15, 250)},
      {"FUpper",
       "d1 = d2 and F within 1E-10 of 1",
       "a half",
       Measure::Absolute,
       FTruth([](const Row& row) {
         return row.Number("d1") == row.Number("d2") &&
                std::abs(row.Number("argument") - 1) <= 1e-10;
       }),
       {},
       LookAtEqual()},
      {"FUpper",
       "both below 2000, d1 d2 from 32768 on",
       "the cube root in place of the sum",
       Measure::Absolute,
       FTruth([](const Row& row) {
         const double d1 = row.Number("d1");
         const double d2 = row.Number("d2");
         return d1 * d2 >= 32768 && d1 < 2000 && d2 < 2000;
       }),
       {},
       Only([](const Point& at) { return at[0] * at[1] >= 32768; }, LookAtF(17, 1999, 17, 1999))},
  };
}

}  // namespace

std::vector<Entry> DistributionPeculiarities() {
  std::vector<Entry> all = StudentPeculiarities();
  for (const auto& part : {NoncentralPeculiarities(), VariancePeculiarities()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace accuracy
