#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

#include "base/fault.h"
#include "stats/coefficients.h"
#include "tests/sessions/play.h"
#include "tests/sessions/random_session.h"

// No search hangs and no fault escapes, whatever valid numbers a user enters.
namespace {

using sessions::Complaints;
using sessions::Most;

constexpr std::uint64_t kSessions = VALKORIN_SESSIONS;
constexpr std::uint64_t kParts = 8;  // so that the parts can run side by side

// Plays one session in `every` of a part; tells each one on which `play` complains or faults.
void PlayPart(std::uint64_t part, const std::function<Complaints(const ExposureSession&)>& play,
              std::uint64_t every = 1) {
  int told = 0;
  for (std::uint64_t number = part; number < kSessions && told < 20; number += kParts * every) {
    const ExposureSession s = sessions::RandomSession(number);
    Complaints complaints;
    try {
      complaints = play(s);
    } catch (const RunTimeError& fault) {
      complaints = {std::string("a fault: ") + fault.what()};
    }
    for (const std::string& complaint : complaints) {
      ADD_FAILURE() << complaint << "; " << sessions::Described(number, s);
      ++told;
    }
  }
}

class RandomSessions : public ::testing::TestWithParam<std::uint64_t> {
 protected:
  static void SetUpTestSuite() {
    StatFWinBAS::LoadCoefficients({std::string(VALKORIN_SOURCE_DIR) + "/data"});
  }
  void Record(const char* what, int most) { RecordProperty(what, most); }
};

TEST_P(RandomSessions, GoThroughLeidelsTest) { PlayPart(GetParam(), sessions::PlayLeidel); }

TEST_P(RandomSessions, GoThroughWilksTest) {
  Most most;
  PlayPart(GetParam(), [&](const ExposureSession& s) { return sessions::PlayWilks(s, most); });
  Record("passes", most.studentPasses);
}

TEST_P(RandomSessions, GoThroughTheTestOfEN689) {
  Most most;
  PlayPart(GetParam(), [&](const ExposureSession& s) { return sessions::PlayEn689(s, most); });
  Record("evaluations_limit", most.toleranceSearch);
  Record("evaluations_fraction", most.fractionSearch);
}

TEST_P(RandomSessions, GoThroughTheSearchForTheSampleSize) {
  Most most;
  PlayPart(GetParam(), [&](const ExposureSession& s) { return sessions::PlaySampleSize(s, most); });
  Record("evaluations", most.sampleSize);
}

TEST_P(RandomSessions, GoThroughTheComparison) { PlayPart(GetParam(), sessions::PlayComparison); }

TEST_P(RandomSessions, GoThroughJahrsLimit) { PlayPart(GetParam(), sessions::PlayJahr); }

TEST_P(RandomSessions, GoThroughLandsLimit) {
  Most most;
  PlayPart(
      GetParam(), [&](const ExposureSession& s) { return sessions::PlayLand(s, most); },
      VALKORIN_LAND_EVERY);
  Record("evaluations", most.landEvaluations);
  Record("searches", most.landSearches);
  EXPECT_GT(most.landSearches, 0);
}

INSTANTIATE_TEST_SUITE_P(Part, RandomSessions, ::testing::Range<std::uint64_t>(0, kParts));

}  // namespace
