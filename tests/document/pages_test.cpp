// The pages as drawings: whatever the name and the size of the series, every text stands within the
// margins, on no other one, and whole.
#include <gmock/gmock.h>

#include <cmath>

#include "document/page_flow.h"
#include "document/pages.h"
#include "document/wrapping.h"
#include "drawing/font.h"
#include "plots/fitting.h"
#include "tests/document/document_session.h"

namespace {

using drawing::DrawnText;

class DocumentPages : public DocumentSession {
 protected:
  void OpenMany(int M) {
    std::vector<double> outcomes;
    for (int i = 1; i <= M; ++i) outcomes.push_back(std::round(1000 * std::exp(0.01 * i)) / 1000);
    p.OpenSeries(outcomes);
  }
  std::vector<drawing::DrawingRecord> Pages() { return document::PagesOf(Made()); }

  static std::vector<DrawnText> TextsOn(const drawing::DrawingRecord& page) {
    std::vector<DrawnText> texts;
    for (const auto& item : page.Items())
      if (const auto* text = std::get_if<DrawnText>(&item)) texts.push_back(*text);
    return texts;
  }

  static std::string AllTexts(const std::vector<drawing::DrawingRecord>& pages) {
    std::string all;
    for (const auto& page : pages)
      for (const DrawnText& text : TextsOn(page)) all += text.text + "\n";
    return all;
  }

  static void ExpectWithinMargins(const std::vector<drawing::DrawingRecord>& pages) {
    constexpr double kHair = 30;
    for (const auto& page : pages)
      for (const DrawnText& text : TextsOn(page)) {
        const PlotWBas::Box box = PlotWBas::BoxOf(text.at, text.text, text.style);
        EXPECT_GE(box.left, document::kMargin - kHair) << text.text;
        EXPECT_LE(box.right, document::kPaperWidth - document::kMargin + kHair) << text.text;
        EXPECT_GE(box.top, 0) << text.text;
        EXPECT_LE(box.bottom, document::kPaperHeight - 400) << text.text;
      }
  }

  static bool Overlap(const PlotWBas::Box& a, const PlotWBas::Box& b) {
    constexpr double kTouch = 20;
    return a.left + kTouch < b.right && b.left + kTouch < a.right &&
           a.top + 3 * kTouch < b.bottom && b.top + 3 * kTouch < a.bottom;
  }

  static void ExpectApart(const std::vector<drawing::DrawingRecord>& pages) {
    for (const auto& page : pages) {
      const std::vector<DrawnText> texts = TextsOn(page);
      for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
          EXPECT_FALSE(Overlap(PlotWBas::BoxOf(texts[i].at, texts[i].text, texts[i].style),
                               PlotWBas::BoxOf(texts[k].at, texts[k].text, texts[k].style)))
              << texts[i].text << " / " << texts[k].text;
    }
  }
};

TEST_F(DocumentPages, EverySizeOfASeriesIsLaidOutWithoutACut) {
  for (const auto& [M, most] : {std::pair{2, 3}, {12, 4}, {200, 4}, {2000, 8}}) {
    OpenMany(M);
    StateLimit("5");
    const auto pages = Pages();
    EXPECT_GE(pages.size(), 2u) << M;
    EXPECT_LE(pages.size(), static_cast<std::size_t>(most)) << M;
    ExpectWithinMargins(pages);
    ExpectApart(pages);
    for (std::size_t i = 0; i < pages.size(); ++i)
      EXPECT_NE(AllTexts({pages[i]})
                    .find("Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size())),
                std::string::npos);
    p.program.CloseAllData();
  }
}

TEST_F(DocumentPages, EveryOutcomeOfTwoThousandIsThere) {
  OpenMany(2000);
  const std::string all = AllTexts(Pages());
  for (int i = 1; i <= 2000; ++i)
    EXPECT_NE(all.find("\n" + std::to_string(i) + "\n"), std::string::npos) << i;
}

TEST_F(DocumentPages, ALongNameTakesMoreLinesAndLosesNothing) {
  OpenMany(12);
  const std::string name = "/data/" + std::string(250, 'W') + "\u00E9\u0416\u4E2D.vkr";
  p.Record().Name = name;
  const auto pages = Pages();
  ExpectWithinMargins(pages);
  ExpectApart(pages);
  std::string joined;
  for (const DrawnText& text : TextsOn(pages[0])) joined += text.text;
  EXPECT_NE(joined.find(name), std::string::npos);
}

TEST_F(DocumentPages, ALongUnitTakesMoreLines) {
  OpenMany(12);
  p.Record().Unit = std::string(60, 'm') + "/" + std::string(60, 'n');
  ExpectWithinMargins({Pages()[0]});
}

TEST_F(DocumentPages, APageHasEveryWordOfTheText) {
  OpenMany(12);
  StateLimit("5");
  std::string all;
  for (const auto& page : Pages())
    for (const DrawnText& text : TextsOn(page)) all += text.text + " ";
  for (const document::Result& result : ResultsOf(Made()))
    EXPECT_NE(all.find(result.value), std::string::npos) << result.name << " " << result.value;
}

TEST(Wrapping, BreaksAtBlanksAndWithinAWordThatIsTooLong) {
  const double width = drawing::LineWidth("mmmmm", 9, false);
  EXPECT_THAT(document::WrappedLines("mm mm mmmmmmm", width, {9}),
              testing::ElementsAre("mm mm", "mmmmm", "mm"));
  EXPECT_THAT(document::WrappedLines("", width, {9}), testing::ElementsAre(""));
  EXPECT_THAT(document::WrappedLines("a\rb\r\nc", width, {9}), testing::ElementsAre("a", "b", "c"));
}

}  // namespace
