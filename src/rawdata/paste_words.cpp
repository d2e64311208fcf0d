#include "rawdata/paste_words.h"

#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "rawdata/line_reader.h"
#include "rawdata/units.h"
#include "session/global_bas.h"

namespace rawdata {
namespace {

constexpr int kConcentration = 1530;
constexpr const char* kLineEnd = "\r";

Own WordsOf(Trouble trouble) {
  switch (trouble) {
    case Trouble::Empty:
      return Own::PasteEmpty;
    case Trouble::Date:
      return Own::PasteDate;
    case Trouble::Below:
      return Own::PasteBelow;
    case Trouble::Above:
      return Own::PasteAbove;
    case Trouble::TextBehind:
      return Own::PasteTextBehind;
    case Trouble::BadGroups:
      return Own::PasteBadGroups;
    case Trouble::ManyLines:
      return Own::PasteManyLines;
    case Trouble::OutOfRange:
      return Own::PasteOutOfRange;
    case Trouble::OtherUnit:
      return Own::PasteOtherUnit;
    case Trouble::Text:
      break;
  }
  return Own::PasteNoNumber;
}

bool Has(const PasteRefusal& refusal, Trouble trouble) {
  return std::any_of(refusal.lines.begin(), refusal.lines.end(),
                     [trouble](const NotUnderstood& line) { return line.trouble == trouble; });
}

// In one line, and no longer than a message can show.
std::string ShownCell(const std::string& cell) {
  Line line;
  line.text = cell;
  std::replace(line.text.begin(), line.text.end(), '\n', ' ');
  std::replace(line.text.begin(), line.text.end(), '\r', ' ');
  return ShownText(line);
}

std::string Number(std::size_t number) { return GlobalBAS::FileText(static_cast<double>(number)); }

std::string Meaning(const std::optional<double>& value) {
  return value ? GlobalBAS::FileText(*value) : OwnText(Own::PasteNotReadable);
}

}  // namespace

std::string RefusalText(const PasteRefusal& refusal) {
  if (refusal.tooLong) return OwnText(Own::PasteTooLong);
  std::string text = OwnText(Own::PasteRefused);
  for (const NotUnderstood& line : refusal.lines)
    text += kLineEnd + OwnText(WordsOf(line.trouble),
                               {Number(static_cast<std::size_t>(line.line)), ShownCell(line.text)});
  if (Has(refusal, Trouble::Below)) text += kLineEnd + std::string(OwnText(Own::PasteBelowHint));
  if (Has(refusal, Trouble::Above)) text += kLineEnd + std::string(OwnText(Own::PasteAboveHint));
  return text;
}

screen::TableDialog::Question QuestionOf(const AskColumn& ask) {
  screen::TableDialog::Question question;
  question.title = LoadResString(kConcentration);
  question.text = OwnText(Own::PasteWhichColumn);
  question.lines = ask.firstRows;
  question.proposed = ask.proposed;
  for (const AskColumn::Choice& choice : ask.choices) {
    question.columns.push_back(choice.column);
    question.choices.push_back(OwnText(
        Own::PasteColumnChoice, {Number(choice.column + 1),
                                 ShownCell(choice.header.empty() ? choice.first : choice.header)}));
  }
  return question;
}

screen::TableDialog::Question QuestionOf(const AskSign& ask) {
  screen::TableDialog::Question question;
  const std::string example = ShownCell(ask.example);
  question.title = LoadResString(kConcentration);
  question.text = OwnText(Own::PasteWhichSign, {example});
  question.lines = ask.firstRows;
  question.choices = {OwnText(Own::PasteCommaDecimal, {example, Meaning(ask.cell.byComma)}),
                      OwnText(Own::PastePointDecimal, {example, Meaning(ask.cell.byPoint)})};
  return question;
}

std::string PasteDetails(const PastedColumn& column, const std::string& unit) {
  std::string text;
  const std::string header = ShownCell(column.header);
  if (column.columns > 1 && !header.empty())
    text += OwnText(Own::PasteOfNamedColumn, {Number(column.column + 1), header});
  else if (column.columns > 1)
    text += OwnText(Own::PasteOfColumn, {Number(column.column + 1)});
  else if (column.headerLines > 0)
    text += OwnText(Own::PasteHeader, {header});
  if (!column.unit.empty() && UnitKey(column.unit) != UnitKey(unit))
    text += OwnText(Own::PasteUnit, {ShownCell(column.unit), unit});
  return text;
}

}  // namespace rawdata
