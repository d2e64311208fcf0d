#include <gmock/gmock.h>

#include "tests/support/program_session.h"

// Other values tried on top of the data, and the way back.
namespace {

using support::ProgramSession;

void OpenOnStartScreen(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8, 16});
  user.Tab("basis");
}

TEST(Modify, OpensTheFieldsOnACopyOfTheData) {
  ProgramSession user;
  OpenOnStartScreen(user);
  const std::string name = user.Record().Name;
  user.Click("OriModiCmd");
  EXPECT_TRUE(user.Record().ModifyMode);
  EXPECT_EQ(user.Text("OriModiCmd"), "&Reset");
  EXPECT_TRUE(user.At("OriModiCmd").visible);
  EXPECT_EQ(user.Record().Name, name + " (Modified)");
  EXPECT_EQ(user.Text("NameTxB"), name + " (Modified)");
  EXPECT_EQ(user.Text("SampSizTxB"), "5");
  EXPECT_EQ(user.Text("DegreesLbl"), "4");
  EXPECT_TRUE(user.At("DescriptFrame").visible);
  EXPECT_EQ(user.Text("GMTxB"), "4");
  for (const char* field : {"NameTxB", "SampSizTxB", "GMTxB", "GSDTxB"})
    EXPECT_FALSE(user.At(field).locked) << field;
}

TEST(Modify, ResetBringsNameSampleSizeAndStatisticsBack) {
  ProgramSession user;
  OpenOnStartScreen(user);
  const ExposureSession before = user.Record();
  user.Click("OriModiCmd");
  user.Type("NameTxB", "Trial");
  user.Type("SampSizTxB", "20");
  user.Type("GMTxB", "7");
  user.Type("GSDTxB", "3");
  EXPECT_EQ(user.Record().df, 19);
  user.Click("OriModiCmd");
  EXPECT_FALSE(user.Record().ModifyMode);
  EXPECT_EQ(user.Text("OriModiCmd"), "&Modify");
  EXPECT_EQ(user.Record().Name, before.Name);
  EXPECT_EQ(user.Record().M, before.M);
  EXPECT_EQ(user.Record().df, before.df);
  EXPECT_EQ(user.Record().GM, before.GM);
  EXPECT_EQ(user.Record().GSD, before.GSD);
  EXPECT_EQ(user.Record().C, before.C);
  EXPECT_TRUE(user.At("GMTxB").locked);
  EXPECT_TRUE(user.At("GSDTxB").locked);
  EXPECT_FALSE(user.At("DescriptFrame").visible);
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(Modify, TheSampleSizeIsTheDegreesOfFreedomPlusOne) {
  ProgramSession user;
  OpenOnStartScreen(user);
  user.Tab("raw");
  user.Click("DetecChB");
  user.Type("DetecLTxb", "1.5");
  user.Tab("basis");
  const double df = user.Record().df;
  ASSERT_LT(df, 4) << "the range takes some";
  ASSERT_GE(df, 1);
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Record().M, df + 1);
  EXPECT_EQ(user.Record().df, df);
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Record().M, 5);
  EXPECT_EQ(user.Record().df, df);
}

TEST(Modify, TheSeriesIsOutOfReachWhileOtherValuesAreTried) {
  ProgramSession user;
  OpenOnStartScreen(user);
  user.Click("OriModiCmd");
  EXPECT_FALSE(user.At("CmdContinu").enabled);
  user.Tab("raw");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  user.Click("OriModiCmd");
  EXPECT_TRUE(user.At("CmdContinu").enabled);
  user.Tab("raw");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
}

TEST(Modify, ATriedSampleSizeDoesNotTouchTheSeries) {
  ProgramSession user;
  OpenOnStartScreen(user);
  const std::vector<double> before = user.Record().C;
  user.Click("OriModiCmd");
  user.Type("SampSizTxB", "50");
  EXPECT_EQ(user.Record().C, before);
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(Modify, WorksOnKnownStatisticsToo) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Text("NameTxB"), "Welders (Modified)");
  user.Type("GMTxB", "3");
  user.Type("SampSizTxB", "30");
  EXPECT_EQ(user.Text("DegreesLbl"), "29");
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Record().Name, "Welders");
  EXPECT_EQ(user.Record().M, 12);
  EXPECT_EQ(user.Record().df, 11);
  EXPECT_EQ(user.Record().GM, 1.5);
  EXPECT_EQ(user.Text("GMTxB"), "1.5");
}

TEST(Modify, ClosingTheDataEndsIt) {
  ProgramSession user;
  OpenOnStartScreen(user);
  user.Click("OriModiCmd");
  user.Click("Menuclose");
  EXPECT_FALSE(user.Record().ModifyMode);
  EXPECT_EQ(user.Text("OriModiCmd"), "&Modify");
  EXPECT_FALSE(user.At("OriModiCmd").visible);
}

TEST(Modify, AnotherFileEndsIt) {
  ProgramSession user;
  OpenOnStartScreen(user);
  user.Click("OriModiCmd");
  user.OpenSeries({3, 5, 9});
  EXPECT_FALSE(user.Record().ModifyMode);
  user.Tab("basis");
  EXPECT_EQ(user.Text("OriModiCmd"), "&Modify");
  EXPECT_THAT(user.Record().Name, testing::Not(testing::HasSubstr("(Modified)")));
}

}  // namespace
