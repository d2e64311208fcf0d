#include <gmock/gmock.h>
#include <sys/resource.h>

#include "rawdata/raw_file.h"
#include "tests/support/temp_folder.h"

namespace {

using rawdata::CheckFile;
using rawdata::FileCheck;
using rawdata::FileValues;
using rawdata::ReadFile;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Lines(int count, const std::string& line) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line + "\r\n";
  return text;
}

class RawFileReading : public testing::Test {
 protected:
  FileCheck Check(const std::string& bytes) { return CheckFile(folder_.Write("a.vkr", bytes)); }

  // The values of a file that must load.
  std::vector<double> Values(const std::string& bytes) {
    const FileCheck check = Check(bytes);
    EXPECT_TRUE(check.readable);
    EXPECT_EQ(check.messageId, 0);
    const FileValues file = ReadFile(folder_.Path("a.vkr"), check.count);
    EXPECT_TRUE(file.ok);
    notes_ = file.notes;
    return file.values;
  }

  TempFolder folder_;
  rawdata::ReadingNotes notes_;
};

TEST_F(RawFileReading, AFileOfExactly2000LinesLoads) {
  EXPECT_EQ(Values(Lines(2000, "1.5")), std::vector<double>(2000, 1.5));
}

TEST_F(RawFileReading, AFileOf2001LinesShows915) {
  const FileCheck check = Check(Lines(2001, "1.5"));
  EXPECT_EQ(check.messageId, 915);
  EXPECT_EQ(check.count, 2001);
  EXPECT_EQ(check.refusedLine, 0);
}

TEST_F(RawFileReading, TheCountGoesOnBehind2000Lines) {
  EXPECT_EQ(Check(Lines(5000, "1.5")).count, 5000);
}

TEST_F(RawFileReading, ALineOutOfRangeShows920EvenBehind2000Lines) {
  const FileCheck check = Check(Lines(2500, "1.5") + "0\r\n" + Lines(10, "1"));
  EXPECT_EQ(check.messageId, 920);
  EXPECT_EQ(check.count, 2501);
  EXPECT_EQ(check.refusedLine, 2501);
  EXPECT_EQ(check.refusedText, "0");
}

TEST_F(RawFileReading, DecimalCommaThousandsAndTrailingTextAreRead) {
  EXPECT_THAT(Values("1,5\r\n1.234,5\r\n12.5 mg/m3\r\n"), ElementsAre(1.5, 1234.5, 12.5));
}

TEST_F(RawFileReading, TheNotesNameTheLinesThatCarriedMoreThanANumber) {
  Values("1,5\r\n1.234,5\r\n12.5 mg/m3\r\n3\t\r\n1,000.5 a\r\n1E3\r\n2d\r\n4 \r\n");
  EXPECT_THAT(notes_.trailingText, ElementsAre(3, 5, 7));
  EXPECT_THAT(notes_.commaAndPoint, ElementsAre(2, 5));
}

TEST_F(RawFileReading, AFileThatEndsWithABlankLineFailsWith920) {
  const FileCheck check = Check("1.5\r\n2.5\r\n\r\n");
  EXPECT_EQ(check.messageId, 920);
  EXPECT_EQ(check.refusedLine, 3);
  EXPECT_EQ(check.refusedText, "");
}

TEST_F(RawFileReading, AFileWithOneLineShows925) { EXPECT_EQ(Check("1.5\r\n").messageId, 925); }

// The pass ends at the bad line, so only one line was met; the user still learns what stands there.
TEST_F(RawFileReading, ABadFirstLineGives925AndIsNamed) {
  const FileCheck check = Check("<0.5\r\n1\r\n2\r\n");
  EXPECT_EQ(check.messageId, 925);
  EXPECT_EQ(check.count, 1);
  EXPECT_EQ(check.refusedLine, 1);
  EXPECT_EQ(check.refusedText, "<0.5");
}

TEST_F(RawFileReading, ThePassStopsAtTheFirstBadLine) {
  const FileCheck check = Check("1\n2\n<0.5 \n<0.7\n");
  EXPECT_EQ(check.messageId, 920);
  EXPECT_EQ(check.count, 3);
  EXPECT_EQ(check.refusedText, "<0.5");
}

TEST_F(RawFileReading, CarriageReturnLineFeedAndBothEndALine) {
  EXPECT_THAT(Values("1\r2\n3\r\n4"), ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(Check("1\n\r2").messageId, 920) << "a line feed in front of a return ends two lines";
}

TEST_F(RawFileReading, AByteOrderMarkIsSkippedAtTheStartOnly) {
  EXPECT_THAT(Values("\xEF\xBB\xBF"
                     "1.5\n2.5"),
              ElementsAre(1.5, 2.5));
  EXPECT_EQ(Check("1.5\n\xEF\xBB\xBF"
                  "2.5")
                .messageId,
            920);
  EXPECT_EQ(Check("\xEF\xBB\xBF").count, 0);
  EXPECT_EQ(Check("\xEF\xBB").count, 1);
  EXPECT_THAT(Values("1\n2"), ElementsAre(1, 2)) << "a file shorter than the mark";
}

TEST_F(RawFileReading, LeadingBlanksAndTabsAreSkipped) {
  EXPECT_THAT(Values(" \t 1.5\n\t 2,5"), ElementsAre(1.5, 2.5));
  EXPECT_THAT(Values(std::string(200000, ' ') + "1.5\n2"), ElementsAre(1.5, 2));
}

TEST_F(RawFileReading, BothEndsOfTheRangeAreOutcomes) {
  EXPECT_THAT(Values("1E-10\n1E+10"), ElementsAre(1E-10, 1E+10));
  EXPECT_EQ(Check("1\n0.99999999999999E-10").messageId, 920);
  EXPECT_EQ(Check("1\n1.00000000000001E+10").messageId, 920);
  EXPECT_EQ(Check("1\n-1").messageId, 920);
  EXPECT_EQ(Check("1\n1E400").messageId, 920);
  EXPECT_EQ(Check("1\n1E-400").messageId, 920);
}

TEST_F(RawFileReading, WhatStandsInARefusedLineIsShownPrintableAndInFortyCharacters) {
  EXPECT_EQ(Check("1\n" + std::string(100, 'x')).refusedText, std::string(40, 'x'));
  EXPECT_EQ(Check("1\n" + std::string("a\0b\x1b[m\x7f\xff z", 10)).refusedText, "a?b?[m?? z");
  EXPECT_EQ(Check("1\n\xC2\xB5g \xE2\x82\xAC \xF0\x9F\x98\x80").refusedText,
            "\xC2\xB5g \xE2\x82\xAC \xF0\x9F\x98\x80");
  EXPECT_EQ(Check("1\n\xE2\x80\xAE"
                  "abc\xC2\x85\xC0\x80\xED\xA0\x80")
                .refusedText,
            "?abc??????");
  std::string umlauts;
  for (int i = 0; i < 50; ++i) umlauts += "\xC3\xA4";
  EXPECT_EQ(Check("1\n" + umlauts).refusedText.size(), 80U);
}

TEST_F(RawFileReading, AFileInAnotherEncodingIsRefused) {
  const std::string utf16(
      "\xFF\xFE"
      "1\0.\0"
      "5\0\n\0"
      "2\0\n\0",
      14);
  EXPECT_NE(Check(utf16).messageId, 0);
  EXPECT_NE(Check(std::string("\0"
                              "1\0\n\0"
                              "2\0\n",
                              8))
                .messageId,
            0);
}

TEST_F(RawFileReading, AFolderIsNoReadableFile) {
  EXPECT_FALSE(CheckFile(folder_.Path("")).readable);
  EXPECT_FALSE(ReadFile(folder_.Path(""), 2).ok);
}

TEST_F(RawFileReading, AMissingFileIsNoReadableFile) {
  EXPECT_FALSE(CheckFile(folder_.Path("none.vkr")).readable);
  EXPECT_FALSE(CheckFile("").readable);
  EXPECT_FALSE(ReadFile(folder_.Path("none.vkr"), 2).ok);
}

TEST_F(RawFileReading, AFileWithoutReadingRightIsNoReadableFile) {
  const std::string path = folder_.Write("a.vkr", "1\n2\n");
  ::chmod(path.c_str(), 0);
  const AsOrdinaryUser user;
  EXPECT_FALSE(CheckFile(path).readable);
}

// Opening a pipe waits for its other end, and a device may never end.
TEST_F(RawFileReading, APipeAndADeviceAreRefusedAtOnce) {
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  EXPECT_FALSE(CheckFile(folder_.Path("pipe")).readable);
  EXPECT_FALSE(CheckFile("/dev/zero").readable);
}

// 64 MB without a line end, read in a fraction of that.
TEST_F(RawFileReading, AHugeFileIsReadInBoundedMemory) {
  const std::string path = folder_.Write("huge.vkr", "1.5\r\n2.5 ");
  std::filesystem::resize_file(path, 64U << 20);
  struct rusage before {};
  struct rusage after {};
  ::getrusage(RUSAGE_SELF, &before);
  const FileCheck check = CheckFile(path);
  ::getrusage(RUSAGE_SELF, &after);
  EXPECT_EQ(check.messageId, 0);
  EXPECT_EQ(check.count, 2);
  EXPECT_THAT(ReadFile(path, 2).values, ElementsAre(1.5, 2.5));
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16 * 1024) << "kilobytes";
}

TEST_F(RawFileReading, AFileThatShrankOrWentBadAfterItsCheckIsNotRead) {
  const std::string path = folder_.Write("a.vkr", "1\n2\n");
  EXPECT_FALSE(ReadFile(path, 3).ok);
  folder_.Write("a.vkr", "1\n2\n0\n");
  EXPECT_FALSE(ReadFile(path, 3).ok);
}

TEST_F(RawFileReading, TheOrderOfTheLinesIsKept) {
  EXPECT_THAT(Values("3\n1\n2"), ElementsAre(3, 1, 2));
  EXPECT_THAT(notes_.trailingText, IsEmpty());
}

}  // namespace
