#include <gmock/gmock.h>

#include "tests/support/start_screen.h"

// The start screen without its tabs says why.
namespace {

using support::ProgramSession;

const std::string& LineOnStart(ProgramSession& user) {
  EXPECT_FALSE(user.At("BasisForm.TabBasis").visible);
  return user.Text("BasisForm.StatusLbl");
}

// Outcomes of three powers of ten have a GSD that the table can work with, and this screen can't.
TEST(NoTabs, BecauseTheGSDIsAboveAThousand) {
  ProgramSession user;
  user.OpenSeries({1, 1000, 10000000});
  ASSERT_TRUE(user.Tab("basis"));
  EXPECT_THAT(LineOnStart(user), testing::StartsWith("There are no tabs here: GSD 3250."));
  EXPECT_THAT(LineOnStart(user), testing::HasSubstr("lies outside 1.001 to 1000. Continue leads "
                                                    "to the raw data, and from there to the "
                                                    "others."));
  user.Click("CmdContinu");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_THAT(user.Text("StatusLbl"), testing::Not(testing::HasSubstr("no tabs")));
}

TEST(NoTabs, BecauseTheGMIsTooSmallOrTooLarge) {
  for (const double scale : {1E-6, 1E+5}) {
    ProgramSession user;
    user.OpenSeries({1 * scale, 2 * scale, 4 * scale});
    user.Tab("basis");
    EXPECT_THAT(LineOnStart(user), testing::StartsWith("There are no tabs here: GM ")) << scale;
    EXPECT_THAT(LineOnStart(user), testing::HasSubstr("lies outside 0.0001 to 10000.")) << scale;
  }
}

TEST(NoTabs, BecauseTheNameOrTheSizeWasRefused) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Type("SampSizTxB", "1");
  EXPECT_EQ(LineOnStart(user),
            "There are no tabs here: the sample size is no whole number from 2 to 2000.");
  user.Type("SampSizTxB", "4");
  EXPECT_TRUE(user.At("TabBasis").visible);
  EXPECT_THAT(user.Text("StatusLbl"), testing::Not(testing::HasSubstr("no tabs")));
  user.Type("NameTxB", "");
  EXPECT_EQ(LineOnStart(user), "There are no tabs here: the data have no name.");
}

TEST(NoTabs, BecauseATypedGMWasRefusedWhereOtherValuesAreTried) {
  ProgramSession user;
  OpenAndReturn(user);
  user.Click("OriModiCmd");
  user.Type("GMTxB", "20000");
  EXPECT_EQ(LineOnStart(user), "There are no tabs here: GM 20000 lies outside 0.0001 to 10000.");
}

// What is still to be entered is no error: the screen's message asks for it.
TEST(NoTabs, BeforeAnEntryNothingIsSaid) {
  ProgramSession user;
  EXPECT_EQ(LineOnStart(user), "");
  user.Click("DesOpt");
  EXPECT_EQ(LineOnStart(user), "");
  user.Type("NameTxB", "Welders");
  user.Type("SampSizTxB", "12");
  EXPECT_EQ(LineOnStart(user), "");
  user.Type("GMTxB", "1.5");
  EXPECT_EQ(LineOnStart(user), "");
}

}  // namespace
