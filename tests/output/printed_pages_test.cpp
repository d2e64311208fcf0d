// What stands on the pages: screens, tables and reports, as lines and texts.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "drawing/font.h"
#include "output/form_page.h"
#include "output/grid_pages.h"
#include "output/pdf_name.h"
#include "output/report_pages.h"
#include "tests/support/temp_folder.h"

namespace {

using drawing::DrawingRecord;
using drawing::DrawnText;
using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

constexpr screen::Extent kA4{11906, 16838};
const output::Foot kFoot{"lead.vkr", "date: 7 Mar 2024", "window 12"};

std::vector<DrawnText> TextsOf(const DrawingRecord& page) {
  std::vector<DrawnText> texts;
  for (const auto& item : page.Items())
    if (const auto* text = std::get_if<DrawnText>(&item)) texts.push_back(*text);
  return texts;
}

std::vector<std::string> WordsOf(const DrawingRecord& page) {
  std::vector<std::string> words;
  for (const DrawnText& text : TextsOf(page)) words.push_back(text.text);
  return words;
}

double RightEnd(const DrawnText& text) {
  const double width = drawing::LineWidth(text.text, text.style.size, text.style.bold);
  return text.style.across == drawing::Across::Right ? text.at.x : text.at.x + width;
}

TEST(PrintedForm, LiesWhenItIsWiderThanHigh) {
  const DrawingRecord lying = output::FormPage({12000, 9000}, kFoot, kA4);
  EXPECT_EQ(lying.ScaleWidth(), kA4.height);
  const DrawingRecord upright = output::FormPage({9000, 12000}, kFoot, kA4);
  EXPECT_EQ(upright.ScaleWidth(), kA4.width);
}

TEST(PrintedForm, HasNameDateAndWindowNumberBelowIt) {
  DrawingRecord form(12000, 9000);
  form.Text({6000, 9000}, "the last line of the screen", {}, "Lbl");
  const std::vector<DrawnText> texts = TextsOf(output::FormPage(form, kFoot, kA4));
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].text, "lead.vkr");
  EXPECT_EQ(texts[1].text, "date: 7 Mar 2024     window 12");
  EXPECT_LT(texts[2].at.y, texts[0].at.y) << "the screen ends above its foot";
}

TEST(PrintedForm, FillsThePageAndStaysOnIt) {
  DrawingRecord form(12000, 9000);
  form.Line({0, 0}, {12000, 9000}, {}, 15);
  const DrawingRecord page = output::FormPage(form, kFoot, kA4);
  for (const auto& item : page.Items()) {
    const auto* line = std::get_if<drawing::DrawnLine>(&item);
    if (!line || line->from.y == line->to.y) continue;
    EXPECT_GT(line->from.x, 500);
    EXPECT_LT(line->to.x, page.ScaleWidth() - 500);
    EXPECT_LT(line->to.y, page.ScaleHeight() - 500);
    EXPECT_GT(line->to.y, page.ScaleHeight() * 0.8) << "as large as it can be";
  }
}

TEST(PrintedForm, BreaksALongNameAndLosesNothingOfIt) {
  const std::string name = "/data/" + std::string(244, 'n');
  const DrawingRecord page = output::FormPage({12000, 9000}, {name, "today", "window 3"}, kA4);
  std::string whole;
  for (const DrawnText& text : TextsOf(page)) {
    if (text.label == "FootName") whole += text.text;
    EXPECT_LE(RightEnd(text), page.ScaleWidth() - 500);
    EXPECT_LE(text.at.y, page.ScaleHeight() - 500);
  }
  EXPECT_EQ(whole, name);
}

output::PrintedTable Outcomes(int rows) {
  output::PrintedTable table{{"Order", "Concentration", "Unit"}, {}};
  for (int row = 1; row <= rows; ++row)
    table.rows.push_back({std::to_string(row), "  0." + std::to_string(row), "mg/m3"});
  return table;
}

class PrintedGrid : public testing::TestWithParam<int> {};

TEST_P(PrintedGrid, HasAllRowsOnceAndItsHeaderAndNumberOnEveryPage) {
  const output::PrintedTable table = Outcomes(GetParam());
  const std::vector<DrawingRecord> pages = output::GridPages(table, "Outcomes", kFoot, kA4);
  std::vector<std::string> orders;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::vector<std::string> words = WordsOf(pages[i]);
    for (const std::string& caption : table.header) EXPECT_THAT(words, Contains(caption));
    EXPECT_THAT(words, Contains(testing::EndsWith("page " + std::to_string(i + 1) + " of " +
                                                  std::to_string(pages.size()))));
    for (const DrawnText& text : TextsOf(pages[i]))
      if (text.label == "Cell" && !text.style.bold && text.at.x < 300) orders.push_back(text.text);
  }
  ASSERT_EQ(orders.size(), static_cast<std::size_t>(GetParam()));
  for (int row = 1; row <= GetParam(); ++row)
    EXPECT_EQ(orders[static_cast<std::size_t>(row - 1)], std::to_string(row));
}

INSTANTIATE_TEST_SUITE_P(Rows, PrintedGrid, testing::Values(0, 1, 12, 57, 58, 59, 60, 200, 2000));

TEST(PrintedGridPage, KeepsFiveMillimetresFree) {
  constexpr double kFive = 5 * output::kTwipsPerMm;
  double leftmost = kA4.width;
  for (const DrawingRecord& page : output::GridPages(Outcomes(200), "Outcomes", kFoot, kA4))
    for (const DrawnText& text : TextsOf(page)) {
      leftmost = std::min(leftmost, text.style.across == drawing::Across::Left ? text.at.x : 1e9);
      EXPECT_GE(text.at.y, kFive - 0.001);
      EXPECT_LE(RightEnd(text), kA4.width - kFive + 0.001);
      EXPECT_LE(text.at.y + text.style.size * 20 * 1.2, kA4.height - kFive + 0.001);
    }
  EXPECT_NEAR(leftmost, kFive, 0.001);
}

TEST(PrintedGridPage, HasSmallerLettersWhereTheColumnsAreTooWide) {
  output::PrintedTable table = Outcomes(3);
  table.rows[1][2] = std::string(200, 'u');
  for (const DrawingRecord& page : output::GridPages(table, "Outcomes", kFoot, kA4))
    for (const DrawnText& text : TextsOf(page)) EXPECT_LE(RightEnd(text), kA4.width - 280);
}

TEST(PrintedReport, HasRoomForTheUnitBehindColumn85OnEveryPaper) {
  for (const screen::Extent paper :
       {kA4, screen::Extent{12240, 15840}, screen::Extent{8391, 11906}}) {
    const std::string line = std::string(84, ' ') + "microgram/cubic";
    const auto pages = output::ReportPages({line}, paper);
    ASSERT_EQ(pages.size(), 1U);
    const DrawnText text = TextsOf(pages[0]).at(0);
    EXPECT_EQ(text.style.family, "Liberation Mono");
    const double width =
        static_cast<double>(line.size()) * drawing::kFixedWidth * text.style.size * 20;
    EXPECT_LE(text.at.x + width, paper.width);
    EXPECT_EQ(pages[0].ScaleWidth(), paper.width) << "the printer's own page";
  }
}

TEST(PrintedReport, LeavesALongerLineAsItIs) {
  const std::string line(300, 'x');
  const auto pages = output::ReportPages({line, "next"}, kA4);
  EXPECT_THAT(WordsOf(pages.at(0)), ElementsAre(line, "next"));
}

TEST(PrintedReport, GoesOnOnTheNextPageAndKeepsItsEmptyLines) {
  std::vector<std::string> lines;
  for (int i = 0; i < 200; ++i) lines.push_back(i % 2 == 0 ? "line " + std::to_string(i) : "");
  const auto pages = output::ReportPages(lines, kA4);
  EXPECT_GT(pages.size(), 1U);
  std::vector<std::string> words;
  for (const DrawingRecord& page : pages)
    for (const std::string& word : WordsOf(page)) words.push_back(word);
  ASSERT_EQ(words.size(), 100U);
  EXPECT_EQ(words.back(), "line 198");
  const std::vector<DrawnText> first = TextsOf(pages[0]);
  EXPECT_NEAR(first[1].at.y - first[0].at.y, 2 * first[0].style.size * 20 * 1.2, 0.01);
}

TEST(PdfName, IsThatOfTheSeriesWithItsFolder) {
  EXPECT_EQ(output::PdfNameOf("/data/lead.vkr"), "/data/lead.pdf");
  EXPECT_EQ(output::PdfNameOf("lead"), "lead.pdf");
  EXPECT_EQ(output::PdfNameOf("/d.1/lead"), "/d.1/lead.pdf");
  EXPECT_EQ(output::PdfNameOf("/data/.hidden"), "/data/.hidden.pdf");
  EXPECT_EQ(output::PdfNameOf("  "), "print.pdf");
}

TEST(PdfOfReports, StandsBesideTheLogAndReplacesNothing) {
  const TempFolder folder;
  const std::string log = folder.Path("lead.LOG");
  const std::string first = output::UnusedPdfBeside(log);
  EXPECT_EQ(first, folder.Path("lead reports.pdf"));
  std::filesystem::create_directory(first);
  EXPECT_EQ(output::UnusedPdfBeside(log), folder.Path("lead reports 2.pdf"));
  EXPECT_EQ(output::UnusedPdfBeside(".LOG"), "reports.pdf");
}

TEST(PdfOfReports, HasANameThatTheFileSystemTakesWhateverThatOfTheLog) {
  const TempFolder folder;
  for (const std::string letter : {"a", "\u00e9", "\u20ac"}) {
    std::string name = "b";
    while (name.size() + letter.size() <= 251) name += letter;
    ASSERT_NE(folder.Write(name + ".LOG", ""), "");
    const std::string first = output::UnusedPdfBeside(folder.Path(name + ".LOG"));
    EXPECT_TRUE(std::filesystem::create_directory(first)) << first;
    EXPECT_TRUE(first.ends_with(letter + " reports.pdf")) << first;
    EXPECT_TRUE(
        std::filesystem::create_directory(output::UnusedPdfBeside(folder.Path(name + ".LOG"))));
  }
}

}  // namespace
