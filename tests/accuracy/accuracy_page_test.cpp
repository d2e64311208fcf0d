#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "stats/coefficients.h"
#include "tools/accuracy/page.h"

// The page on accuracy promises figures; these tests hold the program to them.
namespace {

using accuracy::Entry;
using accuracy::Figure;
using accuracy::Records;

const std::string kRoot = VALKORIN_SOURCE_DIR;
constexpr double kRatchet = 1.25;
// The last digit of an exponential or a logarithm may differ between processors. Against truth that
// is one digit among the errors; against the steps it is all there is.
constexpr double kTruthDigit = 1e-15;
constexpr double kStepsDigit = 1e-12;

std::string FileText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

Records InTheTree() { return accuracy::ReadRecords(kRoot + "/tools/accuracy/recorded.csv"); }

void ExpectNotWorse(const std::string& what, const Figure& now, const Figure& recorded,
                    double digit) {
  EXPECT_GT(now.rows, 0) << what << ": the table has no row for it";
  // More rows may show a larger error; then the figures are to be recorded anew.
  EXPECT_LE(now.error, std::max(recorded.error * kRatchet, recorded.error + digit))
      << what << ": error " << now.error << " at " << now.where << ", recorded " << recorded.error
      << " at " << recorded.where;
}

TEST(AccuracyPage, EveryFigureIsStillReached) {
  StatFWinBAS::LoadCoefficients({kRoot + "/data"});
  const Records recorded = InTheTree();
  for (const auto& entries : {accuracy::Routines(), accuracy::Peculiarities()}) {
    for (const Entry& entry : entries) {
      const std::string key = accuracy::Key(entry);
      ASSERT_TRUE(recorded.contains(key)) << key;
      const accuracy::Recorded now = accuracy::MeasureEntry(entry);
      if (!entry.truth.table.empty())
        ExpectNotWorse(key + " against truth", now.truth, recorded.at(key).truth, kTruthDigit);
      if (!entry.steps.table.empty())
        ExpectNotWorse(key + " against the steps", now.steps, recorded.at(key).steps, kStepsDigit);
    }
  }
}

TEST(AccuracyPage, IsWhatTheRecordedFiguresGive) {
  EXPECT_TRUE(Page(InTheTree()) == FileText(kRoot + "/docs/accuracy.md"))
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
