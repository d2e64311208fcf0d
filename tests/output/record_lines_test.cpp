#include "output/record_lines.h"

#include <gtest/gtest.h>

#include "output/form_record.h"
#include "tests/support/csv.h"

namespace {

using output::PlainCaption;
using output::RecordLines;

void Replace(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

// "label | 80:value | 105:unit": a number says from which column on a piece stands.
std::string LinesOf(const std::string& pieces) {
  RecordLines lines;
  std::size_t begin = 0;
  while (begin <= pieces.size()) {
    const std::size_t end = std::min(pieces.find(" | ", begin), pieces.size());
    const std::string piece = pieces.substr(begin, end - begin);
    const std::size_t digits = piece.find_first_not_of("0123456789");
    const bool placed = digits != 0 && digits != std::string::npos && piece[digits] == ':';
    if (placed)
      lines.At(std::stoi(piece), piece.substr(digits + 1));
    else
      lines.Add(piece);
    begin = end + 3;
  }
  return lines.Text();
}

TEST(RecordLines, StandAsTheTableOfTheirPiecesHasThem) {
  for (const support::Row& row : support::ReadTable("log_lines.csv")) {
    std::string pieces = row.Text("pieces");
    std::string wanted = row.Text("lines");
    Replace(pieces, "\\x0d", "\r");
    Replace(wanted, "\\n", "\r\n");
    EXPECT_EQ(LinesOf(pieces), wanted) << row.Where();
  }
}

TEST(RecordLines, EndInCarriageReturnAndLineFeed) {
  RecordLines lines;
  lines.Add("a").EndLine();
  lines.EndLine();
  EXPECT_EQ(lines.Text(), "a\r\n\r\n");
}

TEST(RecordLines, CountCharactersNotBytes) {
  RecordLines lines;
  lines.Add("\xC2\xB5g").At(5, "m");
  EXPECT_EQ(lines.Text(), "\xC2\xB5g  m");
}

TEST(RecordCaptions, LoseTheMarksOfAccessKeysAndTheirLastLineEnds) {
  EXPECT_EQ(PlainCaption("&Detection range\r\n"), "Detection range");
  EXPECT_EQ(PlainCaption("EN689 && BOHS"), "EN689 & BOHS");
  EXPECT_EQ(PlainCaption("OELV & Percentiles"), "OELV & Percentiles");
  EXPECT_EQ(PlainCaption("a\rb\r\r"), "a\rb");
}

TEST(RecordDates, HaveADayWithoutAZeroAndAnEnglishMonth) {
  for (const support::Row& row : support::ReadTable("log_dates.csv")) {
    const std::string& date = row.Text("date");
    const base::DateTime when{std::stoi(date), std::stoi(date.substr(5)),
                              std::stoi(date.substr(8))};
    EXPECT_EQ(output::DateWords(when), row.Text("text")) << row.Where();
  }
}

}  // namespace
