#include <cmath>

#include "stats/student.h"
#include "tools/accuracy/distribution_sources.h"
#include "tools/accuracy/entries.h"

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

std::vector<Entry> StudentPeculiarities() {
  return {
      {"StudentUpper", "df above 30000", "one normal tail in place of the sum", Measure::Absolute,
       StudentTruth(Between("df", 30001, kAnyDf))},
      {"StudentUpperInverse", "df 1",
       "the tangent by a pi that is cut off behind its 14th decimal, as it is in every routine",
       Measure::Relative, DeviateTruth(Between("df", 1, 1))},
      {"StudentUpperInverse", "odd df from 5 to 999",
       "the slope lacks the factor (df - 1) / (df - 2), so that the steps alternate about the root "
       "and the stopping rule leaves a part of the last one",
       Measure::Relative, DeviateTruth(Both(Between("df", 5, 999), Odd("df")))},
      {"StudentUpperInverse", "df 3, and even df to 1000",
       "the steps end when the last one, as a part of t, is below a millionth of t itself",
       Measure::Relative,
       DeviateTruth(Both(Between("df", 3, 1000),
                         [](const Row& row) {
                           const double df = row.Number("df");
                           return df == 3 || std::fmod(df, 2) == 0;
                         }))},
      {"StudentUpperInverse", "df above 1000", "the expansion alone, without a step from it",
       Measure::Relative, DeviateTruth(Between("df", 1001, kAnyDf))},
  };
}

std::vector<Entry> NoncentralPeculiarities() {
  return {
      {"NoncentralTUpper", "p 0.5",
       "the upper tail at K, where all other p give the lower one at K sqrt(f + 1)",
       Measure::Absolute, AtAHalf()},
      {"NoncentralTUpper", "from f 201 on", "one normal tail in place of the series",
       Measure::Absolute, NoncentralTruth(Between("f", 201, kAnyDf))},
      {"NoncentralTUpper", "A exactly 1", "the sum stays 0", Measure::Absolute,
       WithTruthOfItsOwn(NoncentralSteps(AtOne))},
      {"OwenT", "h a above 4", "the short cut NormalUpper(h) / 2, for any a", Measure::Absolute,
       OwenTruth([](const Row& row) {
         return row.Number("a") != 1 && row.Number("h") * row.Number("a") > 4;
       })},
      {"OwenT", "a to 4E-08", "0", Measure::Absolute, OwenTruth(Between("a", 0, 4e-8))},
      {"OwenT", "h 0 and a above 1", "the sign turns although nothing was swapped",
       Measure::Absolute, WithTruthOfItsOwn(OwenSteps([](const Row& row) {
         return row.Number("h") == 0 && std::abs(row.Number("a")) > 1;
       }))},
  };
}

std::vector<Entry> VariancePeculiarities() {
  return {
      {"ChiUpper", "chi below 1E-16", "0 where the area is 1", Measure::Absolute,
       WithTruthOfItsOwn(ChiSteps([](const Row& row) { return row.Number("chi") < 1e-16; }))},
      {"ChiUpper", "chi above 24 with df to 200",
       "the cube root: areas below 1E-36, and only that is right of them", Measure::Relative,
       ChiTruth(Both(Between("d1", 1, 200), Not(Between("argument", 0, 24))))},
      {"ChiUpper", "from df 201 on", "the cube root in place of the sum", Measure::Absolute,
       ChiTruth(Between("d1", 201, kAnyDf))},
      {"FUpper", "d1 = d2 and F within 1E-10 of 1", "a half", Measure::Absolute,
       FTruth([](const Row& row) {
         return row.Number("d1") == row.Number("d2") &&
                std::abs(row.Number("argument") - 1) <= 1e-10;
       })},
      {"FUpper", "both below 2000, d1 d2 from 32768 on", "the cube root in place of the sum",
       Measure::Absolute, FTruth([](const Row& row) {
         const double d1 = row.Number("d1");
         const double d2 = row.Number("d2");
         return d1 * d2 >= 32768 && d1 < 2000 && d2 < 2000;
       })},
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
