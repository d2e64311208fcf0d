#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "rawdata/data_ctrl_form.h"
#include "rawdata/paste_words.h"

// What the data control screen does with a text from the clipboard, and what it gives to it.
namespace rawdata {
namespace {

constexpr int kConcentration = 1530;

}  // namespace

std::optional<PastedColumn> DataCtrlForm::Understood(const std::string& text) {
  PasteAnswers answers;
  for (;;) {
    const PasteReading reading = ReadPasted(text, session.Unit, answers);
    if (const auto* column = std::get_if<PastedColumn>(&reading)) return *column;
    if (const auto* ask = std::get_if<AskColumn>(&reading)) {
      const auto choice = ports.tableDialog.Ask(QuestionOf(*ask));
      if (!choice) break;
      answers.column = ask->choices[*choice].column;
    } else if (const auto* sign = std::get_if<AskSign>(&reading)) {
      const auto choice = ports.tableDialog.Ask(QuestionOf(*sign));
      if (!choice) break;
      answers.sign = *choice == 0 ? DecimalSign::Comma : DecimalSign::Point;
    } else if (const auto* refusal = std::get_if<PasteRefusal>(&reading)) {
      Report({.did = Did::Said, .what = OwnText(Own::NothingPasted)});
      Complain(RefusalText(*refusal), LoadResString(kConcentration));
      return std::nullopt;
    } else {
      Report({.did = Did::Said, .what = OwnText(Own::NoTextToPaste)});
      return std::nullopt;
    }
  }
  Report({.did = Did::Said, .what = OwnText(Own::NothingPasted)});
  return std::nullopt;
}

// All lines or none: a refused line would shift the rows behind it.
void DataCtrlForm::PasteRows(int row, const std::string& text) {
  if (row < 0 || row > SampleCount(session)) return;
  const std::optional<PastedColumn> column = Understood(text);
  if (!column) return;
  const std::vector<double>& values = column->values;
  const int rows = std::max(SampleCount(session), row + static_cast<int>(values.size()));
  if (!HasRoomFor(rows)) return;
  const int count = static_cast<int>(values.size());
  DBGridVkr.SelectRows(row, count);
  EditRows(
      OwnText(count == 1 ? Own::StepPastedOne : Own::StepPasted, {GlobalBAS::GeneralText(count)}),
      [&](Given& given) {
        CutSeries(given);
        given.M = rows;
        given.C.resize(static_cast<std::size_t>(rows) + 1);
        std::copy(values.begin(), values.end(), given.C.begin() + 1 + row);
      });
  GoBehindPaste(row + count);
  TellPaste(*column);
}

// The next paste fills what is empty: the row behind this one, any other, or the line at the end.
void DataCtrlForm::GoBehindPaste(int row) {
  const auto empty = [](double value) { return value <= 0; };
  const auto first = session.C.begin() + 1;
  const auto end = first + SampleCount(session);
  auto next = std::find_if(std::min(first + row, end), end, empty);
  if (next == end) next = std::find_if(first, end, empty);
  DBGridVkr.currentRow = static_cast<int>(next - first);
  ++DBGridVkr.revision;
}

void DataCtrlForm::TellPaste(const PastedColumn& column) {
  const auto count = static_cast<double>(column.values.size());
  Report({.did = Did::Pasted, .count = count, .what = PasteDetails(column, session.Unit)});
}

// The concentrations alone, one a line, each with all its digits.
std::string DataCtrlForm::CopyRows(const std::vector<int>& rows) {
  std::string text;
  int count = 0;
  for (const int row : rows) {
    if (row < 0 || row >= DBGridVkr.rowCount) continue;
    const double value = session.C[static_cast<std::size_t>(row) + 1];
    if (value > 0) {
      text += GlobalBAS::FileText(value);
      ++count;
    }
    text += '\n';
  }
  if (!text.empty()) Report({.did = Did::Copied, .count = static_cast<double>(count)});
  return text;
}

}  // namespace rawdata
