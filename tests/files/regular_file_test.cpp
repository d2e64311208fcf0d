#include "files/regular_file.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace {

class RegularFiles : public testing::Test {
 protected:
  TempFolder folder_;
};

}  // namespace

TEST_F(RegularFiles, AreReadToTheirEnd) {
  const std::string long_text(200'000, 'x');
  EXPECT_EQ(files::ReadUpTo(folder_.Write("a", long_text), 1'000'000), long_text);
  EXPECT_EQ(files::ReadUpTo(folder_.Write("a", ""), 1'000'000), "");
}

TEST_F(RegularFiles, AreReadNoFurtherThanAskedFor) {
  const std::string path = folder_.Write("a", "12345");
  EXPECT_EQ(files::ReadUpTo(path, 3), "123");
  std::filesystem::resize_file(path, std::uintmax_t{20} << 30U);
  EXPECT_EQ(files::ReadUpTo(path, 100'000).size(), 100'000U);
}

// Opening a pipe waits for its other end, and a device may never end.
TEST_F(RegularFiles, APipeADeviceAndAFolderAreNone) {
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  EXPECT_TRUE(files::RegularFile(folder_.Path("pipe")).Failed());
  EXPECT_TRUE(files::RegularFile("/dev/zero").Failed());
  EXPECT_TRUE(files::RegularFile(folder_.Path("")).Failed());
  EXPECT_TRUE(files::RegularFile(folder_.Path("nowhere")).Failed());
  EXPECT_EQ(files::ReadUpTo("/dev/zero", 10), "");
}
