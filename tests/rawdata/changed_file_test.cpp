#include <gmock/gmock.h>

#include "tests/support/program_session.h"
#include "tests/support/temp_folder.h"

// A series whose file another program writes to while it is open here.
namespace {

using screen::Answer;
using support::ProgramSession;
using testing::HasSubstr;

class ChangedFile : public testing::Test {
 protected:
  ChangedFile() {
    folder_.Write("a.vkr", "1\r\n2\r\n3\r\n");
    user_.OpenFile(path_);
  }
  void Save(const std::string& path) {
    user_.dialog.answers = {path};
    user_.Click("MenuSave");
  }
  std::size_t Questions() const { return user_.box.shown.size(); }

  TempFolder folder_;
  const std::string path_ = folder_.Path("a.vkr");
  ProgramSession user_;
};

}  // namespace

TEST_F(ChangedFile, IsNotOverwrittenUnlessTheUserSaysSo) {
  folder_.Write("a.vkr", "7\r\n8\r\n9\r\n");
  Save(path_);
  ASSERT_EQ(Questions(), 1U);
  const screen::Message& asked = user_.LastBox();
  EXPECT_THAT(asked.text, HasSubstr("Another program has changed this file"));
  EXPECT_THAT(asked.text, HasSubstr(path_));
  EXPECT_EQ(asked.icon, screen::Icon::Question);
  EXPECT_EQ(asked.buttons, screen::Buttons::YesNo);
  EXPECT_EQ(asked.defaultAnswer, Answer::No);
  EXPECT_EQ(TempFolder::Bytes(path_), "7\r\n8\r\n9\r\n");
  EXPECT_THAT(user_.Text("StatusLbl"), HasSubstr("not saved"));
}

TEST_F(ChangedFile, IsOverwrittenOnYesAndNotAskedForAgain) {
  folder_.Write("a.vkr", "7\r\n8\r\n9\r\n");
  user_.box.answers = {Answer::Yes};
  Save(path_);
  EXPECT_EQ(TempFolder::Bytes(path_), "1\r\n2\r\n3\r\n");
  Save(path_);
  EXPECT_EQ(Questions(), 1U);
}

TEST_F(ChangedFile, IsKnownUnderItsOtherNamesToo) {
  std::filesystem::create_symlink("a.vkr", folder_.Path("link.vkr"));
  folder_.Write("a.vkr", "7\r\n8\r\n9\r\n");
  Save(folder_.Path("link.vkr"));
  EXPECT_EQ(Questions(), 1U);
  EXPECT_EQ(TempFolder::Bytes(path_), "7\r\n8\r\n9\r\n");
}

TEST_F(ChangedFile, MayHaveChangedAfterASaveToo) {
  Save(folder_.Path("b.vkr"));
  EXPECT_EQ(Questions(), 0U);
  folder_.Write("b.vkr", "7\r\n");
  Save(folder_.Path("b.vkr"));
  EXPECT_EQ(Questions(), 1U);
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("b.vkr")), "7\r\n");
}

TEST_F(ChangedFile, ThatHoldsTheSameIsSavedWithoutAQuestion) {
  Save(path_);
  folder_.Write("a.vkr", "1\r\n2\r\n3\r\n");
  Save(path_);
  EXPECT_EQ(Questions(), 0U);
}

TEST_F(ChangedFile, ThatIsGoneIsWrittenAnewWithoutAQuestion) {
  std::filesystem::remove(path_);
  Save(path_);
  EXPECT_EQ(Questions(), 0U);
  EXPECT_EQ(TempFolder::Bytes(path_), "1\r\n2\r\n3\r\n");
}

TEST_F(ChangedFile, OfAClosedSeriesIsForgotten) {
  user_.Click("Menuclose");
  folder_.Write("a.vkr", "7\r\n8\r\n");
  user_.OpenFile(path_);
  Save(path_);
  EXPECT_EQ(Questions(), 0U);
}
