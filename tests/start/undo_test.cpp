#include <gmock/gmock.h>

#include <functional>

#include "navigation/series_step.h"
#include "screen/picture.h"
#include "tests/support/data_table.h"
#include "tests/support/start_screen.h"

// What the user has done is taken back, and done again.
namespace {

using support::GridOf;
using support::ProgramSession;
using testing::ElementsAre;

// The series, its range and its unit, without whose estimates are in force.
GivenSeries Standing(ProgramSession& user) {
  GivenSeries series = user.Record();
  series.inForce = Estimates::WholeSample;
  series.regression.reset();
  return series;
}

struct Edit {
  const char* words;
  std::function<void(ProgramSession&)> make;
};

// Of a series of 1, 2, 4 and 8 with a detection range from 1.5.
const Edit kEdits[] = {
    {"outcome 5 in row 3", [](auto& user) { GridOf(user).Write(2, 2, "5"); }},
    {"emptying of row 2", [](auto& user) { GridOf(user).Write(1, 2, "none"); }},
    {"added outcome 3", [](auto& user) { GridOf(user).AddRow("3"); }},
    {"deletion of row 4", [](auto& user) { GridOf(user).DeleteRows({3}); }},
    {"deletion of 2 rows",
     [](auto& user) {
       GridOf(user).DeleteRows({0, 1, 2, 3});
     }},
    {"paste of 1 outcome", [](auto& user) { GridOf(user).Paste(1, "6"); }},
    {"paste of 3 outcomes", [](auto& user) { GridOf(user).Paste(3, "6\n7\n9"); }},
    {"unit R&&D", [](auto& user) { user.Type("DimCbo", "R&D"); }},
    {"unit ppm", [](auto& user) { user.Pick("DimCbo", "ppm"); }},
    {"detection range off", [](auto& user) { user.Click("DetecChB"); }},
    {"LOQ 1.2", [](auto& user) { user.Type("DetecLTxb", "1.2"); }},
    // 7 would leave too few within the range: 8 stands in its place.
    {"URR 8", [](auto& user) { user.Type("DetecUTxb", "7"); }},
};

void OpenWithRange(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  user.Click("DetecChB");
  user.Type("DetecLTxb", "1.5");
  user.box.shown.clear();
}

TEST(Undo, TakesEachEditOfTheTableBackAndRedoDoesItAgain) {
  for (const Edit& edit : kEdits) {
    SCOPED_TRACE(edit.words);
    ProgramSession user;
    OpenWithRange(user);
    const GivenSeries before = Standing(user);
    edit.make(user);
    const GivenSeries after = Standing(user);
    EXPECT_FALSE(before == after);
    EXPECT_EQ(user.Text("MenuUndo"), std::string("&Undo ") + edit.words);
    EXPECT_FALSE(user.At("MenuRedo").enabled);
    user.Click("MenuUndo");
    EXPECT_TRUE(Standing(user) == before);
    EXPECT_EQ(user.Text("MenuUndo"), "&Undo LOQ 1.5");
    EXPECT_EQ(user.Text("MenuRedo"), std::string("&Redo ") + edit.words);
    user.Click("MenuRedo");
    EXPECT_TRUE(Standing(user) == after);
    EXPECT_FALSE(user.At("MenuRedo").enabled);
  }
}

TEST(Undo, GoesBackStepByStepToTheSeriesThatWasOpened) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  const GivenSeries opened = Standing(user);
  user.Click("DetecChB");
  int steps = 1;
  for (const Edit& edit : kEdits) {
    const GivenSeries before = Standing(user);
    edit.make(user);
    steps += Standing(user) == before ? 0 : 1;
  }
  const GivenSeries last = Standing(user);
  for (int i = 0; i < steps; ++i) user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == opened);
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo");
  EXPECT_FALSE(user.At("MenuUndo").enabled);
  for (int i = 0; i < steps; ++i) user.Click("MenuRedo");
  EXPECT_TRUE(Standing(user) == last);
}

TEST(Undo, TheScreenShowsWhatStandsAgain) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Paste(4, "16\n32");
  user.Click("MenuUndo");
  EXPECT_EQ(GridOf(user).rowCount, 4);
  EXPECT_EQ(user.Text("SampSzLbl"), "4");
  EXPECT_EQ(user.Text("CnLbl"), "     8");
  user.Click("MenuRedo");
  EXPECT_EQ(GridOf(user).rowCount, 6);
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(4, 5)) << "what has come is selected";
}

TEST(Undo, TheGatesFollow) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Write(1, 2, "");
  EXPECT_TRUE(user.Record().RawIncomplete);
  user.Click("MenuUndo");
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_TRUE(user.At("RangeFrame").visible);
  user.Click("MenuRedo");
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_FALSE(user.At("RangeFrame").visible);
  user.Tab("plot");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  user.Click("MenuUndo");
  user.Tab("plot");
  EXPECT_EQ(user.Shown().name, "PlotForm");
}

TEST(Undo, BackAtWhatTheFileHoldsNothingIsUnsaved) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Write(0, 2, "0.5");
  GridOf(user).AddRow("9");
  EXPECT_TRUE(user.program.Unsaved());
  user.Click("MenuUndo");
  EXPECT_TRUE(user.program.Unsaved());
  user.Click("MenuUndo");
  EXPECT_FALSE(user.program.Unsaved());
  user.Click("MenuRedo");
  user.dialog.answers = {support::WriteTemporary("undone.vkr", "")};
  user.Click("MenuSave");
  EXPECT_FALSE(user.program.Unsaved());
  user.Click("MenuUndo");
  EXPECT_TRUE(user.program.Unsaved()) << "the file holds the edit";
  user.Click("MenuRedo");
  EXPECT_FALSE(user.program.Unsaved());
}

TEST(Undo, ARefusedEntryIsNoStep) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Write(0, 2, "1E+11");
  GridOf(user).Paste(0, "5\n<0.5");
  EXPECT_FALSE(user.At("MenuUndo").enabled);
}

TEST(Undo, AnEntryThatChangesNothingIsNoStep) {
  ProgramSession user;
  OpenWithRange(user);
  GridOf(user).Write(0, 2, "1");
  user.Type("DetecLTxb", "1.5");
  user.Pick("DimCbo", user.Record().Unit);
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo LOQ 1.5");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo detection range on");
}

// The count of a range that was refused is put right by whatever comes next.
TEST(Undo, ADeletionOfNothingIsNoStep) {
  ProgramSession user;
  user.OpenSeries({0.31, 0.5});
  user.Click("DetecChB");
  user.Type("DetecUTxb", "0.5");
  GridOf(user).DeleteRows({0, 1});
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo URR 0.5");
}

TEST(Undo, ANewEditEndsWhatCouldBeDoneAgain) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).AddRow("3");
  user.Click("MenuUndo");
  GridOf(user).AddRow("5");
  EXPECT_EQ(user.Text("MenuRedo"), "&Redo");
  EXPECT_FALSE(user.At("MenuRedo").enabled);
}

TEST(Undo, ClosingOrOpeningAnotherSeriesEndsIt) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Pick("DimCbo", "ppm");
  user.Tab("basis");
  EXPECT_TRUE(user.At("MenuUndo").enabled);
  user.OpenSeries({1, 2, 4});
  EXPECT_FALSE(user.At("MenuUndo").enabled);
  user.Pick("DimCbo", "ppb");
  user.Click("Menuclose");
  EXPECT_FALSE(user.At("BasisForm.MenuUndo").enabled);
}

TEST(UndoOnTheStartScreen, BringsTheSampleSizeBackTypedOrStepped) {
  ProgramSession user;
  support::OpenAndReturn(user);
  user.Type("SampSizTxB", "3");
  user.Down("SampSize_UpD");
  EXPECT_EQ(user.Record().M, 2);
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo sample size 2");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Text("SampSizTxB"), "3");
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4, 8}));
  user.Click("MenuUndo");
  EXPECT_EQ(user.Text("SampSizTxB"), "4");
  EXPECT_FALSE(user.program.Unsaved());
  EXPECT_FALSE(user.At("MenuUndo").enabled);
}

TEST(UndoOnTheStartScreen, ARefusedSizeIsPartOfTheStepThatMendsIt) {
  ProgramSession user;
  support::OpenAndReturn(user);
  user.Type("SampSizTxB", "1");
  EXPECT_FALSE(user.At("MenuUndo").enabled);
  user.Type("SampSizTxB", "3");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_FALSE(user.At("MenuUndo").enabled);
}

TEST(UndoOnTheStartScreen, TheFirstSizeOfANewSeriesMakesItAndIsNoStep) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  EXPECT_FALSE(user.At("MenuUndo").enabled);
  user.Type("SampSizTxB", "5");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Record().M, 3);
}

TEST(UndoOnTheStartScreen, IsClosedWhileOtherValuesAreTried) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Write(0, 2, "0.5");
  user.Tab("basis");
  user.Click("OriModiCmd");
  user.Type("SampSizTxB", "9");
  EXPECT_FALSE(user.At("MenuUndo").enabled);
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo outcome 0.5 in row 1");
}

TEST(UndoOnTheStartScreen, AnEditOfTheTableIsTakenBackThereToo) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Paste(4, "16\n32");
  user.Tab("basis");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Text("SampSizTxB"), "4");
  EXPECT_EQ(GridOf(user).rowCount, 4) << "the table asks for no outcome that is gone";
}

void ToPlot(ProgramSession& user) {
  user.OpenSeries({1, 2, 3, 4, 5, 6, 7, 8, 9});
  user.Tab("plot");
}

void Move(ProgramSession& user, const std::string& bar, int place, bool held = false) {
  screen::Control& control = user.At(bar);
  control.value = place;
  control.held = held;
  screen::Guarded(user.ports, control.Change);
}

TEST(UndoOnThePlot, TakesTheRangeOfItsMenusAndBarsBack) {
  ProgramSession user;
  ToPlot(user);
  const GivenSeries whole = Standing(user);
  user.Click("MenuLowLim");
  const GivenSeries on = Standing(user);
  Move(user, "VScLowLimit", 60);
  EXPECT_TRUE(user.Record().RegressionOn);
  const double GM = user.Record().GM;
  user.Click("MenuRemDetec");
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo detection range off");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Record().GM, GM) << "the line of that range stands again";
  EXPECT_TRUE(user.Record().RegressionOn);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == on);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == whole);
}

TEST(UndoOnThePlot, ADragIsOneStep) {
  ProgramSession user;
  ToPlot(user);
  user.Click("MenuLowLim");
  const GivenSeries before = Standing(user);
  Move(user, "VScLowLimit", 80);
  for (int place : {70, 60, 55}) Move(user, "VScLowLimit", place, true);
  const GivenSeries after = Standing(user);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == before);
  user.Click("MenuRedo");
  EXPECT_TRUE(Standing(user) == after);
  Move(user, "VScLowLimit", 50);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == after) << "a new movement is a new step";
}

TEST(UndoOnThePlot, ADragThatAtFirstChangesNothingIsAStepOfItsOwn) {
  ProgramSession user;
  ToPlot(user);
  user.Click("MenuLowLim");
  Move(user, "VScLowLimit", 80);
  const GivenSeries before = Standing(user);
  Move(user, "VScLowLimit", 80);
  for (int place : {60, 55}) Move(user, "VScLowLimit", place, true);
  ASSERT_FALSE(Standing(user) == before);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == before);
}

TEST(UndoOnThePlot, AClickOfTheMouseIsOneStep) {
  ProgramSession user;
  ToPlot(user);
  user.Click("MenuLowLim");
  const GivenSeries before = Standing(user);
  auto& picture = static_cast<screen::Picture&>(user.At("PicPlot"));
  picture.MouseDown(0, 0.5 * picture.drawing.ScaleHeight());
  EXPECT_FALSE(Standing(user) == before);
  user.Click("MenuUndo");
  EXPECT_TRUE(Standing(user) == before);
}

// Two outcomes have no plot.
TEST(UndoOnThePlot, ASeriesThatHasNoPlotIsShownInTheTable) {
  ProgramSession user;
  user.OpenSeries({1, 2});
  GridOf(user).AddRow("4");
  user.Tab("plot");
  ASSERT_EQ(user.Shown().name, "PlotForm");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(support::Focus(user), "DBGridVkr");
  EXPECT_EQ(GridOf(user).rowCount, 2);
  EXPECT_TRUE(user.box.shown.empty());
}

// An arrival at the table closes a series of equal outcomes; this one the user has had before.
TEST(UndoOnThePlot, ASeriesOfEqualOutcomesIsNotClosedBehindTheUsersBack) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Paste(0, "3\n3\n3");
  GridOf(user).Write(2, 2, "5");
  user.Tab("plot");
  ASSERT_EQ(user.Shown().name, "PlotForm");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 3, 3, 3}));
  EXPECT_TRUE(user.box.shown.empty());
  user.Click("MenuUndo");
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4}));
}

TEST(UndoOfTheUnit, CountsOnTheLimitsScreenToo) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.Tab("grenzen");
  user.Pick("DimCbo", "ppm");
  user.Tab("raw");
  EXPECT_EQ(user.Text("MenuUndo"), "&Undo unit ppm");
  user.Click("MenuUndo");
  EXPECT_EQ(user.Text("DimCbo"), "mg/m3");
}

// A drag that comes back to where it began, and goes on, is a step behind the one before it.
TEST(Steps, AMovementThatPassesItsBeginningStaysAStepOfItsOwn) {
  support::PlainHistory history;
  Record record;
  navigation::Steps steps(record, history);
  const auto set = [&](double outcome, bool goesOn) {
    const GivenSeries before = record.Now();
    record.Change([outcome](Given& given) {
      given.Mode = DataMode::Raw;
      given.M = 3;
      given.C = {0, outcome, 2, 4};
    });
    steps.Done("step", before, goesOn);
  };
  set(1, false);
  set(0.5, false);
  for (const double place : {0.25, 0.5, 0.1}) set(place, place != 0.25);
  ASSERT_TRUE(steps.Undo());
  EXPECT_EQ(record.Now().C[1], 0.5);
  ASSERT_TRUE(steps.Undo());
  EXPECT_EQ(record.Now().C[1], 1);
}

// What stands between two steps is kept once.
TEST(Steps, NeighboursShareWhatStandsBetweenThem) {
  support::PlainHistory history;
  Record record;
  navigation::Steps steps(record, history);
  record.Change([](Given& given) {
    given.Mode = DataMode::Raw;
    given.M = 3;
    given.C = {0, 1, 2, 4};
  });
  for (const double outcome : {0.5, 0.25}) {
    const GivenSeries before = record.Now();
    record.Change([outcome](Given& given) { given.C[1] = outcome; });
    steps.Done("step", before, false);
  }
  const auto& first = dynamic_cast<const navigation::SeriesStep&>(*history.steps[0]);
  const auto& second = dynamic_cast<const navigation::SeriesStep&>(*history.steps[1]);
  EXPECT_EQ(&first.After(), &second.Before());
}

}  // namespace
