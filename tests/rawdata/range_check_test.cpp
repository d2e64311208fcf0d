#include <gmock/gmock.h>

#include "catalog/catalog.h"
#include "tests/support/program_session.h"

// Which series have a range that a lognormal distribution can be fitted to.
namespace {

using screen::Answer;
using support::ProgramSession;

void Edit(ProgramSession& user, int row, const std::string& text) {
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  ASSERT_TRUE(grid.Write(row, 2, text));
}

void ExpectClosedWith(ProgramSession& user, int text) {
  ASSERT_EQ(user.box.shown.size(), 1u);
  EXPECT_EQ(user.LastBox().text, LoadResString(text));
  EXPECT_EQ(user.LastBox().title, "Range of the sample outcome");
  EXPECT_EQ(user.LastBox().icon, screen::Icon::Exclamation);
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Record().M, 0);
  EXPECT_EQ(user.Record().Mode, DataMode::None);
  EXPECT_FALSE(user.At("TabBasis").visible);
}

TEST(RangeCheck, EqualOutcomesCloseTheSeries) {
  ProgramSession user;
  user.OpenSeries({1.5, 1.5, 1.5});
  ExpectClosedWith(user, 1515);
}

TEST(RangeCheck, NearlyEqualOutcomesCloseTheSeries) {
  ProgramSession user;
  user.OpenSeries({1, 1.00000000005});
  ExpectClosedWith(user, 1515);
}

TEST(RangeCheck, OutcomesWithoutMeasurableSpreadCloseTheSeries) {
  ProgramSession user;
  user.OpenSeries({1, 1.000001, 1.000002});
  ExpectClosedWith(user, 1515);
}

TEST(RangeCheck, OutcomesOfTooManyDecadesCloseTheSeries) {
  ProgramSession user;
  user.OpenSeries({1E-10, 2});
  ExpectClosedWith(user, 1510);
}

// Many outcomes between the two ends keep the GSD small; the distance of the ends decides.
TEST(RangeCheck, EndsOfTooManyDecadesCloseASeriesOfModerateSpread) {
  ProgramSession user;
  user.OpenSeries({1E-6, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1E+5});
  ExpectClosedWith(user, 1510);
}

TEST(RangeCheck, AGeometricStandardDeviationOfTenThousandClosesTheSeries) {
  ProgramSession user;
  user.OpenSeries({1E-4, 1E+5});
  ExpectClosedWith(user, 1510);
}

TEST(RangeCheck, OutcomesJustWithinTheRangeStay) {
  for (const std::vector<double>& series :
       {std::vector<double>{1, 1.001}, {1E-3, 1, 1E+3}, {1E-4, 1, 1, 1, 1, 1E+6}}) {
    ProgramSession user;
    user.OpenSeries(series);
    EXPECT_TRUE(user.box.shown.empty()) << series[0];
    EXPECT_EQ(user.Shown().name, "DataCtrlForm") << series[0];
  }
}

TEST(RangeCheck, AnEditIsJudgedAtTheNextShowingAndAsksBeforeItIsLost) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  for (int row : {0, 1, 2}) Edit(user, row, "1.5");
  EXPECT_TRUE(user.box.shown.empty());
  user.Tab("basis");
  user.Tab("raw");
  ASSERT_EQ(user.box.shown.size(), 2u);
  EXPECT_EQ(user.box.shown[0].text, LoadResString(1515));
  EXPECT_EQ(user.box.shown[1].title, "No file saved!");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm") << "No keeps the series, which can be mended";
  EXPECT_EQ(user.Record().M, 3);
  user.Tab("basis");
  user.box.answers = {Answer::Ok, Answer::Yes};
  user.Tab("raw");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_EQ(user.Record().M, 0);
}

}  // namespace
