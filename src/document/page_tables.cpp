#include "document/page_tables.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "drawing/font.h"

namespace document {
namespace {

constexpr drawing::Colour kGrey{90, 90, 90};
constexpr drawing::Colour kPale{200, 200, 200};
constexpr drawing::Colour kGreen{0, 112, 0};
constexpr drawing::Colour kRed{176, 0, 0};
constexpr double kThin = 8;
constexpr double kGap = 200;  // between two columns
constexpr double kName = 3350;
constexpr double kValue = 2250;
constexpr double kBetweenRows = 40;
constexpr double kSmall = 8;
constexpr std::size_t kMany = 200;

std::string WithUnit(const Result& result) {
  return result.unit.empty() ? result.value : result.value + " " + result.unit;
}

void PutFacts(PageFlow& flow, const Facts& facts) {
  const bool methods =
      std::ranges::any_of(facts.results, [](const Result& r) { return !r.method.empty(); });
  const double second = kMargin + kName + kGap;
  const double third = second + kValue + kGap;
  const double right = kPaperWidth - kMargin;
  for (const Result& result : facts.results) {
    std::vector<Cell> row{{result.name, kMargin, kName, {}},
                          {WithUnit(result), second, methods ? kValue : right - second, {}}};
    row[1].face.bold = methods;
    if (methods) row.push_back({result.method, third, right - third, {{kSmall}, kGrey}});
    flow.Row(row);
    flow.Skip(kBetweenRows);
  }
}

void PutWords(PageFlow& flow, const Words& words) {
  flow.Row({{words.text, kMargin, kTextWidth, {}}});
  flow.Skip(kBetweenRows);
}

// Of one column, in letters of one size.
struct OutcomeColumns {
  explicit OutcomeColumns(const std::vector<Result>& results)
      : face{{results.size() > kMany ? 7.0 : 8.5}} {
    for (const Result& result : results) {
      place = std::max(place, drawing::LineWidth(result.name, face.size, false));
      value = std::max(value, drawing::LineWidth(result.value, face.size, false));
    }
    count = std::max<std::size_t>(1, static_cast<std::size_t>((kTextWidth + kGap) / Width()));
  }
  double Width() const { return place + kGap / 2 + value + kGap; }

  Typeface face;
  double place = 0;
  double value = 0;
  std::size_t count = 1;
};

// From the top of a page to its foot, column by column.
void PutOutcomes(PageFlow& flow, const Outcomes& outcomes) {
  constexpr std::size_t kLeastRows = 4;
  const OutcomeColumns columns(outcomes.results);
  const double height = RowHeight(columns.face);
  Typeface place = columns.face;
  place.colour = kGrey;
  place.across = drawing::Across::Right;
  for (std::size_t done = 0; done < outcomes.results.size();) {
    const std::size_t left = outcomes.results.size() - done;
    const std::size_t wanted = (left + columns.count - 1) / columns.count;
    flow.Need(static_cast<double>(std::min(wanted, kLeastRows)) * height);
    const auto fitting = static_cast<std::size_t>(std::max(1.0, std::floor(flow.Room() / height)));
    const std::size_t rows = std::min(wanted, fitting);
    const std::size_t here = std::min(left, rows * columns.count);
    for (std::size_t i = 0; i < here; ++i) {
      const Result& result = outcomes.results[done + i];
      const std::size_t column = i / rows;
      const double x = kMargin + static_cast<double>(column) * columns.Width() + columns.place;
      const double y = flow.Y() + static_cast<double>(i % rows) * height;
      flow.Text({x, y}, result.name, place);
      flow.Text({x + kGap / 2, y}, result.value, columns.face);
    }
    flow.Skip(static_cast<double>(rows) * height);
    done += here;
  }
}

// A tick or a cross of lines, as the screen has it.
void PutSign(PageFlow& flow, double left, double top, bool complies) {
  constexpr double kSide = 130;
  constexpr double kStroke = 28;
  drawing::DrawingRecord& page = flow.Page();
  const auto at = [&](double x, double y) {
    return drawing::Point{left + x * kSide, top + y * kSide};
  };
  if (complies) {
    page.Line(at(0, 0.55), at(0.38, 0.95), kGreen, kStroke);
    page.Line(at(0.35, 0.95), at(1, 0.1), kGreen, kStroke);
  } else {
    page.Line(at(0.05, 0.1), at(0.9, 0.95), kRed, kStroke);
    page.Line(at(0.9, 0.1), at(0.05, 0.95), kRed, kStroke);
  }
}

void PutVerdict(PageFlow& flow, const VerdictRow& row, const Typeface& face) {
  constexpr double kTest = 2300;
  constexpr double kEstimate = 2100;
  constexpr double kLimit = 2100;
  constexpr double kSign = 200;
  constexpr double kRowRoom = 700;  // the sign stands on the page of its words
  flow.Need(kRowRoom);
  const double estimate = kMargin + kTest + kGap;
  const double limit = estimate + kEstimate + kGap;
  const double words = limit + kLimit + kGap + kSign;
  Typeface verdict = face;
  if (row.compliance) {
    verdict.bold = true;
    verdict.colour = *row.compliance ? kGreen : kRed;
    PutSign(flow, words - kSign, flow.Y() + 35, *row.compliance);
  }
  flow.Row({{row.test, kMargin, kTest, face},
            {row.estimate, estimate, kEstimate, face},
            {row.limit, limit, kLimit, face},
            {row.words, words, kPaperWidth - kMargin - words, verdict}});
  flow.Skip(kBetweenRows);
  flow.Rule(kPale, kThin);
  flow.Skip(kBetweenRows);
}

void PutVerdicts(PageFlow& flow, const VerdictTable& table) {
  Typeface heading{{kSmall, true}};
  PutVerdict(flow, table.heading, heading);
  for (const VerdictRow& row : table.rows) PutVerdict(flow, row, {});
  flow.Skip(kBetweenRows);
}

void PutPicture(PageFlow& flow, const drawing::DrawingRecord& drawing) {
  flow.Need(drawing.ScaleHeight());
  drawing::DrawingRecord& page = flow.Page();
  const auto at = [&](drawing::Point point) {
    return drawing::Point{kMargin + point.x, flow.Y() + point.y};
  };
  for (const drawing::DrawingRecord::Item& item : drawing.Items()) {
    if (const auto* line = std::get_if<drawing::DrawnLine>(&item))
      page.Line(at(line->from), at(line->to), line->colour, line->width);
    else if (const auto* dot = std::get_if<drawing::DrawnDot>(&item))
      page.Dot(at(dot->at), dot->colour);
    else if (const auto* text = std::get_if<drawing::DrawnText>(&item))
      page.Text(at(text->at), text->text, text->style, text->label);
  }
  flow.Skip(drawing.ScaleHeight());
}

}  // namespace

void Put(PageFlow& flow, const Block& block) {
  if (const auto* facts = std::get_if<Facts>(&block))
    PutFacts(flow, *facts);
  else if (const auto* words = std::get_if<Words>(&block))
    PutWords(flow, *words);
  else if (const auto* outcomes = std::get_if<Outcomes>(&block))
    PutOutcomes(flow, *outcomes);
  else if (const auto* table = std::get_if<VerdictTable>(&block))
    PutVerdicts(flow, *table);
  else if (const auto* picture = std::get_if<Picture>(&block))
    PutPicture(flow, picture->drawing);
}

}  // namespace document
