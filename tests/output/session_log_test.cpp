#include "output/session_log.h"

#include <fcntl.h>
#include <sys/file.h>

#include "output/log_name.h"
#include "output/screen_record.h"
#include "tests/output/log_user.h"
#include "tests/support/full_disk.h"

// The item that appends what the screen shows to the log.
namespace {

using screen::Icon;
using testing::HasSubstr;
using testing::StartsWith;
using testing::UnorderedElementsAre;

class TheLog : public LogUser {
 protected:
  std::string Record() {
    return output::ScreenRecord(p.Shown(), p.Record(), p.clock.Now(), output::Medium::Log);
  }
};

TEST_F(TheLog, StandsBesideTheSeriesAndItsBoxSaysSo) {
  const std::string path = folder_.Write("weld.vkr", "1\r\n2\r\n4\r\n8\r\n");
  p.OpenFile(path);
  Append();
  const std::string log = folder_.Path("weld.LOG");
  ExpectBox("Save screen info", "Data appended to file " + log, Icon::None);
  EXPECT_EQ(Bytes("weld.LOG"), Record());
  EXPECT_EQ(p.Record().LogName, log);
  EXPECT_EQ(p.Record().MsgTitle, "Save screen info");
}

TEST_F(TheLog, OfANameWithoutAFolderIsToldWithItsWholePathBelow) {
  OpenSeries();
  Append();
  ExpectBox("Save screen info", "Data appended to file weld.LOG\r" + Whole("weld.LOG"), Icon::None);
}

TEST_F(TheLog, HoldsTheRecordTwiceAfterTwoAppendsWithNothingBetween) {
  OpenSeries();
  Append();
  Append();
  EXPECT_EQ(Bytes("weld.LOG"), Record() + Record());
}

TEST_F(TheLog, KeepsWhatItHeld) {
  folder_.Write("weld.LOG", "of last year");
  OpenSeries();
  Append();
  EXPECT_EQ(Bytes("weld.LOG"), "of last year" + Record());
}

TEST_F(TheLog, GathersTheScreensInTheOrderOfTheAppends) {
  OpenSeries();
  std::string wanted;
  for (const char* tab : {"raw", "grenzen", "descript", "basis", "raw"}) {
    p.Tab(tab);
    if (!p.Shown().Find("MenuLog")) continue;
    wanted += Record();
    Append();
  }
  EXPECT_EQ(Bytes("weld.LOG"), wanted);
}

TEST_F(TheLog, OfThePlotHasAnItemOfItsOwnName) {
  OpenSeries();
  p.Tab("plot");
  AppendWith("MenuLog");
  EXPECT_TRUE(p.box.shown.empty()) << "that is the name of a scale";
  AppendWith("MenuLogFile");
  EXPECT_EQ(Bytes("weld.LOG"), Record());
  EXPECT_THAT(Bytes("weld.LOG"), HasSubstr("date: 7 Mar 2024\r\n"));
}

TEST_F(TheLog, IsNotWrittenForDataWithoutANameOnFiveScreens) {
  OpenSeries();
  for (const char* tab : {"raw", "descript", "extrapolation", "mean", "Compare"}) {
    p.Tab(tab);
    p.Record().Name.clear();
    Append();
    ExpectRefusal(
        "No sample identification name. Therefore no data appended to Log file "
        "drive\\curdir\\name.LOG");
    p.Record().Name = "weld.vkr";
  }
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre("weld.vkr"));
  EXPECT_EQ(p.Record().LogName, "");
}

TEST_F(TheLog, OfTheLimitsWithoutANameHasOnlyAnEnding) {
  OpenSeries();
  p.Tab("grenzen");
  p.Record().Name.clear();
  Append();
  EXPECT_EQ(Bytes(".LOG"), Record());
  EXPECT_THAT(p.LastBox().text, StartsWith("Data appended to file .LOG\r"));
}

TEST_F(TheLog, IsNeverTheSeriesItself) {
  for (const char* name : {"weld.LOG", "weld.vkr"}) {
    folder_.Write("weld.vkr", "1\r\n2\r\n4\r\n8\r\n");
    std::filesystem::remove(folder_.Path("weld.LOG"));
    std::filesystem::create_hard_link(folder_.Path("weld.vkr"), folder_.Path("weld.LOG"));
    p.Tab("basis");
    p.OpenFile(name);
    Append();
    ExpectRefusal("Nothing was appended: the log would be the file that holds the series itself, " +
                  Whole("weld.LOG") + ".");
    EXPECT_EQ(Bytes("weld.vkr"), "1\r\n2\r\n4\r\n8\r\n") << name;
  }
}

TEST_F(TheLog, IsNeverTheSeriesWhateverThatIsCalledByNow) {
  OpenSeries("weld.LOG");
  const std::string refusal =
      "Nothing was appended: the log would be the file that holds the series itself, " +
      Whole("weld.LOG") + ".";
  p.Tab("basis");
  p.Type("NameTxB", "weld");
  p.Tab("raw");
  Append();
  ExpectRefusal(refusal);
  p.Tab("basis");
  p.Type("NameTxB", "weld.LOG");
  p.Click("OriModiCmd");
  ASSERT_EQ(p.Record().Name, "weld.LOG (Modified)");
  p.Tab("descript");
  Append();
  ExpectRefusal(refusal);
  EXPECT_EQ(Bytes("weld.LOG"), "1\r\n2\r\n4\r\n8\r\n");
}

// Its file would otherwise come back as a log.
TEST_F(TheLog, IsNotTheSeriesThatWasRemovedMeanwhile) {
  OpenSeries("weld.LOG");
  std::filesystem::remove(folder_.Path("weld.LOG"));
  Append();
  EXPECT_THAT(p.LastBox().text, StartsWith("Nothing was appended: the log would be the file"));
  EXPECT_THAT(folder_.Names(), testing::IsEmpty());
}

// There is no file with typed statistics that could be spoilt.
TEST_F(TheLog, OfTypedStatisticsMayHaveTheirName) {
  p.EnterStatistics("weld.LOG", "10", "0.3", "2");
  p.Tab("descript");
  Append();
  Append();
  EXPECT_EQ(Bytes("weld.LOG"), Record() + Record());
}

TEST_F(TheLog, ThatCannotBeOpenedIsNamedWithItsWholePath) {
  OpenSeries();
  std::filesystem::create_directory(folder_.Path("weld.LOG"));
  Append();
  ExpectBox("VALKORIN",
            "This step could not be finished: the log " + Whole("weld.LOG") +
                " can't be opened: there is a folder of that name. What was entered before it is "
                "kept.",
            Icon::Exclamation);
}

TEST_F(TheLog, SaysWhyItCannotBeOpened) {
  const auto why = [this](const std::string& name) {
    p.Record().Name = name;
    Append();
    return p.LastBox().text;
  };
  OpenSeries();
  ASSERT_EQ(::mkfifo(folder_.Path("pipe.LOG").c_str(), 0666), 0);
  EXPECT_THAT(why("none/x"), HasSubstr("its folder does not exist"));
  EXPECT_THAT(why("pipe"), HasSubstr("what has that name is no plain file"));
  EXPECT_THAT(why(std::string(300, 'x')), HasSubstr("the name is too long"));
  folder_.Write("kept.LOG", "old");
  ::chmod(folder_.Path("kept.LOG").c_str(), 0444);
  const AsOrdinaryUser user;
  p.Record().Name = "kept";
  Append();
  EXPECT_THAT(p.LastBox().text, HasSubstr("it may not be written"));
  EXPECT_EQ(Bytes("kept.LOG"), "old");
}

TEST_F(TheLog, OfAnyNameIsWritten) {
  for (const std::string& name :
       {std::string("\"press\" 'two'"), std::string("line\r\nend"), std::string(246, 'n')}) {
    OpenSeries();
    p.Record().Name = name;
    Append();
    EXPECT_EQ(Bytes(name + ".LOG"), Record());
    EXPECT_EQ(p.LastBox().title, "Save screen info");
    p.Tab("basis");
  }
}

TEST_F(TheLog, GetsNothingOfARecordThatFindsNoRoom) {
  OpenSeries();
  folder_.Write("weld.LOG", "old");
  {
    const support::FullDisk full(100);
    Append();
  }
  ExpectRefusal("Nothing was appended to " + Whole("weld.LOG") +
                ": it could not be written. The disk may be full.");
  EXPECT_EQ(Bytes("weld.LOG"), "old");
}

TEST_F(TheLog, ThatAnotherProgramKeepsIsLeftToIt) {
  OpenSeries();
  const std::string log = folder_.Write("weld.LOG", "old");
  const int other = ::open(log.c_str(), O_WRONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  Append();
  ::close(other);
  ExpectRefusal("Nothing was appended to " + Whole("weld.LOG") +
                ": another program is writing it.");
  EXPECT_EQ(Bytes("weld.LOG"), "old");
}

TEST_F(TheLog, IsForgottenWithTheDataAndItsFileStays) {
  OpenSeries();
  Append();
  const std::string held = Bytes("weld.LOG");
  p.Click("Menuclose");
  EXPECT_EQ(p.Record().LogName, "");
  EXPECT_EQ(Bytes("weld.LOG"), held);
}

TEST_F(TheLog, IsNamedByItsMenuItemAndInFullByTheTip) {
  OpenSeries();
  p.program.TellState();
  EXPECT_EQ(p.Text("MenuLog"), "To file weld.LOG");
  EXPECT_EQ(p.At("MenuLog").tip, Whole("weld.LOG"));
  EXPECT_TRUE(p.At("MenuLog").enabled);
}

// The caption cuts four characters, the name itself at the first point.
TEST_F(TheLog, HasItsRealPathInTheTipWhereTheCaptionIsAnother) {
  OpenSeries("r&d.1.data");
  p.program.TellState();
  EXPECT_EQ(p.Text("MenuLog"), "To file r&&d.1..LOG");
  EXPECT_EQ(p.At("MenuLog").tip, Whole("r&d.LOG"));
}

TEST_F(TheLog, IsNotOfferedForDataWithoutAName) {
  OpenSeries();
  p.Record().Name.clear();
  p.program.TellState();
  EXPECT_EQ(p.Text("MenuLog"), "Append to text file <name>.LOG");
  EXPECT_FALSE(p.At("MenuLog").enabled);
  EXPECT_EQ(p.At("MenuLog").tip, "");
}

}  // namespace
