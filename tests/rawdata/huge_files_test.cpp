#include <gmock/gmock.h>

#include "rawdata/raw_file.h"
#include "tests/support/program_session.h"
#include "tests/support/temp_folder.h"

// Files that are no raw data files, but may be chosen by mistake. What is counted are the bytes
// that are read of them; bench/routines.cpp measures the time.
namespace {

using rawdata::CheckFile;
using rawdata::FileCheck;
using rawdata::kLargestFile;
using testing::HasSubstr;

constexpr std::uint64_t kMebibyte = std::uint64_t{1} << 20U;
constexpr std::uint64_t kTwentyGigabytes = std::uint64_t{20} << 30U;
// What the file is read by at a time.
constexpr std::uint64_t kBuffer = 65536;

class HugeFile : public testing::Test {
 protected:
  // The text, and zeros up to the size, which take no room on the disk.
  std::string Sparse(const std::string& text, std::uint64_t size) const {
    const std::string path = folder_.Write("huge.vkr", text);
    std::filesystem::resize_file(path, size);
    return path;
  }
  // Whole lines of 5 bytes.
  std::string Lines(std::size_t bytes, const std::string& last = "") const {
    std::string text;
    while (text.size() + 5 <= bytes) text += "1.5\r\n";
    return folder_.Write("huge.vkr", text + last);
  }

  TempFolder folder_;
};

}  // namespace

TEST_F(HugeFile, OfValidLinesIsReadFourMebibytesBehindLine2001) {
  const std::string path = Lines(30 * kMebibyte);
  const FileCheck check = CheckFile(path);
  EXPECT_EQ(check.messageId, 915);
  EXPECT_EQ(check.refusedLine, 0);
  EXPECT_GE(check.bytesRead, 4 * kMebibyte);
  EXPECT_LE(check.bytesRead, 4 * kMebibyte + kBuffer);
}

TEST_F(HugeFile, WithALineThatIsNoOutcomeWithinTheseShows920) {
  const FileCheck check = CheckFile(Lines(4 * kMebibyte, "0\r\n"));
  EXPECT_EQ(check.messageId, 920);
  EXPECT_EQ(check.refusedText, "0");
  EXPECT_EQ(check.refusedLine, check.count);
}

TEST_F(HugeFile, WithSuchALineFurtherOnShows915) {
  const FileCheck check = CheckFile(Lines(5 * kMebibyte, "0\r\n"));
  EXPECT_EQ(check.messageId, 915);
  EXPECT_EQ(check.refusedLine, 0);
}

// Half a line may look like none: "0.00" of "0.0012".
TEST_F(HugeFile, IsNotJudgedByTheLineAtWhichThePassEnds) {
  std::string text;
  while (text.size() < 6 * kMebibyte) text += "0.00000000000000000000000000000000000000000001E45\n";
  const FileCheck check = CheckFile(folder_.Write("huge.vkr", text));
  EXPECT_EQ(check.messageId, 915);
}

TEST_F(HugeFile, OfTwentyGigabytesWithoutLinesEndsAtTheLargestSize) {
  for (const char* text : {"", "1.5\r\n2.5 ", "1.5\r\n2.5\r\n0"}) {
    const FileCheck check = CheckFile(Sparse(text, kTwentyGigabytes));
    EXPECT_FALSE(check.readable) << text;
    EXPECT_TRUE(check.tooLarge) << text;
    EXPECT_EQ(check.messageId, 0) << text;
    EXPECT_EQ(check.bytesRead, kLargestFile) << text;
  }
}

TEST_F(HugeFile, OfTwentyGigabytesBehindABadLineEndsThere) {
  const FileCheck check = CheckFile(Sparse("1.5\r\n0\r\n", kTwentyGigabytes));
  EXPECT_TRUE(check.readable);
  EXPECT_EQ(check.messageId, 920);
  EXPECT_LE(check.bytesRead, kBuffer);
}

TEST_F(HugeFile, OfTheLargestSizeIsStillReadAndOneByteMoreIsNot) {
  EXPECT_EQ(CheckFile(Sparse("1.5\r\n2.5 ", kLargestFile)).messageId, 0);
  EXPECT_TRUE(CheckFile(Sparse("1.5\r\n2.5 ", kLargestFile)).readable);
  EXPECT_TRUE(CheckFile(Sparse("1.5\r\n2.5 ", kLargestFile + 1)).tooLarge);
}

// The check is over when the file grows.
TEST_F(HugeFile, ThatHasGrownSinceItsCheckIsNotRead) {
  EXPECT_FALSE(rawdata::ReadFile(Sparse("1.5\r\n2.5 ", kTwentyGigabytes), 2).ok);
}

TEST_F(HugeFile, IsToldOnTheStartScreenAndNothingIsLost) {
  support::ProgramSession user;
  const std::string path = Sparse("1.5\r\n2.5 ", kTwentyGigabytes);
  user.OpenFile(path);
  EXPECT_EQ(user.Shown().name, "BasisForm");
  EXPECT_THAT(user.Text("BoodschLbl"), HasSubstr("larger than 64 MiB"));
  EXPECT_THAT(user.Text("BoodschLbl"), HasSubstr(path));
}
