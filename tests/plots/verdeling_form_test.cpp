#include "plots/verdeling_form.h"

#include <gmock/gmock.h>

#include <cmath>

#include "plots/density_view.h"
#include "stats/estimators.h"
#include "tests/plots/drawing_text.h"
#include "tests/support/program_session.h"

// The frequency distribution picture in the whole program.
namespace {

using testing::HasSubstr;

struct User : support::ProgramSession {
  plots::VerdelingForm& Picture() {
    return dynamic_cast<plots::VerdelingForm&>(*program.FormByName("VerdelingForm"));
  }
  // Opens a series, with a limit, and goes to that tab.
  void GoTo(const std::string& key) {
    OpenSeries({0.21, 0.34, 0.45, 0.61, 0.79, 0.94, 1.1, 1.4, 1.9, 3.1});
    Record().OELV = 5;
    Record().LimitsOk = true;
    Tab("grenzen");
    Tab("basis");
    if (key == "basis") return;
    ASSERT_TRUE(Tab(key)) << key;
  }
  void SeePicture() {
    const std::size_t boxes = box.shown.size();
    Click("MenuVerd");
    ASSERT_EQ(Shown().name, "VerdelingForm");
    EXPECT_EQ(box.shown.size(), boxes);
  }
  bool ShowsLabel(const std::string& name) { return At("VerdelingForm." + name).visible; }
};

// What a screen shows: all states in their order.
std::vector<screen::ControlState> Look(const screen::Form& form) {
  std::vector<screen::ControlState> look;
  for (const screen::Control* control : form.controls) look.push_back(*control);
  return look;
}

// The drawing as text; of the curve every fiftieth point, and not the lines between.
std::string Kept(const drawing::DrawingRecord& drawing) {
  const std::string whole = drawing_text::Whole(drawing);
  std::string kept;
  int dots = 0;
  for (std::size_t at = 0; at < whole.size();) {
    const std::size_t end = whole.find('\n', at) + 1;
    const std::string line = whole.substr(at, end - at);
    const bool between = line.ends_with(" rgb(0,0,255) 26.0\n");
    if (!between && (!line.starts_with("dot ") || dots++ % 50 == 0)) kept += line;
    at = end;
  }
  return kept;
}

constexpr const char* kTabs[] = {"basis", "raw",           "grenzen", "descript",
                                 "plot",  "extrapolation", "mean",    "Compare"};

class PictureCaller : public testing::TestWithParam<const char*> {};

TEST_P(PictureCaller, StandsAsItWasLeftBehindThePicture) {
  User user;
  user.GoTo(GetParam());
  if (user.Shown().name == "PercExForm") user.Click("LeidelCmb");
  if (user.Shown().name == "UCLForm") user.Click("JahrCmb");
  screen::Form& caller = user.Shown();
  screen::Control* menu = caller.Find("MenuVerd");
  ASSERT_NE(menu, nullptr);
  ASSERT_TRUE(menu->visible);
  ASSERT_TRUE(menu->enabled);
  const auto before = Look(caller);
  const auto tab = user.Record().CurrentTab;
  user.SeePicture();
  EXPECT_EQ(user.Record().CurrentTab, tab);
  EXPECT_FALSE(user.Picture().VerdelingPict.drawing.Items().empty());
  user.Click("Menuclose");
  EXPECT_EQ(&user.Shown(), &caller);
  EXPECT_EQ(Look(caller), before);
  EXPECT_EQ(user.Record().CurrentTab, tab);
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, PictureCaller, testing::ValuesIn(kTabs),
                         [](const auto& caller) { return std::string(caller.param); });

TEST(FrequencyPicture, FromTheDescriptiveScreenShowsGMAndGSDOnly) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  EXPECT_EQ(user.Text("XasLbl(0)"), "1.5*GM*GSD");
  EXPECT_EQ(user.Text("WindnrLbl"), "20d");
  EXPECT_TRUE(user.ShowsLabel("GMLbl"));
  EXPECT_TRUE(user.ShowsLabel("GSDPercLbl"));
  for (const char* label : {"UTLLbl", "VkrValLbl", "AMuLbl", "UCLLbl", "LblToets"})
    EXPECT_FALSE(user.ShowsLabel(label)) << label;
}

TEST(FrequencyPicture, EachOpeningShowsTheMarksOfItsCallerOnly) {
  User user;
  user.GoTo("mean");
  user.Click("JahrCmb");
  user.SeePicture();
  EXPECT_TRUE(user.ShowsLabel("UCLLbl"));
  EXPECT_TRUE(user.ShowsLabel("AMuLbl"));
  user.Click("Menuclose");
  user.Tab("extrapolation");
  user.Click("LeidelCmb");
  user.SeePicture();
  EXPECT_TRUE(user.ShowsLabel("UTLLbl"));
  for (const char* label : {"AMuLbl", "UCLLbl"}) EXPECT_FALSE(user.ShowsLabel(label)) << label;
  EXPECT_EQ(user.Text("WindnrLbl"), "25");
}

TEST(FrequencyPicture, AnAMuOfZeroIsComputedBeforeDrawingAndStays) {
  User user;
  user.GoTo("basis");
  ExposureSession& s = user.Record();
  s.AMu = 0;
  user.SeePicture();
  const double expected = StatFWinBAS::FinneyMeanMVU(s.df, s.GM, s.GSD);
  EXPECT_EQ(s.AMu, expected);
  user.Click("Menuclose");
  EXPECT_EQ(s.AMu, expected);
}

// Whatever stood there may be of other data.
TEST(FrequencyPicture, TheMeanIsThatOfTheDataInThePicture) {
  User user;
  user.GoTo("basis");
  user.Record().AMu = 77;
  user.SeePicture();
  const ExposureSession& s = user.Record();
  EXPECT_EQ(s.AMu, StatFWinBAS::FinneyMeanMVU(s.df, s.GM, s.GSD));
}

TEST(FrequencyPicture, LeavesTheLogarithmOfTheSpreadInTheRecord) {
  User user;
  user.GoTo("basis");
  user.Record().LnGSD = 0;
  user.SeePicture();
  EXPECT_DOUBLE_EQ(user.Record().LnGSD, std::log(user.Record().GSD));
}

TEST(FrequencyPicture, ANameThatIsTooLongForTheHeadlineStandsInTheTip) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  EXPECT_EQ(user.Picture().VerdelingPict.tip, "");
  user.Click("Menuclose");
  user.Record().Name = std::string(63, 'W');
  user.SeePicture();
  EXPECT_EQ(user.Picture().VerdelingPict.tip, user.Record().Name);
  EXPECT_THAT(user.Text("LblKoptekst"), HasSubstr(user.Record().Name));
}

TEST(FrequencyPicture, FollowsANewSize) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  screen::Picture& picture = user.Picture().VerdelingPict;
  picture.drawing.SetScale(18000, 10000);
  screen::Guarded(user.ports, picture.Resized);
  drawing::DrawingRecord expected(18000, 10000);
  PlotWBas::DrawDensity(
      expected,
      PlotWBas::DensityOf(*PlotWBas::NumbersOf(user.program.SessionRecord()), user.clock.Now()));
  EXPECT_EQ(picture.drawing.Items(), expected.Items());
}

// The record may be empty by the time when a hidden picture gets another size.
TEST(FrequencyPicture, IsNotDrawnWhileItIsHidden) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  user.Click("Menuclose");
  user.Click("Menuclose");
  screen::Picture& picture = user.Picture().VerdelingPict;
  picture.drawing.Clear();
  screen::Guarded(user.ports, picture.Resized);
  EXPECT_TRUE(picture.drawing.Items().empty());
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(FrequencyPicture, NumbersThatCannotBeDrawnCloseItsMenuAndLeaveNoEarlierPicture) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  user.Record().GSD = 1;
  screen::Picture& picture = user.Picture().VerdelingPict;
  screen::Guarded(user.ports, picture.Resized);
  EXPECT_TRUE(picture.drawing.Items().empty());
  EXPECT_FALSE(user.ShowsLabel("GMLbl"));
  EXPECT_TRUE(user.box.shown.empty());
  user.Click("Menuclose");
  user.Tab("basis");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_FALSE(user.At("MenuVerd").enabled);
  EXPECT_EQ(user.At("MenuVerd").tip, "There are no GM and GSD to draw yet.");
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(FrequencyPicture, ALimitOfTheMeanBeyondNumbersClosesItsMenu) {
  User user;
  user.EnterStatistics("Welders", "2", "1", "1000");
  user.Record().OELV = 5;
  user.Record().D = 99.99;
  user.program.Open(navigation::ScreenId::UCL);
  user.Click("JahrCmb");
  ASSERT_EQ(user.LastBox().title, "UCL");
  ASSERT_TRUE(user.At("MenuVerd").visible);
  EXPECT_FALSE(user.At("MenuVerd").enabled);
  EXPECT_EQ(user.At("MenuVerd").tip, "These numbers are too far apart to be drawn.");
}

TEST(SavingAPicture, WritesItAsABitmapWhereTheDialogSays) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  user.dialog.answers.push_back("/tmp/density.bmp");
  user.Click("menuSavePicture");
  ASSERT_EQ(user.pictures.written.size(), 1U);
  EXPECT_EQ(user.pictures.written[0].path, "/tmp/density.bmp");
  EXPECT_EQ(user.pictures.written[0].drawing.Items(), user.Picture().VerdelingPict.drawing.Items());
  const auto& asked = user.dialog.asked.back();
  EXPECT_TRUE(asked.save);
  EXPECT_EQ(asked.filter, "Valkorin Files (*.bmp)|*.bmp");
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(SavingAPicture, ThatIsCancelledWritesNothing) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  user.Click("menuSavePicture");
  EXPECT_TRUE(user.pictures.written.empty());
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_EQ(user.Record().MsgTitle, "No file loaded!");
  EXPECT_EQ(user.Record().MsgText, "Open a *. VKR file from disk");
}

TEST(SavingAPicture, ThatFailsIsTold) {
  User user;
  user.GoTo("descript");
  user.SeePicture();
  user.pictures.fails = true;
  user.dialog.answers.push_back("/full/density.bmp");
  user.Click("menuSavePicture");
  ASSERT_EQ(user.box.shown.size(), 1U);
  EXPECT_THAT(user.LastBox().title, HasSubstr("/full/density.bmp"));
  EXPECT_EQ(user.LastBox().text, "The picture could not be written.");
  EXPECT_EQ(user.Shown().name, "VerdelingForm");
}

TEST(FrequencyPicture, ExitAnsweredWithNoLeadsToTheStartScreen) {
  User user;
  user.GoTo("mean");
  user.Click("JahrCmb");
  user.SeePicture();
  user.box.answers.push_back(screen::Answer::No);
  user.Click("MenuExit");
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_FALSE(user.program.EndRequested());
  EXPECT_EQ(user.Record().TestTag, Extrapolation::None) << "as when the mean itself is left";
}

TEST(FrequencyPicture, ItsDrawingsAreAsTheyWere) {
  struct Case {
    const char* tab;
    const char* button;
    const char* file;
  };
  for (const Case& c :
       {Case{"raw", "", "density_raw.txt"}, Case{"descript", "", "density_descript.txt"},
        Case{"plot", "", "density_plot.txt"},
        Case{"extrapolation", "LeidelCmb", "density_leidel.txt"},
        Case{"extrapolation", "WilksCmb", "density_wilks.txt"},
        Case{"extrapolation", "TuggleCmb", "density_en689.txt"},
        Case{"mean", "JahrCmb", "density_jahr.txt"}, Case{"mean", "LandCmb", "density_land.txt"}}) {
    User user;
    user.GoTo(c.tab);
    user.Record().Name = "Wood dust";
    if (*c.button) user.Click(c.button);
    user.SeePicture();
    EXPECT_EQ(drawing_text::Difference(c.file, Kept(user.Picture().VerdelingPict.drawing)), "");
  }
}

}  // namespace
