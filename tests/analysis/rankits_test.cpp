#include "analysis/rankits.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using analysis::RankitsForSampleSize;
using analysis::Score;

class Rankits : public table::Delivered {};

TEST_F(Rankits, AreThoseOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("rankits.csv")) {
    const auto R = RankitsForSampleSize(static_cast<int>(row.Number("M")));
    table::Expect(row, {"M", "i"}, "R", 1e-13,
                  [&] { return R.at(static_cast<std::size_t>(row.Number("i"))); });
  }
}

TEST_F(Rankits, GiveTheScoresOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("scores.csv")) {
    const int M = static_cast<int>(row.Number("M"));
    const auto R = RankitsForSampleSize(M);
    table::Expect(row, {"M", "i"}, "z", 1e-13,
                  [&] { return Score(R, M, static_cast<int>(row.Number("i"))); });
  }
}

TEST_F(Rankits, OfASampleOfThreeLieAt0Point84628And0) {
  const auto R = RankitsForSampleSize(3);
  EXPECT_EQ(Score(R, 3, 1), -0.84628);
  EXPECT_EQ(Score(R, 3, 2), 0);
  EXPECT_EQ(Score(R, 3, 3), 0.84628);
}

TEST_F(Rankits, OfSampleSizesWithoutATableAreZero) {
  EXPECT_EQ(RankitsForSampleSize(-1), std::vector<double>(1));
  EXPECT_EQ(RankitsForSampleSize(0), std::vector<double>(1));
  EXPECT_EQ(RankitsForSampleSize(2), std::vector<double>(2));
  EXPECT_EQ(RankitsForSampleSize(2001), std::vector<double>(1001));
  EXPECT_GT(RankitsForSampleSize(2000)[1000], 0);
}

// The approximation's own value for the fourth order, without the correction of small samples.
double UncorrectedFourth(int M) {
  const auto& c = StatFWinBAS::Coefs().RankitCoefficients;
  const double e = (4 - c[19]) / (M + c[20]);
  const double f = std::pow(e, c[16] - c[17] / (4 - c[18]));
  return e + f * (c[21] - f * c[22]) / M;
}

TEST_F(Rankits, OfTheFourthOrderAreCorrectedUpTo39AndNotFrom40) {
  const double area39 = StatFWinBAS::NormalUpper(RankitsForSampleSize(39)[4]);
  const double area40 = StatFWinBAS::NormalUpper(RankitsForSampleSize(40)[4]);
  const auto& c = StatFWinBAS::Coefs().RankitCoefficients;
  const double correction = (c[23] / 39 / 39 - c[24]) / 39 / 39;
  EXPECT_GT(std::abs(correction), 1e-8);
  EXPECT_NEAR(area39, UncorrectedFourth(39) + correction, 1e-14);
  EXPECT_NEAR(area40, UncorrectedFourth(40), 1e-14);
}

// 20 still comes from the table, 21 from the approximation, which is good to four decimals.
TEST_F(Rankits, GoOnWithoutAStepFrom20To21) {
  const auto before = RankitsForSampleSize(19);
  const auto last = RankitsForSampleSize(20);
  const auto first = RankitsForSampleSize(21);
  EXPECT_EQ(last[10], StatFWinBAS::Coefs().ExactRankits[97]);
  for (std::size_t i = 1; i <= 9; ++i)
    EXPECT_NEAR(first[i] - last[i], last[i] - before[i], 0.012) << "order " << i;
}

TEST_F(Rankits, FallFromOrderToOrderAndRiseWithTheSampleAtEverySize) {
  std::vector<double> before = RankitsForSampleSize(3);
  for (int M = 4; M <= 2000; ++M) {
    const auto R = RankitsForSampleSize(M);
    ASSERT_EQ(R.size(), static_cast<std::size_t>(M / 2 + 1));
    for (std::size_t i = 1; i < R.size(); ++i) {
      const double above = i > 1 ? R[i - 1] : 37;
      const double smaller = i < before.size() ? before[i] : 0;
      ASSERT_TRUE(smaller < R[i] && R[i] < above) << "M " << M << ", order " << i;
      ASSERT_GT(R[i], 0) << "M " << M << ", order " << i;
    }
    before = R;
  }
}

TEST_F(Rankits, OfAnOutcomeThatIsNotThereAreASubscriptFault) {
  const auto R = RankitsForSampleSize(10);
  EXPECT_THROW(Score(R, 10, 0), RunTimeError);
  EXPECT_THROW(Score(R, 10, 11), RunTimeError);
  EXPECT_THROW(Score(R, 12, 1), RunTimeError);
}

}  // namespace
