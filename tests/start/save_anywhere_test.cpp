#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "tests/support/start_screen.h"

// The series can be saved from every screen, not only from that of its table.
namespace {

using support::ProgramSession;

std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::stringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

void OpenAndEdit(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  support::EditOutcome(user, 0, "1.5");
}

TEST(SaveAnywhere, EveryScreenSavesTellsItAndShowsTheNewName) {
  const std::pair<const char*, const char*> screens[] = {
      {"basis", "NameTxB"}, {"grenzen", "NameTxB"}, {"descript", "NameTxB"},      {"plot", ""},
      {"mean", "NameLbl"},  {"Compare", "NameTxB"}, {"extrapolation", "NameLbl"},
  };
  for (const auto& [tab, name] : screens) {
    SCOPED_TRACE(tab);
    ProgramSession user;
    OpenAndEdit(user);
    ASSERT_TRUE(user.Tab(tab));
    ASSERT_TRUE(user.At("MenuSave").enabled);
    const std::string path = support::WriteTemporary("saved.vkr", "");
    user.dialog.answers = {path};
    user.box.shown.clear();
    user.Click("MenuSave");
    EXPECT_EQ(Bytes(path), "1.5\r\n2\r\n4\r\n8\r\n");
    EXPECT_FALSE(user.program.Unsaved());
    EXPECT_EQ(user.Record().Name, path);
    EXPECT_THAT(user.Text("StatusLbl"), testing::StartsWith("4 outcomes saved."));
    if (*name != 0) {
      EXPECT_EQ(user.Text(name), path);
    }
    EXPECT_TRUE(user.box.shown.empty());
  }
}

TEST(SaveAnywhere, TheFilesNameBringsBackTheTabsOfASeriesThatHadNone) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Tab("basis");
  user.Type("NameTxB", "");
  ASSERT_FALSE(user.Shown().strip->visible);
  user.dialog.answers = {support::WriteTemporary("saved.vkr", "")};
  user.Click("MenuSave");
  EXPECT_TRUE(user.Shown().strip->visible);
  EXPECT_TRUE(user.Tab("descript"));
}

TEST(SaveAnywhere, AlsoFromThePictureWhichThenCarriesTheNewName) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Tab("extrapolation");
  user.Click("LeidelCmb");
  user.Click("MenuVerd");
  ASSERT_EQ(user.Shown().name, "VerdelingForm");
  const std::string path = support::WriteTemporary("saved.vkr", "");
  user.dialog.answers = {path};
  user.Click("MenuSave");
  EXPECT_FALSE(user.program.Unsaved());
  EXPECT_EQ(user.Shown().name, "VerdelingForm");
  EXPECT_THAT(user.Text("LblKoptekst"), testing::HasSubstr(path));
}

TEST(SaveAnywhere, ACancelledDialogTellsNothingAsDone) {
  ProgramSession user;
  OpenAndEdit(user);
  user.Tab("descript");
  user.Click("MenuSave");
  EXPECT_TRUE(user.program.Unsaved());
  EXPECT_THAT(user.Text("StatusLbl"), testing::Not(testing::HasSubstr("outcomes")));
}

// The values that are tried are not those of the file, nor is their name the file's.
TEST(SaveAnywhere, WhileOtherValuesAreTriedTheSeriesItselfIsSaved) {
  ProgramSession user;
  OpenAndEdit(user);
  const std::string name = user.Record().Name;
  user.Tab("basis");
  user.Click("OriModiCmd");
  user.Type("SampSizTxB", "2");
  const std::string path = support::WriteTemporary("saved.vkr", "");
  user.dialog.answers = {path};
  user.Click("MenuSave");
  EXPECT_EQ(user.dialog.asked.back().fileName, name);
  EXPECT_EQ(Bytes(path), "1.5\r\n2\r\n4\r\n8\r\n");
  EXPECT_EQ(user.Record().Name, name + " (Modified)");
  user.Click("OriModiCmd");
  EXPECT_EQ(user.Record().Name, path);
  EXPECT_EQ(user.Record().M, 4);
}

TEST(SaveAnywhere, WithoutACompleteSeriesThereIsNothingToSave) {
  ProgramSession user;
  EXPECT_FALSE(user.At("MenuSave").enabled);
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  EXPECT_FALSE(user.At("MenuSave").enabled);
  user.Tab("descript");
  EXPECT_FALSE(user.At("MenuSave").enabled);
  ProgramSession other;
  support::NewSeries(other, "Solvent", "3");
  EXPECT_FALSE(other.At("MenuSave").enabled);
}

}  // namespace
