#include <gmock/gmock.h>

#include "rawdata/raw_file.h"
#include "tests/support/full_disk.h"
#include "tests/support/temp_folder.h"

namespace {

using rawdata::WriteFile;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class RawFileWriting : public testing::Test {
 protected:
  unsigned Rights(const std::string& name) const {
    struct stat about {};
    EXPECT_EQ(::stat(folder_.Path(name).c_str(), &about), 0);
    return about.st_mode & 07777U;
  }

  TempFolder folder_;
};

TEST_F(RawFileWriting, OutcomesAreWrittenOneALineWithPointAndZero) {
  ASSERT_TRUE(WriteFile(folder_.Path("a.vkr"), {1E-10, 0.537, 12, 1.0 / 3, 1E+10}));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a.vkr")),
            "0.0000000001\r\n0.537\r\n12\r\n0.333333333333333\r\n10000000000\r\n");
  EXPECT_THAT(folder_.Names(), ElementsAre("a.vkr"));
}

TEST_F(RawFileWriting, ASavedSeriesReplacesTheOldFileAndKeepsItsRights) {
  folder_.Write("a.vkr", "7\r\n8\r\n9\r\n");
  ::chmod(folder_.Path("a.vkr").c_str(), 0640);
  ASSERT_TRUE(WriteFile(folder_.Path("a.vkr"), {1, 2}));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a.vkr")), "1\r\n2\r\n");
  EXPECT_EQ(Rights("a.vkr"), 0640U);
}

TEST_F(RawFileWriting, ANewFileGetsTheRightsThatAnyNewFileGets) {
  const mode_t before = ::umask(027);
  EXPECT_TRUE(WriteFile(folder_.Path("a.vkr"), {1, 2}));
  ::umask(before);
  EXPECT_EQ(Rights("a.vkr"), 0640U);
}

TEST_F(RawFileWriting, ALinkStaysALinkAndItsFileIsWritten) {
  std::filesystem::create_directory(folder_.Path("sub"));
  folder_.Write("sub/real.vkr", "7\r\n8\r\n");
  std::filesystem::create_symlink("sub/real.vkr", folder_.Path("link.vkr"));
  ASSERT_TRUE(WriteFile(folder_.Path("link.vkr"), {1, 2}));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("link.vkr")));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("sub/real.vkr")), "1\r\n2\r\n");
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre("sub", "link.vkr"));
}

TEST_F(RawFileWriting, LinksThatGoRoundInARingAreRefused) {
  std::filesystem::create_symlink("b.vkr", folder_.Path("a.vkr"));
  std::filesystem::create_symlink("a.vkr", folder_.Path("b.vkr"));
  EXPECT_FALSE(WriteFile(folder_.Path("a.vkr"), {1, 2}));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("a.vkr")));
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre("a.vkr", "b.vkr"));
}

TEST_F(RawFileWriting, ABareNameIsWrittenInTheCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.Path(""));
  EXPECT_TRUE(WriteFile("a.vkr", {1, 2}));
  std::filesystem::current_path(before);
  EXPECT_THAT(folder_.Names(), ElementsAre("a.vkr"));
}

// The old series must outlive a disk that fills up in the middle of a save.
TEST_F(RawFileWriting, AFullDiskLeavesTheOldFileAsItWas) {
  folder_.Write("a.vkr", "7\r\n8\r\n");
  bool written = true;
  {
    const support::FullDisk disk(20);
    written = WriteFile(folder_.Path("a.vkr"), std::vector<double>(100, 1.5));
  }
  EXPECT_FALSE(written);
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a.vkr")), "7\r\n8\r\n");
  EXPECT_THAT(folder_.Names(), ElementsAre("a.vkr"));
}

TEST_F(RawFileWriting, AFullDiskLeavesNoHalfANewFile) {
  bool written = true;
  {
    const support::FullDisk disk(20);
    written = WriteFile(folder_.Path("a.vkr"), std::vector<double>(100, 1.5));
  }
  EXPECT_FALSE(written);
  EXPECT_THAT(folder_.Names(), testing::IsEmpty());
}

TEST_F(RawFileWriting, AFolderWithoutWritingRightRefusesTheSave) {
  folder_.Write("a.vkr", "7\r\n8\r\n");
  ::chmod(folder_.Path("a.vkr").c_str(), 0666);
  ::chmod(folder_.Path("").c_str(), 0555);
  const AsOrdinaryUser user;
  EXPECT_FALSE(WriteFile(folder_.Path("a.vkr"), {1, 2}));
  EXPECT_FALSE(WriteFile(folder_.Path("b.vkr"), {1, 2}));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a.vkr")), "7\r\n8\r\n");
  EXPECT_THAT(folder_.Names(), ElementsAre("a.vkr"));
}

TEST_F(RawFileWriting, AWriteProtectedFileIsNotReplaced) {
  folder_.Write("a.vkr", "7\r\n8\r\n");
  ::chmod(folder_.Path("a.vkr").c_str(), 0444);
  const AsOrdinaryUser user;
  EXPECT_FALSE(WriteFile(folder_.Path("a.vkr"), {1, 2}));
  EXPECT_EQ(TempFolder::Bytes(folder_.Path("a.vkr")), "7\r\n8\r\n");
}

TEST_F(RawFileWriting, WhatIsNoFileIsNotReplaced) {
  std::filesystem::create_directory(folder_.Path("sub"));
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  EXPECT_FALSE(WriteFile(folder_.Path("sub"), {1, 2}));
  EXPECT_FALSE(WriteFile(folder_.Path("pipe"), {1, 2}));
  EXPECT_FALSE(WriteFile("/dev/full", {1, 2}));
  EXPECT_FALSE(WriteFile("", {1, 2}));
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre("sub", "pipe"));
}

TEST_F(RawFileWriting, AMissingFolderRefusesTheSave) {
  EXPECT_FALSE(WriteFile(folder_.Path("none/a.vkr"), {1, 2}));
  EXPECT_THAT(folder_.Names(), testing::IsEmpty());
}

}  // namespace
