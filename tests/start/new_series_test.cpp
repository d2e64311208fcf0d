#include <gmock/gmock.h>

#include "tests/support/start_screen.h"

// A series without a file: named, sized and then typed.
namespace {

using support::ProgramSession;

TEST(NewSeries, AsksForNameAndSampleSize) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  ExpectKindOfData(user, "R", "6", "Create a Raw data file. Enter a name and the sample size.\r");
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_FALSE(user.Record().DetecOn);
  EXPECT_TRUE(user.At("IdentFrame").visible);
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  for (const char* name : {"DesRawFrame", "menuopen", "MenuNewVkrFil"})
    EXPECT_FALSE(user.At(name).enabled) << name;
  EXPECT_EQ(Focus(user), "NameTxB");
}

TEST(NewSeries, ClosesAnOpenSeriesFirst) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Click("MenuNewVkrFil");
  EXPECT_EQ(user.Text("NameTxB"), "");
  EXPECT_FALSE(user.At("TabBasis").visible);
  ExpectNoSeries(user);
}

TEST(NewSeries, AsksBeforeUnsavedOutcomesGoAndNoKeepsThem) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "3");
  user.Click("MenuNewVkrFil");
  EXPECT_EQ(user.box.shown.size(), 1u);
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_TRUE(user.At("menuopen").enabled);
}

// The tabs lead to the table in which the values are to be typed, though there are no statistics.
TEST(NewSeries, WithNameAndSizeTheTabsShowAlthoughTheSeriesIsIncomplete) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  EXPECT_FALSE(user.At("TabBasis").visible);
  user.Type("SampSizTxB", "3");
  EXPECT_TRUE(user.Record().IdentOk);
  EXPECT_FALSE(user.Record().DescOk);
  EXPECT_TRUE(user.At("TabBasis").visible);
  EXPECT_TRUE(user.At("CmdContinu").visible);
  EXPECT_FALSE(user.At("OriModiCmd").visible);
}

TEST(NewSeries, BeforeAnyLimitOnlyTheTableCanBeReached) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  user.Record().OELV.reset();
  user.Type("SampSizTxB", "3");
  EXPECT_THAT(user.TabKeys(), testing::ElementsAre("basis", "raw"));
  EXPECT_FALSE(user.At("MenuPlot").visible);
}

TEST(NewSeries, ContinueLeadsToATableOfThatManyRows) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  user.Click("CmdContinu");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(user.Record().C, (std::vector<double>{0, 0, 0, 0}));
  EXPECT_EQ(user.Record().LnC.size(), 4u);
  const auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  EXPECT_EQ(grid.rowCount, 3);
  EXPECT_EQ(grid.text, "Solvent");
}

TEST(NewSeries, ContinueKeepsTheOutcomesTypedBefore) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "5");
  user.Click("CmdContinu");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_THAT(user.Record().C, testing::ElementsAre(testing::_, 1, 2, 4, 8, 0));
}

TEST(NewSeries, TypedToTheEndItHasStatisticsAndGoesByItsName) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  user.Click("CmdContinu");
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  for (const auto& [row, text] : {std::pair{0, "4"}, {1, "1"}, {2, "2"}}) {
    EXPECT_TRUE(user.Record().RawIncomplete);
    ASSERT_TRUE(grid.Write(row, 2, text));
  }
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_TRUE(user.Record().DescOk);
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4}));
  EXPECT_NEAR(user.Record().GM, 2, 1E-15);
  EXPECT_TRUE(user.program.Unsaved());
}

}  // namespace
