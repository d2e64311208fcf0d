#include "document/pages.h"

#include "catalog/document_texts.h"
#include "document/page_flow.h"
#include "document/page_tables.h"
#include "plots/fitting.h"
#include "session/global_bas.h"

namespace document {
namespace {

constexpr drawing::Colour kGrey{90, 90, 90};
constexpr drawing::Colour kDark{40, 70, 110};
constexpr double kTitleSize = 18;
constexpr double kNameSize = 11;
constexpr double kSectionSize = 11.5;
constexpr double kSmall = 8;
constexpr double kHair = 10;
constexpr double kBefore = 260;  // a section
constexpr double kBehindTitle = 70;

void PutTitle(PageFlow& flow, const Contents& contents) {
  flow.Row({{contents.title, kMargin, kTextWidth, {{kTitleSize, true}, kDark}}});
  flow.Skip(60);
  flow.Row({{contents.name, kMargin, kTextWidth, {{kNameSize, true}}}});
}

void PutHeading(PageFlow& flow, const std::string& title) {
  flow.Row({{title, kMargin, kTextWidth, {{kSectionSize, true}, kDark}}});
  flow.Rule(kDark, kHair);
  flow.Skip(kBehindTitle);
}

void PutSection(PageFlow& flow, const Section& section) {
  flow.Skip(kBefore);
  PutHeading(flow, section.title);
  for (const Block& block : section.blocks) Put(flow, block);
}

double HeightOf(const Section& section) {
  PageFlow endless(1E+9);
  PutSection(endless, section);
  return endless.Y() - kTop;
}

// A section that would be torn apart begins on the next page, unless it is long.
double RoomWanted(const Section& section) {
  constexpr double kLong = 0.45 * (kFoot - kTop);
  constexpr double kHeadingAndSome = 1600;
  bool picture = false;
  for (const Block& block : section.blocks) picture = picture || std::get_if<Picture>(&block);
  const double height = HeightOf(section);
  return picture || height < kLong ? height : kHeadingAndSome;
}

void PutFoot(drawing::DrawingRecord& page, const Contents& contents, std::size_t number,
             std::size_t count) {
  const auto text = [](std::size_t n) { return GlobalBAS::GeneralText(static_cast<double>(n)); };
  const double y = kFoot + 250;
  const auto style = [](drawing::Across across) {
    return drawing::TextStyle{across, drawing::Down::Top, kSmall, false, kGrey};
  };
  const double right = kPaperWidth - kMargin;
  page.Line({kMargin, y - 90}, {right, y - 90}, kGrey, kHair);
  page.Text({kMargin, y}, contents.product, style(drawing::Across::Left), "");
  page.Text({kPaperWidth / 2, y}, contents.made, style(drawing::Across::Centre), "");
  page.Text({right, y}, DocText(Doc::PageOf, {text(number), text(count)}),
            style(drawing::Across::Right), "");
  if (number == 1) return;
  const drawing::TextStyle head = style(drawing::Across::Left);
  page.Text({kMargin, kTop - 500}, PlotWBas::Elided(contents.name, kTextWidth, head), head, "");
}

}  // namespace

std::vector<drawing::DrawingRecord> PagesOf(const Contents& contents) {
  PageFlow flow;
  PutTitle(flow, contents);
  for (const Section& section : contents.sections) {
    flow.Need(RoomWanted(section));
    PutSection(flow, section);
  }
  std::vector<drawing::DrawingRecord> pages = std::move(flow.Pages());
  for (std::size_t i = 0; i < pages.size(); ++i) PutFoot(pages[i], contents, i + 1, pages.size());
  return pages;
}

}  // namespace document
