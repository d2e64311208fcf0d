#include <gmock/gmock.h>

#include <filesystem>
#include <map>

#include "catalog/catalog.h"
#include "tests/support/program_session.h"

namespace {

using support::ProgramSession;

const char kQuestion[] =
    " What kind of exposure data do you want to analyze?\r"
    "  - A series measurement outcome: click menu option &File\r"
    "  - Known values of GM and GSD: click option button '&Descriptive statistics'";

// What the window shows of a screen.
std::map<std::string, screen::ControlState> Look(const screen::Form& form) {
  std::map<std::string, screen::ControlState> look;
  for (const screen::Control* control : form.controls) look[control->name] = *control;
  return look;
}

TEST(Start, AsksForTheKindOfDataOnTheStartScreen) {
  ProgramSession user;
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_TRUE(user.At("BoodschFrame").visible);
  EXPECT_TRUE(user.At("BoodschLbl").visible);
  EXPECT_EQ(user.Text("BoodschLbl"), kQuestion);
  EXPECT_EQ(user.Text("WindnrLbl"), "2");
  EXPECT_EQ(user.Record().CurrentTab, ScreenId::Basis);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(Start, HidesWhatNoDataHaveBeenChosenFor) {
  ProgramSession user;
  for (const char* name :
       {"IdentFrame", "DescriptFrame", "OriModiCmd", "CmdContinu", "menuTools", "TabBasis"})
    EXPECT_FALSE(user.At(name).visible) << name;
  EXPECT_EQ(user.Text("OriModiCmd"), "&Modify");
}

TEST(Start, BeginsWithAnEmptyRecordAndEmptyFields) {
  ProgramSession user;
  const ExposureSession& record = user.Record();
  EXPECT_EQ(record.Mode, DataMode::None);
  EXPECT_EQ(record.Name + record.Unit + record.Duration + record.RefPeriod, "");
  EXPECT_FALSE(record.IdentOk || record.DescOk || record.LimitsOk || record.ModifyMode);
  EXPECT_FALSE(record.OELV.has_value());
  EXPECT_EQ(record.M, 0);
  for (const char* name : {"NameTxB", "SampSizTxB", "GMTxB", "GSDTxB"})
    EXPECT_EQ(user.Text(name), "") << name;
}

TEST(Start, LoadsTheOtherScreensWithoutShowingThem) {
  ProgramSession user;
  for (const char* name :
       {"DataCtrlForm", "GrenzenForm", "DescriptForm", "PercExForm", "UCLForm", "LandHulpForm"})
    EXPECT_NE(user.program.FormByName(name), nullptr) << name;
  EXPECT_THAT(user.At("DataCtrlForm.DimCbo").items,
              testing::ElementsAre("%", "fibres/ml", "mg/m3", "ppm", "ppb", "dB(A)", "EU/ml"));
  EXPECT_EQ(user.Text("DataCtrlForm.DimCbo"), "Units");
  EXPECT_EQ(user.Text("DataCtrlForm.WindnrLbl"), "");
}

TEST(Start, TheVersionTextNamesThreeNumbersAndEndsInTwoBlanks) {
  ProgramSession user;
  EXPECT_THAT(user.Record().VersionText,
              testing::MatchesRegex("VALKORIN version [0-9]+\\.[0-9]+\\.[0-9]+  "));
  EXPECT_THAT(user.program.Title(), testing::HasSubstr(LoadResString(3)));
}

// Those of the raw data and of the plot stand in their layouts.
TEST(Start, EveryScreenHasATitleInFrontOfTheNameOfTheSeries) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  const std::string name = " - " + user.Record().Name;
  for (const navigation::ScreenId screen :
       {navigation::ScreenId::Basis, navigation::ScreenId::Grenzen, navigation::ScreenId::Descript,
        navigation::ScreenId::PercEx, navigation::ScreenId::UCL, navigation::ScreenId::TwoSamp}) {
    user.program.Open(screen);
    EXPECT_GT(user.program.Title().size(), name.size()) << user.Shown().name;
    EXPECT_FALSE(user.program.Title().starts_with(" - ")) << user.Shown().name;
  }
}

// A workstation without the coefficient files must still show its user a program.
TEST(Start, AMissingCoefficientFileDoesNotStopIt) {
  namespace fs = std::filesystem;
  const fs::path before = fs::current_path();
  const fs::path empty = support::WriteTemporary("here", "") + "-is-no-file";
  fs::create_directories(empty);
  fs::current_path(empty);
  support::RecordingPorts around;
  start::Program program(around.ports, {(empty / "nowhere").string()});
  program.Start();
  fs::current_path(before);
  EXPECT_TRUE(around.box.shown.empty());
  const std::string& text = program.FormByName("BasisForm")->Find("BoodschLbl")->text;
  EXPECT_THAT(text, testing::StartsWith(kQuestion));
  EXPECT_THAT(text, testing::HasSubstr((empty / "VALKORIN.COF").string() + " is missing"));
  EXPECT_THAT(text, testing::HasSubstr((empty / "asr94COF.txt").string() + " is missing"));
  EXPECT_EQ(program.Session().CurrentTab, ScreenId::Basis);
}

TEST(Start, TheMenusWithoutARoutineDoNothing) {
  ProgramSession user;
  user.program.TellState();
  const auto before = Look(user.Shown());
  for (const char* menu : {"MenuWebsite", "MenuOpdatbas", "MenuOpSprSht"}) {
    user.Click(menu);
    EXPECT_EQ(Look(user.Shown()), before) << menu;
    EXPECT_EQ(user.Shown().name, "BasisForm") << menu;
  }
  EXPECT_EQ(user.Record().Mode, DataMode::None);
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_TRUE(user.dialog.asked.empty());
}

}  // namespace
