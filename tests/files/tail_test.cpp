#include "files/tail.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/temp_folder.h"

// The end of a long file.
namespace {

using files::ReadTail;

TEST(Tail, OfAShortFileIsTheWhole) {
  const TempFolder folder;
  const auto tail = ReadTail(folder.Write("a", "one\r\ntwo\r\n"), 10);
  ASSERT_TRUE(tail);
  EXPECT_EQ(tail->bytes, "one\r\ntwo\r\n");
  EXPECT_TRUE(tail->whole);
}

TEST(Tail, BeginsWithALine) {
  const TempFolder folder;
  const std::string path = folder.Write("a", "one\r\ntwo\r\nthree");
  for (const std::size_t most : {5U, 6U, 9U}) {
    const auto tail = ReadTail(path, most);
    ASSERT_TRUE(tail);
    EXPECT_EQ(tail->bytes, "three") << most;
    EXPECT_FALSE(tail->whole);
  }
  EXPECT_EQ(ReadTail(path, 11)->bytes, "two\r\nthree");
}

TEST(Tail, OfAnEmptyFileIsEmpty) {
  const TempFolder folder;
  EXPECT_EQ(ReadTail(folder.Write("a", ""), 10)->bytes, "");
}

TEST(Tail, IsReadOfPlainFilesOnly) {
  const TempFolder folder;
  ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0666), 0);
  EXPECT_FALSE(ReadTail(folder.Path("pipe"), 10));
  EXPECT_FALSE(ReadTail(folder.Path("none"), 10));
  EXPECT_FALSE(ReadTail(folder.Path("."), 10));
}

}  // namespace
