#include "files/file_mark.h"

#include <gtest/gtest.h>
#include <utime.h>

#include "tests/support/temp_folder.h"

namespace {

using files::MarkOf;

class FileMarks : public testing::Test {
 protected:
  TempFolder folder_;
};

}  // namespace

TEST_F(FileMarks, DifferWithAnyByte) {
  const auto mark = MarkOf(folder_.Write("a", "1\n2\n"));
  ASSERT_TRUE(mark);
  EXPECT_NE(MarkOf(folder_.Write("a", "1\n3\n")), mark);
  EXPECT_NE(MarkOf(folder_.Write("a", "1\n2\n\n")), mark);
  EXPECT_NE(MarkOf(folder_.Write("a", "")), mark);
  EXPECT_EQ(MarkOf(folder_.Write("a", "1\n2\n")), mark);
}

// Another program that has only looked, or a backup put back, has changed nothing.
TEST_F(FileMarks, AreThoseOfTheContentAlone) {
  const std::string path = folder_.Write("a", "1\n2\n");
  const auto mark = MarkOf(path);
  const struct utimbuf longAgo { 1000, 1000 };
  ASSERT_EQ(::utime(path.c_str(), &longAgo), 0);
  EXPECT_EQ(MarkOf(path), mark);
  EXPECT_EQ(MarkOf(folder_.Write("copy", "1\n2\n")), mark);
  EXPECT_EQ(files::MarkOfBytes("1\n2\n"), mark);
}

// The end of a long file is not read, but its time tells.
TEST_F(FileMarks, OfALongFileDifferWithItsTime) {
  const std::string path = folder_.Write("a", "1\n");
  std::filesystem::resize_file(path, 64U << 20U);
  const auto mark = MarkOf(path);
  EXPECT_EQ(MarkOf(path), mark);
  const struct utimbuf longAgo { 1000, 1000 };
  ASSERT_EQ(::utime(path.c_str(), &longAgo), 0);
  EXPECT_NE(MarkOf(path), mark);
}

TEST_F(FileMarks, OfWhatIsNoFileAreNone) {
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  EXPECT_FALSE(MarkOf(folder_.Path("pipe")));
  EXPECT_FALSE(MarkOf(folder_.Path("nowhere")));
  EXPECT_FALSE(MarkOf(folder_.Path("")));
}
