#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include "stats/coefficients.h"
#include "tools/accuracy/page.h"
#include "tools/accuracy/truth/land.h"

// The page on accuracy promises figures; these tests hold the program to them.
namespace {

using accuracy::Entry;
using accuracy::Figure;
using accuracy::Records;

const std::string kRoot = VALKORIN_SOURCE_DIR;
constexpr double kRatchet = 1.25;
// Other places than those that the tool tried, at a fraction of its cost.
constexpr accuracy::Effort kOwnSearch = {0.3, 66};
constexpr double kPartOfTheRuns = 0.03;
// What a truth that is reckoned here may differ from a table in arbitrary precision, as a part of
// the error that it is to show, beside the rounding of the table to doubles.
constexpr double kOfTheError = 0.01;
constexpr double kRounding = 2.3e-16;
// The last digit of an exponential or a logarithm may differ between processors. Against truth that
// is one digit among the errors; against the steps it is all there is.
constexpr double kTruthDigit = 1e-15;
constexpr double kStepsDigit = 1e-12;

std::string FileText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

Records InTheTree() { return accuracy::ReadRecords(kRoot + "/tools/accuracy/recorded.csv"); }

accuracy::Simulations SimulationsInTheTree() {
  return accuracy::ReadSimulations(kRoot + "/tools/accuracy/simulated.csv");
}

void ExpectNotWorse(const std::string& what, const Figure& now, const Figure& recorded,
                    double digit) {
  EXPECT_GT(now.rows, 0) << what << ": the table has no row for it";
  // More rows may show a larger error; then the figures are to be recorded anew.
  EXPECT_LE(now.error, std::max(recorded.error * kRatchet, recorded.error + digit))
      << what << ": error " << now.error << " at " << now.where << ", recorded " << recorded.error
      << " at " << recorded.where;
}

std::vector<Entry> AllEntries() {
  std::vector<Entry> all = accuracy::Routines();
  for (const Entry& entry : accuracy::Peculiarities()) all.push_back(entry);
  return all;
}

TEST(AccuracyPage, NoSearchOfItsDomainFindsALargerErrorThanTheStatedOne) {
  StatFWinBAS::LoadCoefficients({kRoot + "/data"});
  const Records recorded = InTheTree();
  for (const Entry& entry : AllEntries()) {
    const std::string key = accuracy::Key(entry);
    ASSERT_TRUE(recorded.contains(key)) << key;
    const accuracy::Recorded& before = recorded.at(key);
    const accuracy::Recorded now = accuracy::MeasureEntry(entry, kOwnSearch, {before.truth.where});
    if (!entry.truth.table.empty() || !entry.search.axes.empty())
      ExpectNotWorse(key + " against truth", now.truth, before.truth, kTruthDigit);
    if (!entry.steps.table.empty())
      ExpectNotWorse(key + " against the steps", now.steps, before.steps, kStepsDigit);
  }
}

// A figure that is read off a few rows is beaten by the next scan.
TEST(AccuracyPage, EveryDomainIsSearchedUnlessItIsTheRowsOfATable) {
  for (const Entry& entry : AllEntries()) {
    EXPECT_EQ(entry.search.axes.empty(), entry.search.listed) << accuracy::Key(entry);
  }
}

// The search rests on truths in a wider type; the tables know them to 20 digits.
TEST(AccuracyPage, TheTruthsOfTheSearchAreThoseInArbitraryPrecision) {
  StatFWinBAS::LoadCoefficients({kRoot + "/data"});
  const Records recorded = InTheTree();
  int compared = 0;
  for (const Entry& entry : accuracy::Routines()) {
    if (entry.truth.table.empty() || entry.search.axes.empty()) continue;
    const double allowed = kOfTheError * recorded.at(accuracy::Key(entry)).truth.error;
    for (const auto& [place, table] : accuracy::Truths(entry.truth)) {
      const accuracy::Point at = accuracy::PlaceOf(entry.search, place);
      if (at.empty()) continue;
      ++compared;
      const accuracy::Real truth = entry.search.truth(at);
      EXPECT_LE(accuracy::ErrorOf(table, truth, entry.measure),
                std::max(allowed, kRounding * std::max(1.0, std::abs(table))))
          << accuracy::Key(entry) << " at " << place;
    }
  }
  EXPECT_GT(compared, 5000);
}

// Their tables give the peak in doubles of its own, so that they have no place on the search's
// axes.
TEST(AccuracyPage, TheDensityOfLandAndItsIntegralAreThoseInArbitraryPrecision) {
  int compared = 0;
  for (const support::Row& row : support::ReadTable("land_truth.csv")) {
    if (row.Text("function") != "LandIntegrand" || row.Number("true") < 1e-300) continue;
    const accuracy::Real density = accuracy::truth::LandDensity(
        row.Number("nu"), row.Number("a2"), row.Number("a3"), row.Number("a4"), row.Number("a5"));
    EXPECT_NEAR(static_cast<double>(density / row.Number("true")), 1, 1e-14) << row.Where();
    ++compared;
  }
  for (const support::Row& row : support::ReadTable("land_integral_truth.csv")) {
    if (row.Number("a") != row.Number("Yq")) continue;
    const accuracy::Real area =
        accuracy::truth::LandIntegral(row.Number("nu"), row.Number("Aq"), row.Number("Yq"),
                                      row.Number("Zq"), row.Number("a"), row.Number("b"));
    EXPECT_NEAR(static_cast<double>(area), row.Number("true"), 1e-14) << row.Where();
    ++compared;
  }
  EXPECT_GT(compared, 200);
}

TEST(AccuracyPage, OtherSamplesShowTheSameBiasCoverAndSize) {
  StatFWinBAS::LoadCoefficients({kRoot + "/data"});
  const accuracy::Simulations recorded = SimulationsInTheTree();
  for (const accuracy::Performance& row : accuracy::Performances()) {
    const std::string key = Key(row);
    ASSERT_TRUE(recorded.contains(key)) << key;
    const accuracy::Found before = recorded.at(key);
    const accuracy::Found now = accuracy::Simulated(row, 66, kPartOfTheRuns);
    // That of the few samples here by that of the many, which is the better known.
    const double error = before.error * std::sqrt(1 + 1 / kPartOfTheRuns);
    EXPECT_NEAR(now.value, before.value, 4 * error + 1e-6 * std::abs(before.value) + 1e-9)
        << key << ": standard error " << error;
  }
}

TEST(AccuracyPage, HasNoSimulationOfARowThatIsGone) {
  accuracy::Simulations left = SimulationsInTheTree();
  for (const accuracy::Performance& row : accuracy::Performances()) left.erase(Key(row));
  for (const auto& [key, found] : left) ADD_FAILURE() << key;
}

// A limit that is a percent of confidence off must fall outside the four standard errors of all its
// rows together; here one row shows it with its full number of samples.
TEST(AccuracyPage, ALimitOfAnotherConfidenceWouldBeSeen) {
  const accuracy::Simulations recorded = SimulationsInTheTree();
  const std::string jahr = "JahrUCL | means below the limit, percent | M 10, GSD 2.5, D ";
  const accuracy::Found asked = recorded.at(jahr + "95");
  const accuracy::Found other = recorded.at(jahr + "90");
  EXPECT_GT(asked.value - other.value, 40 * std::hypot(asked.error, other.error));
}

TEST(AccuracyPage, AFoundNumberHasTheDigitsThatItsStandardErrorLeaves) {
  EXPECT_EQ(accuracy::FoundText({93.2684, 0.0396}), "93.268");
  EXPECT_EQ(accuracy::ErrorText({93.2684, 0.0396}), "0.040");
  EXPECT_EQ(accuracy::FoundText({-9e-15, 0}), "0.000");
  EXPECT_EQ(accuracy::ErrorText({12.3, 0}), "exact");
}

TEST(AccuracyPage, IsWhatTheRecordedFiguresGive) {
  EXPECT_TRUE(Page(InTheTree(), SimulationsInTheTree()) == FileText(kRoot + "/docs/accuracy.md"))
      << "run valkorin-accuracy and look at what changed in docs/accuracy.md";
}

TEST(AccuracyPage, HasNoFigureOfARoutineThatIsGone) {
  Records left = InTheTree();
  for (const auto& entries : {accuracy::Routines(), accuracy::Peculiarities()})
    for (const Entry& entry : entries) left.erase(accuracy::Key(entry));
  for (const auto& [key, recorded] : left) ADD_FAILURE() << key;
}

// Without this the ratchet would be passed by any program.
TEST(AccuracyPage, ALostDigitWouldBeSeen) {
  const Entry worse = {"half",
                       "",
                       "",
                       accuracy::Measure::Relative,
                       {"normal_truth.csv",
                        "true",
                        {"argument"},
                        [](const support::Row& row) { return row.Number("true") * (1 + 1e-10); },
                        [](const support::Row& row) { return row.Text("function") == "upper"; }}};
  EXPECT_NEAR(accuracy::MeasureEntry(worse).truth.error, 1e-10, 1e-15);
}

TEST(AccuracyPage, AFigureIsRoundedUp) {
  EXPECT_EQ(accuracy::FigureText(3.31e-15), "3.4E-15");
  EXPECT_EQ(accuracy::FigureText(9.99e-9), "1.0E-08");
  EXPECT_EQ(accuracy::FigureText(0), "0");
}

}  // namespace
