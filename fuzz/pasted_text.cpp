// Any text as one that was copied elsewhere: it is understood, refused or asked about, each answer
// leads on, no line of what is taken gets lost, and what is taken can be copied and comes back.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>

#include "rawdata/pasted_table.h"
#include "rawdata/raw_file.h"
#include "session/global_bas.h"

using namespace rawdata;

namespace {

constexpr std::string_view kUnit = "mg/m3";
constexpr std::string_view kDigits = "0123456789";

void Require(bool holds) {
  if (!holds) std::abort();
}

void JudgeRefusal(const PasteRefusal& refusal, std::size_t rows) {
  Require(refusal.tooLong == refusal.lines.empty());
  int last = 0;
  for (const NotUnderstood& line : refusal.lines) {
    Require(line.line > last && line.line <= static_cast<int>(rows));
    Require(line.text.empty() == (line.trouble == Trouble::Empty));
    last = line.line;
  }
}

// The number of the cell by the plain reading of an entry, or the one of all its digits.
bool StandsFor(std::string cell, double value) {
  cell = cell.substr(0, cell.find_first_not_of("+-0123456789.,EeDd"));
  if (value == GlobalBAS::ReadNumber(cell)) return true;
  std::erase(cell, ',');
  if (value == GlobalBAS::Val(cell)) return true;
  std::erase(cell, '.');
  return value == GlobalBAS::Val(cell);
}

void JudgeColumn(const PastedColumn& read, const std::vector<PastedRow>& rows) {
  const auto header = static_cast<std::size_t>(read.headerLines);
  Require(!read.values.empty() && read.values.size() + header == rows.size());
  Require(read.column < read.columns);
  for (std::size_t i = 0; i < read.values.size(); ++i) {
    const PastedRow& row = rows[header + i];
    Require(RefusalOf(read.values[i]) == 0 && read.column < row.size());
    const std::string& cell = row[read.column];
    Require(cell.find_first_of(kDigits) != std::string::npos && StandsFor(cell, read.values[i]));
  }
}

// Copied by the grid, it is a plain column.
void JudgeCopy(const PastedColumn& read) {
  std::string copied;
  for (const double value : read.values) copied += GlobalBAS::FileText(value) + "\n";
  const PasteReading again = ReadPasted(copied, kUnit);
  const auto* same = std::get_if<PastedColumn>(&again);
  Require(same && same->columns == 1 && same->headerLines == 0);
  for (std::size_t i = 0; i < read.values.size(); ++i)
    Require(GlobalBAS::FileText(same->values[i]) == GlobalBAS::FileText(read.values[i]));
}

void Follow(std::string_view text, const PasteAnswers& answers,
            const std::vector<PastedRow>& rows) {
  const PasteReading reading = ReadPasted(text, kUnit, answers);
  if (const auto* column = std::get_if<PastedColumn>(&reading)) {
    JudgeColumn(*column, rows);
    JudgeCopy(*column);
  } else if (const auto* refusal = std::get_if<PasteRefusal>(&reading)) {
    JudgeRefusal(*refusal, rows.size());
  } else if (const auto* ask = std::get_if<AskColumn>(&reading)) {
    Require(!answers.column && ask->choices.size() > 1);
    Require(!ask->proposed || *ask->proposed < ask->choices.size());
    for (const AskColumn::Choice& choice : ask->choices) Follow(text, {choice.column, {}}, rows);
  } else if (std::holds_alternative<AskSign>(reading)) {
    Require(!answers.sign);
    for (const DecimalSign sign : {DecimalSign::Comma, DecimalSign::Point})
      Follow(text, {answers.column, sign}, rows);
  } else {
    Require(rows.empty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Follow(text, {}, RowsOf(text));
  return 0;
}
