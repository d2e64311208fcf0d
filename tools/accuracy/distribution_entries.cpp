#include <cmath>

#include "tools/accuracy/distribution_sources.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using support::Row;

constexpr double kAnyDf = 1e9;
constexpr const char* kNewton = "Newton's steps on the finite sums";

// Areas of which a relative error tells something.
bool InSight(const Row& row) { return row.Number("true") >= 0.001; }

Entry StudentEntry(const std::string& domain, double from, double to, const char* method) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpper",     domain, method, Measure::Absolute, StudentTruth(takes),
          StudentSteps(takes)};
}

Entry StudentInSight(const std::string& domain, double from, double to, const char* method) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpper", domain, method, Measure::Relative, StudentTruth(Both(takes, InSight))};
}

Entry DeviateEntry(const std::string& domain, const Takes& takes, const char* method) {
  return {"StudentUpperInverse", domain, method, Measure::Relative, DeviateTruth(takes),
          DeviateSteps(takes)};
}

Entry ExpansionEntry(const std::string& domain, double from, double to) {
  const Takes takes = Between("df", from, to);
  return {"StudentUpperInverseSeries",
          domain,
          "Cornish-Fisher, Abramowitz and Stegun 26.7.5",
          Measure::Relative,
          ExpansionTruth(takes),
          ExpansionSteps(takes)};
}

bool IsPeculiar(const Row& row) { return row.Number("p") == 0.5 || AtOne(row); }

Entry NoncentralEntry(const std::string& domain, const Takes& range, const char* method) {
  const Takes takes = Both(range, Not(IsPeculiar));
  return {"NoncentralTUpper",    domain, method, Measure::Absolute, NoncentralTruth(takes),
          NoncentralSteps(takes)};
}

bool ShortCut(const Row& row) {
  return row.Number("h") != 0 && row.Number("a") != 1 &&
         std::abs(row.Number("h") * row.Number("a")) > 4;
}

bool TurnedSign(const Row& row) { return row.Number("h") == 0 && std::abs(row.Number("a")) > 1; }

bool NoAngle(const Row& row) { return std::abs(row.Number("a")) <= 4e-8; }

bool ByOwensSeries(const Row& row) { return !ShortCut(row) && !TurnedSign(row) && !NoAngle(row); }

Entry OwenEntry(const std::string& domain, const char* method, const Takes& takes) {
  return {"OwenT", domain, method, Measure::Absolute, OwenTruth(takes), OwenSteps(takes)};
}

Takes ChiRange(const std::string& df, const std::string& chi, bool fewDf, bool small) {
  return [=](const Row& row) {
    return row.Number(chi) >= 1e-16 && (row.Number(df) <= 200) == fewDf &&
           (row.Number(chi) <= 24 || !fewDf) == small;
  };
}

constexpr const char* kChiSums = "finite sums, Abramowitz and Stegun 26.4.4, 26.4.5";
constexpr const char* kChiCube = "cube root, Wilson and Hilferty (1931)";

Entry ChiEntry(const std::string& domain, bool fewDf, bool small, const char* method) {
  return {"ChiUpper",
          domain,
          method,
          Measure::Absolute,
          ChiTruth(ChiRange("d1", "argument", fewDf, small)),
          ChiSteps(ChiRange("df", "chi", fewDf, small))};
}

Entry ChiInSight(const std::string& domain, bool fewDf, const char* method) {
  return {"ChiUpper", domain, method, Measure::Relative,
          ChiTruth(Both(ChiRange("d1", "argument", fewDf, true), InSight))};
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

Entry FEntry(const std::string& domain, Region region, const char* method) {
  return {"FUpper",
          domain,
          method,
          Measure::Absolute,
          FTruth(InRegion(region, "argument")),
          FSteps(InRegion(region, "F"))};
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
      DeviateEntry("df 1 and 2, p 0.0001 to 0.995", Between("df", 1, 2), "closed form"),
      DeviateEntry("df 3, p 0.0001 to 0.995", Between("df", 3, 3), kNewton),
      DeviateEntry("df 4 to 1000, even, p 0.0001 to 0.995",
                   Both(Between("df", 4, 1000), Not(Odd("df"))), kNewton),
      DeviateEntry("df 5 to 999, odd, p 0.0001 to 0.995", Both(Between("df", 5, 999), Odd("df")),
                   kNewton),
      DeviateEntry("df above 1000, p 0.0001 to 0.995", Between("df", 1001, kAnyDf),
                   "`StudentUpperInverseSeries`"),
      ExpansionEntry("df 1 to 9, only a start value", 1, 9),
      ExpansionEntry("df 10 to 1000, only a start value", 10, 1000),
      ExpansionEntry("df above 1000", 1001, kAnyDf),
  };
}

std::vector<Entry> NoncentralEntries() {
  constexpr const char* kOwen = "Owen (1968), recurrence of AS 5";
  return {
      NoncentralEntry("lower area, f 2 to 200, even, p 0.0001 to 0.9999",
                      Both(Between("f", 1, 200), Not(Odd("f"))), kOwen),
      NoncentralEntry("lower area, f 1 to 199, odd, p 0.0001 to 0.9999",
                      Both(Between("f", 1, 200), Odd("f")),
                      "Owen (1968), recurrence of AS 5 and `OwenT`"),
      NoncentralEntry("lower area, f above 200, p 0.0001 to 0.9999", Between("f", 201, kAnyDf),
                      "one normal tail, Abramowitz and Stegun 26.7.10"),
      OwenEntry("h a to 4, a above 4E-08", "series of the T function, Owen (1956)", ByOwensSeries),
      OwenEntry("beyond, h a above 4", "`NormalUpper`(h) / 2", ShortCut),
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
          [](const Row& row, double F) { return BySums(row, F) && !IsOneAndEven(row); }, kFSums),
      FEntry(
          "d1 1 with d2 even, F from 0.01",
          [](const Row& row, double F) { return BySums(row, F) && IsOneAndEven(row) && F >= 0.01; },
          kFSums),
      {"FUpper", "d1 1 with d2 even, F below 0.01", "the same; 1 - 1 / (1 + X) loses digits",
       Measure::Absolute,
       FTruth(InRegion([](const Row& row, double F) { return IsOneAndEven(row) && F < 0.01; },
                       "argument"))},
      {"FUpper", "d1 d2 below 32768, d1 even, any area", kFSums, Measure::Relative,
       FTruth(
           InRegion([](const Row& row,
                       double F) { return BySums(row, F) && std::fmod(row.Number("d1"), 2) == 0; },
                    "argument"))},
      FEntry(
          "d1 d2 from 32768 on, both below 2000",
          [](const Row& row, double) { return HasLargeProduct(row) && WithinSampleSizes(row); },
          kFCube),
      FEntry(
          "d1 d2 from 32768 on, one of them above",
          [](const Row& row, double) { return HasLargeProduct(row) && !WithinSampleSizes(row); },
          kFCube),
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
