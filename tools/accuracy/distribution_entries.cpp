#include <cmath>

#include "tools/accuracy/distribution_searches.h"
#include "tools/accuracy/distribution_sources.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using support::Row;

constexpr double kAnyDf = 1e9;
// The largest that a sample, and a sample to compare it with, can have.
constexpr double kMostDf = 1999;
constexpr double kMostDf2 = 29999;
constexpr Real kInSight = 0.001L;
constexpr const char* kNewton = "Newton's steps on the finite sums";

// Areas of which a relative error tells something.
bool InSight(const Row& row) { return row.Number("true") >= static_cast<double>(kInSight); }

Entry StudentEntry(const std::string& domain, double from, double to, const char* method) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpper",
          domain,
          method,
          Measure::Absolute,
          StudentTruth(takes),
          StudentSteps(takes),
          LookAtStudent(from, to)};
}

Entry StudentInSight(const std::string& domain, double from, double to, const char* method) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpper",
          domain,
          method,
          Measure::Relative,
          StudentTruth(Both(takes, InSight)),
          {},
          From(kInSight, LookAtStudent(from, to))};
}

Entry DeviateEntry(const std::string& domain, const Takes& takes, const char* method,
                   Search search) {
  return {"StudentUpperInverse", domain,           method, Measure::Relative, DeviateTruth(takes),
          DeviateSteps(takes),   std::move(search)};
}

// The expansion's own digits are those of the normal deviate, which near 0 are absolute.
bool AwayFromHalf(const Row& row) {
  return std::abs(row.Number(row.Has("p") ? "p" : "argument") - 0.5) >= 0.001;
}

Entry ExpansionEntry(const std::string& domain, double from, double to) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpperInverseSeries",
          domain,
          "Cornish-Fisher, Abramowitz and Stegun 26.7.5",
          Measure::Relative,
          ExpansionTruth(Both(takes, AwayFromHalf)),
          ExpansionSteps(takes),
          LookAtExpansion(from, to)};
}

bool IsPeculiar(const Row& row) { return row.Number("p") == 0.5 || AtOne(row); }

Entry NoncentralEntry(const std::string& domain, const Takes& range, const char* method,
                      Search search) {
  const Takes takes = Both(range, Not(IsPeculiar));
  return {
      "NoncentralTUpper",     domain,           method, Measure::Absolute, NoncentralTruth(takes),
      NoncentralSteps(takes), std::move(search)};
}

bool ShortCut(const Row& row) {
  return row.Number("h") != 0 && row.Number("a") != 1 &&
         std::abs(row.Number("h") * row.Number("a")) > 4;
}

bool TurnedSign(const Row& row) { return row.Number("h") == 0 && std::abs(row.Number("a")) > 1; }

bool NoAngle(const Row& row) { return std::abs(row.Number("a")) <= 4e-8; }

bool ByOwensSeries(const Row& row) { return !ShortCut(row) && !TurnedSign(row) && !NoAngle(row); }

bool IsBeyondFour(const Point& at) { return at[0] * at[1] > 4 && at[1] != 1; }

Entry OwenEntry(const std::string& domain, const char* method, const Takes& takes, Search search) {
  return {"OwenT",          domain,           method,           Measure::Absolute,
          OwenTruth(takes), OwenSteps(takes), std::move(search)};
}

Takes ChiRange(const std::string& df, const std::string& chi, bool fewDf, bool small) {
  return [=](const Row& row) {
    return row.Number(chi) >= 1e-16 && (row.Number(df) <= 200) == fewDf &&
           (row.Number(chi) <= 24 || !fewDf) == small;
  };
}

Search ChiSearch(bool fewDf, bool small) {
  if (!fewDf) return LookAtChi(201, kMostDf2, 1e-15, 250);
  return LookAtChi(1, 200, small ? 1e-15 : std::nextafter(24, 25), small ? 24 : 100);
}

constexpr const char* kChiSums = "finite sums, Abramowitz and Stegun 26.4.4, 26.4.5";
constexpr const char* kChiCube = "cube root, Wilson and Hilferty (1931)";

Entry ChiEntry(const std::string& domain, bool fewDf, bool small, const char* method) {
  return {"ChiUpper",
          domain,
          method,
          Measure::Absolute,
          ChiTruth(ChiRange("d1", "argument", fewDf, small)),
          ChiSteps(ChiRange("df", "chi", fewDf, small)),
          ChiSearch(fewDf, small)};
}

Entry ChiInSight(const std::string& domain, bool fewDf, const char* method) {
  return {"ChiUpper",
          domain,
          method,
          Measure::Relative,
          ChiTruth(Both(ChiRange("d1", "argument", fewDf, true), InSight)),
          {},
          From(kInSight, ChiSearch(fewDf, true))};
}

// Ratios that count as 1 are told below.
bool CountsAsOne(const Row& row, double F) {
  return std::abs(F - 1) <= 1e-10 && row.Number("d1") == row.Number("d2");
}

bool HasLargeProduct(const Row& row) { return row.Number("d1") * row.Number("d2") >= 32768; }

bool WithinSampleSizes(const Row& row) {
  return row.Number("d1") < 2000 && row.Number("d2") < 2000;
}

bool BySums(const Row& row, double F) { return !HasLargeProduct(row) && !CountsAsOne(row, F); }

// There the sum starts from a difference of 1 that loses its digits as F shrinks.
bool IsOneAndEven(const Row& row) {
  return row.Number("d1") == 1 && std::fmod(row.Number("d2"), 2) == 0;
}

using Region = bool (*)(const Row& row, double F);

Takes InRegion(Region region, const std::string& ratio) {
  return [region, ratio](const Row& row) { return region(row, row.Number(ratio)); };
}

Entry FEntry(const std::string& domain, Region region, const char* method, Search search) {
  return {"FUpper",
          domain,
          method,
          Measure::Absolute,
          FTruth(InRegion(region, "argument")),
          FSteps(InRegion(region, "F")),
          std::move(search)};
}

bool HasSmallProduct(const Point& at) { return at[0] * at[1] < 32768; }
bool HasLargeProductAt(const Point& at) { return !HasSmallProduct(at); }

Search LookAtFSums() {
  return Only(
      [](const Point& at) {
        return HasSmallProduct(at) && (at[0] != 1 || std::fmod(at[1], 2) == 1);
      },
      LookAtF(1, kMostDf2, 1, kMostDf2));
}

Search LookAtOneAndEven(bool small) {
  return Only([small](const Point& at) { return (at[2] < 0.01) == small; },
              LookAtF(1, 1, 2, kMostDf2 - 1));
}

Search LookAtEvenRelative() {
  return From(1e-200L,
              Only([](const Point& at) { return HasSmallProduct(at) && std::fmod(at[0], 2) == 0; },
                   LookAtF(2, kMostDf2, 1, kMostDf2)));
}

constexpr const char* kFSums = "finite sums, Abramowitz and Stegun 26.6.4 to 26.6.8";
constexpr const char* kFCube = "cube root, Paulson (1942)";

std::vector<Entry> StudentEntries() {
  constexpr const char* kSums = "finite sums, Abramowitz and Stegun 26.7.3, 26.7.4";
  constexpr const char* kNormal = "one normal tail, Abramowitz and Stegun 26.7.8";
  return {
      StudentEntry("df to 30000, every t", 1, 30000, kSums),
      StudentInSight("df to 30000, area from 0.001", 1, 30000, kSums),
      StudentEntry("df above 30000, every t", 30001, kAnyDf, kNormal),
      StudentInSight("df above 30000, area from 0.001", 30001, kAnyDf, kNormal),
      DeviateEntry("df 1 and 2, p 0.0001 to 0.995", Between("df", 1, 2), "closed form",
                   LookAtDeviate(1, 2)),
      DeviateEntry("df 3, p 0.0001 to 0.995", Between("df", 3, 3), kNewton, LookAtDeviate(3, 3)),
      DeviateEntry("df 4 to 1000, even, p 0.0001 to 0.995",
                   Both(Between("df", 4, 1000), Not(Odd("df"))), kNewton,
                   LookAtDeviate(4, 1000, 2)),
      DeviateEntry("df 5 to 999, odd, p 0.0001 to 0.995", Both(Between("df", 5, 999), Odd("df")),
                   kNewton, LookAtDeviate(5, 999, 2)),
      DeviateEntry("df 1001 to 29999, p 0.0001 to 0.499 and 0.501 to 0.995",
                   Both(Between("df", 1001, kAnyDf), AwayFromHalf), "`StudentUpperInverseSeries`",
                   LookAtExpansion(1001, kMostDf2)),
      ExpansionEntry("df 1 to 9, only a start value, p as above", 1, 9),
      ExpansionEntry("df 10 to 1000, only a start value, p as above", 10, 1000),
      ExpansionEntry("df 1001 to 29999, p as above", 1001, kMostDf2),
  };
}

std::vector<Entry> NoncentralEntries() {
  constexpr const char* kOwen = "Owen (1968), recurrence of AS 5";
  return {
      NoncentralEntry("lower area, f 2 to 200, even, p 0.0001 to 0.9999",
                      Both(Between("f", 1, 200), Not(Odd("f"))), kOwen,
                      LookAtNoncentral(2, 200, 2)),
      NoncentralEntry("lower area, f 1 to 199, odd, p 0.0001 to 0.9999",
                      Both(Between("f", 1, 200), Odd("f")),
                      "Owen (1968), recurrence of AS 5 and `OwenT`", LookAtNoncentral(1, 199, 2)),
      NoncentralEntry("lower area, f above 200, p 0.0001 to 0.9999", Between("f", 201, kAnyDf),
                      "one normal tail, Abramowitz and Stegun 26.7.10",
                      LookAtNoncentral(201, kMostDf)),
      OwenEntry("h a to 4, a above 4E-08", "series of the T function, Owen (1956)", ByOwensSeries,
                Only([](const Point& at) { return !IsBeyondFour(at); },
                     LookAtOwen(1e8, std::nextafter(4e-8, 1), 1e10))),
      OwenEntry("beyond, h a above 4", "`NormalUpper`(h) / 2", ShortCut,
                Only(IsBeyondFour, LookAtOwen(40, 0.1, 1e10))),
  };
}

std::vector<Entry> VarianceEntries() {
  return {
      ChiEntry("df to 200, chi to 24", true, true, kChiSums),
      ChiInSight("df to 200, chi to 24, area from 0.001", true, kChiSums),
      ChiEntry("df to 200, chi above 24: areas below 1E-36", true, false, kChiCube),
      ChiEntry("df above 200", false, true, kChiCube),
      ChiInSight("df above 200, area from 0.001", false, kChiCube),
      FEntry(
          "d1 d2 below 32768, but not d1 1 with d2 even",
          [](const Row& row, double F) { return BySums(row, F) && !IsOneAndEven(row); }, kFSums,
          LookAtFSums()),
      FEntry(
          "d1 1 with d2 even, F from 0.01",
          [](const Row& row, double F) { return BySums(row, F) && IsOneAndEven(row) && F >= 0.01; },
          kFSums, LookAtOneAndEven(false)),
      {"FUpper",
       "d1 1 with d2 even, F below 0.01",
       "the same; 1 - 1 / (1 + X) loses digits",
       Measure::Absolute,
       FTruth(InRegion([](const Row& row, double F) { return IsOneAndEven(row) && F < 0.01; },
                       "argument")),
       {},
       LookAtOneAndEven(true)},
      {"FUpper",
       "d1 d2 below 32768, d1 even, areas from 1E-200",
       kFSums,
       Measure::Relative,
       FTruth(
           InRegion([](const Row& row,
                       double F) { return BySums(row, F) && std::fmod(row.Number("d1"), 2) == 0; },
                    "argument")),
       {},
       LookAtEvenRelative()},
      FEntry(
          "d1 d2 from 32768 on, both below 2000",
          [](const Row& row, double) { return HasLargeProduct(row) && WithinSampleSizes(row); },
          kFCube, Only(HasLargeProductAt, LookAtF(17, kMostDf, 17, kMostDf))),
      FEntry(
          "d1 d2 from 32768 on, one of them above, to 29999",
          [](const Row& row, double) { return HasLargeProduct(row) && !WithinSampleSizes(row); },
          kFCube,
          Only(
              [](const Point& at) {
                return HasLargeProductAt(at) && (at[0] > kMostDf || at[1] > kMostDf);
              },
              LookAtF(1, kMostDf2, 1, kMostDf2))),
  };
}

}  // namespace

std::vector<Entry> DistributionEntries() {
  std::vector<Entry> all = StudentEntries();
  for (const auto& part : {NoncentralEntries(), VarianceEntries()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace accuracy
