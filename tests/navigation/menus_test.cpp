#include <gmock/gmock.h>

#include "tests/support/letters.h"
#include "tests/support/program_session.h"

// The menus that every screen has.
namespace {

using support::ProgramSession;

const char* const kScreens[][2] = {{"basis", "BasisForm"},          {"raw", "DataCtrlForm"},
                                   {"grenzen", "GrenzenForm"},      {"descript", "DescriptForm"},
                                   {"extrapolation", "PercExForm"}, {"mean", "UCLForm"}};

void OpenOn(ProgramSession& user, const std::string& key) {
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  user.Tab("raw");
  if (key == "raw") return;
  ASSERT_TRUE(user.Tab(key));
}

TEST(Menus, TheComplianceTestsRunFromEveryScreen) {
  constexpr std::pair<const char*, const char*> kTests[] = {
      {"MenuLeid", "Le"}, {"MenuWilks", "Wi"}, {"MenuTugg", "Tu"}};
  for (const auto& [key, form] : kScreens) {
    for (const auto& [menu, tag] : kTests) {
      SCOPED_TRACE(std::string(form) + " " + menu);
      ProgramSession user;
      OpenOn(user, key);
      ASSERT_EQ(user.Shown().name, form);
      user.Click(menu);
      EXPECT_EQ(user.Shown().name, "PercExForm");
      EXPECT_EQ(user.Record().TestTag, support::TagOf(tag));
      EXPECT_NE(user.Text("PercExTxB(1)"), "");
      EXPECT_TRUE(user.box.shown.empty());
    }
  }
}

TEST(Menus, BothMethodsOfTheMeanRunFromEveryScreen) {
  for (const auto& [key, form] : kScreens) {
    for (const auto& [menu, tag] : {std::pair("MenuJahr", "Ap"), std::pair("MenuLand", "Ex")}) {
      SCOPED_TRACE(std::string(form) + " " + menu);
      ProgramSession user;
      OpenOn(user, key);
      user.Click(menu);
      EXPECT_EQ(user.Shown().name, "UCLForm");
      EXPECT_EQ(user.Record().TestTag, support::TagOf(tag));
      EXPECT_EQ(user.Record().CurrentTab, ScreenId::UCL);
      EXPECT_NE(user.Text("UCLTxB"), "");
      EXPECT_TRUE(user.box.shown.empty());
    }
  }
}

TEST(Menus, NoTestRunsWhileTheSeriesIsIncomplete) {
  for (const char* menu : {"MenuLeid", "MenuJahr", "MenuLand"}) {
    ProgramSession user;
    OpenOn(user, "basis");
    user.Type("SampSizTxB", "6");
    user.Click(menu);
    EXPECT_EQ(user.Shown().name, "BasisForm") << menu;
    EXPECT_EQ(user.Record().TestTag, Extrapolation::None) << menu;
  }
}

// The limits screen judges its fields before it is left, whichever way.
TEST(Menus, ATestFromTheLimitsScreenTakesTheLimitThatStandsInTheField) {
  ProgramSession user;
  OpenOn(user, "grenzen");
  screen::Control& field = user.At("VkrValTxB");
  field.text = "12.5";
  field.touched = true;
  user.Click("MenuLeid");
  EXPECT_EQ(user.Record().OELV, 12.5);
  EXPECT_EQ(user.Shown().name, "PercExForm");
}

TEST(Menus, LeadToEveryTestAndPicture) {
  for (const auto& [key, form] : kScreens) {
    SCOPED_TRACE(form);
    ProgramSession user;
    OpenOn(user, key);
    for (const char* menu : {"MenuLeid", "MenuWilks", "MenuTugg", "MenuJahr", "MenuLand", "MenuAM",
                             "MenuComp", "MenuPlot"})
      EXPECT_TRUE(user.At(menu).enabled) << menu;
    // The picture of a test comes with its result.
    if (user.At("MenuVerd").visible) {
      EXPECT_TRUE(user.At("MenuVerd").enabled);
    }
  }
}

TEST(Menus, CloseAndExitWorkFromEveryScreen) {
  for (const auto& [key, form] : kScreens) {
    SCOPED_TRACE(form);
    ProgramSession user;
    OpenOn(user, key);
    user.Click("MenuExit");
    EXPECT_EQ(user.Shown().name, "BasisForm");
    EXPECT_EQ(user.LastBox().title, "Exit");
    EXPECT_EQ(user.Record().M, 4);
    user.Tab(key);
    ASSERT_EQ(user.Shown().name, form);
    user.Click("Menuclose");
    EXPECT_EQ(user.Shown().name, "BasisForm");
    EXPECT_EQ(user.Record().M, 0);
    EXPECT_EQ(user.Record().Mode, DataMode::None);
  }
}

}  // namespace
