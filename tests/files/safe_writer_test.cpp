#include "files/safe_writer.h"

#include <gmock/gmock.h>
#include <grp.h>

#include "tests/support/temp_folder.h"

// The one routine that writes series and pictures; more of it, with outcomes, in
// tests/rawdata/writing_test.cpp.
namespace {

using files::WriteSafely;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr uid_t kOtherOwner = 1234;
constexpr gid_t kSharedGroup = 50;

// As long as it lives, the test runs as an ordinary user who is a member of the shared group.
class AsMemberOfTheGroup {
 public:
  AsMemberOfTheGroup() {
    groups_.resize(static_cast<std::size_t>(::getgroups(0, nullptr)));
    ::getgroups(static_cast<int>(groups_.size()), groups_.data());
    works_ = ::setgroups(1, &kSharedGroup) == 0 && ::setegid(65534) == 0 && ::seteuid(65534) == 0;
  }
  ~AsMemberOfTheGroup() {
    if (::seteuid(0) != 0 || ::setegid(0) != 0 || ::setgroups(groups_.size(), groups_.data()) != 0)
      std::abort();
  }
  AsMemberOfTheGroup(const AsMemberOfTheGroup&) = delete;
  AsMemberOfTheGroup& operator=(const AsMemberOfTheGroup&) = delete;
  bool Works() const { return works_; }

 private:
  std::vector<gid_t> groups_;
  bool works_ = false;
};

class SafeWriter : public testing::Test {
 protected:
  struct stat About(const std::string& name) const {
    struct stat about {};
    EXPECT_EQ(::stat(folder_.Path(name).c_str(), &about), 0);
    return about;
  }

  TempFolder folder_;
};

}  // namespace

TEST_F(SafeWriter, WritesAnyBytes) {
  const std::string bytes("a\0b\n\xFF", 5);
  ASSERT_TRUE(WriteSafely(folder_.Path("a"), bytes));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a")), bytes);
  ASSERT_TRUE(WriteSafely(folder_.Path("a"), ""));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a")), "");
  EXPECT_THAT(folder_.Names(), ElementsAre("a"));
}

// Those who share a file by its group must not lose it when one of them saves.
TEST_F(SafeWriter, AMemberOfTheFilesGroupLeavesItToTheGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  const std::string path = folder_.Write("a", "old");
  ASSERT_EQ(::chown(path.c_str(), kOtherOwner, kSharedGroup), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
  bool written = false;
  {
    const AsMemberOfTheGroup user;
    if (!user.Works()) GTEST_SKIP() << "this machine lets nobody change groups";
    written = WriteSafely(path, "new");
  }
  EXPECT_TRUE(written);
  EXPECT_EQ(TempFolder::Bytes(path), "new");
  EXPECT_EQ(About("a").st_gid, kSharedGroup);
  EXPECT_EQ(About("a").st_mode & 07777U, 0660U);
}

TEST_F(SafeWriter, TheOwnerStaysWhereTheSystemAllowsIt) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  const std::string path = folder_.Write("a", "old");
  ASSERT_EQ(::chown(path.c_str(), kOtherOwner, kSharedGroup), 0);
  ASSERT_TRUE(WriteSafely(path, "new"));
  EXPECT_EQ(About("a").st_uid, kOtherOwner);
  EXPECT_EQ(About("a").st_gid, kSharedGroup);
}

TEST_F(SafeWriter, RemovesWhatAKilledSaveHasLeftInTheFolder) {
  folder_.Write(".valkorin-1999999999-0.tmp", "half a series");
  ASSERT_TRUE(WriteSafely(folder_.Path("a"), "new"));
  EXPECT_THAT(folder_.Names(), ElementsAre("a"));
}

TEST_F(SafeWriter, ALinkToAFileOfAnotherFolderStaysALink) {
  std::filesystem::create_directory(folder_.Path("sub"));
  std::filesystem::create_directory(folder_.Path("links"));
  folder_.Write("sub/real", "old");
  std::filesystem::create_symlink("../sub/real", folder_.Path("links/second"));
  std::filesystem::create_symlink("links/second", folder_.Path("first"));
  ASSERT_TRUE(WriteSafely(folder_.Path("first"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("first")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("links/second")));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("sub/real")), "new");
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre("sub", "links", "first"));
}
