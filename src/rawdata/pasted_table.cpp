#include "rawdata/pasted_table.h"

#include <algorithm>

#include "rawdata/raw_file.h"
#include "rawdata/units.h"
#include "session/exposure_session.h"

namespace rawdata {
namespace {

constexpr std::size_t kShownRows = 8;
constexpr std::size_t kMostColumns = 256;

// What a cell can be in the column of the outcomes.
bool FitsOutcomes(const PastedCell& cell, const std::string& text) {
  switch (cell.kind) {
    case CellKind::Number:
    case CellKind::Below:
    case CellKind::Above:
    case CellKind::Empty:
      return true;
    case CellKind::Text:
      return text.find_first_of("0123456789") == std::string::npos;
    default:
      return false;
  }
}

bool StandsForOutcome(const PastedCell& cell) {
  return cell.kind == CellKind::Number || cell.kind == CellKind::Below ||
         cell.kind == CellKind::Above;
}

Trouble TroubleOf(CellKind kind) {
  switch (kind) {
    case CellKind::Empty:
      return Trouble::Empty;
    case CellKind::Date:
      return Trouble::Date;
    case CellKind::Below:
      return Trouble::Below;
    case CellKind::Above:
      return Trouble::Above;
    case CellKind::TextBehind:
      return Trouble::TextBehind;
    case CellKind::BadGroups:
      return Trouble::BadGroups;
    case CellKind::ManyLines:
      return Trouble::ManyLines;
    default:
      return Trouble::Text;
  }
}

class TableReader {
 public:
  TableReader(std::string_view text, std::string_view unit, const PasteAnswers& answers)
      : unit_(unit), answers_(answers), rows_(RowsOf(text)) {
    for (const PastedRow& row : rows_) columns_ = std::max(columns_, row.size());
    while (header_ < rows_.size() && !HasNumber(rows_[header_])) ++header_;
  }

  PasteReading Read() {
    if (rows_.empty()) return NothingToPaste{};
    const std::size_t lines = header_ == rows_.size() ? rows_.size() : rows_.size() - header_;
    if (lines > static_cast<std::size_t>(kMaxSampleSize) || columns_ > kMostColumns)
      return PasteRefusal{true, {}};
    if (header_ == rows_.size()) return NoNumber();
    ReadCells();
    const std::vector<std::size_t> contenders = Contenders();
    if (answers_.column && *answers_.column < columns_) return ReadColumn(*answers_.column);
    if (contenders.size() != 1) return Ask(contenders);
    return ReadColumn(contenders.front());
  }

 private:
  bool HasNumber(const PastedRow& row) const {
    return std::any_of(row.begin(), row.end(), [this](const std::string& text) {
      return ReadCell(text, unit_).BeginsWithNumber();
    });
  }

  std::string TextAt(std::size_t row, std::size_t column) const {
    return column < rows_[row].size() ? rows_[row][column] : std::string();
  }
  const PastedCell& CellAt(std::size_t row, std::size_t column) const {
    return cells_[(row - header_) * columns_ + column];
  }

  void ReadCells() {
    cells_.reserve((rows_.size() - header_) * columns_);
    for (std::size_t row = header_; row < rows_.size(); ++row)
      for (std::size_t column = 0; column < columns_; ++column)
        cells_.push_back(ReadCell(TextAt(row, column), unit_));
  }

  PasteReading NoNumber() const {
    PasteRefusal refusal;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      if (IsBlank(rows_[row])) continue;
      std::string text;
      for (const std::string& cell : rows_[row]) text += (text.empty() ? "" : " ") + cell;
      const bool date = ReadCell(text, unit_).kind == CellKind::Date;
      refusal.lines.push_back(
          {static_cast<int>(row) + 1, text, date ? Trouble::Date : Trouble::Text});
    }
    return refusal;
  }

  template <typename Test>
  bool EachCell(std::size_t column, Test test) const {
    for (std::size_t row = header_; row < rows_.size(); ++row)
      if (!test(row, CellAt(row, column))) return false;
    return true;
  }

  bool HasOutcome(std::size_t column) const {
    return !EachCell(column, [](std::size_t, const PastedCell& c) { return !StandsForOutcome(c); });
  }

  bool IsFull(std::size_t column) const {
    return EachCell(column,
                    [](std::size_t, const PastedCell& c) { return c.kind == CellKind::Number; });
  }

  template <typename Test>
  std::vector<std::size_t> ColumnsThat(Test test) const {
    std::vector<std::size_t> found;
    for (std::size_t column = 0; column < columns_; ++column)
      if (test(column)) found.push_back(column);
    return found;
  }

  // The columns that could hold the outcomes; where none could, those that the lines that are not
  // understood are to be looked for in.
  std::vector<std::size_t> Contenders() const {
    std::vector<std::size_t> found = ColumnsThat([this](std::size_t column) {
      return HasOutcome(column) && EachCell(column, [&](std::size_t row, const PastedCell& cell) {
               return FitsOutcomes(cell, TextAt(row, column));
             });
    });
    if (found.empty()) found = ColumnsThat([this](std::size_t c) { return HasOutcome(c); });
    if (!found.empty()) return found;
    return ColumnsThat([this](std::size_t column) {
      return !EachCell(column,
                       [](std::size_t, const PastedCell& c) { return !c.BeginsWithNumber(); });
    });
  }

  // The last line of the header that says something about the column.
  std::string HeaderOf(std::size_t column) const {
    for (std::size_t row = header_; row-- > 0;)
      if (const std::string text = TextAt(row, column); !text.empty()) return text;
    return {};
  }

  std::vector<PastedRow> FirstRows() const {
    return {rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(
                                               std::min(rows_.size(), header_ + kShownRows))};
  }

  PasteReading Ask(const std::vector<std::size_t>& contenders) const {
    AskColumn question;
    question.firstRows = FirstRows();
    std::size_t full = 0;
    for (const std::size_t column : contenders) {
      if (IsFull(column) && full++ == 0) question.proposed = question.choices.size();
      question.choices.push_back({column, HeaderOf(column), TextAt(header_, column)});
    }
    if (full != 1) question.proposed.reset();
    return question;
  }

  // Behind the number or in the cell beside it.
  std::string UnitAt(std::size_t row, std::size_t column) const {
    const std::string& own = CellAt(row, column).unit;
    if (!own.empty()) return own;
    const std::string beside = TextAt(row, column + 1);
    return IsUnit(beside, unit_) ? beside : std::string();
  }

  std::string FirstUnit(std::size_t column) const {
    for (std::size_t row = header_; row < rows_.size(); ++row)
      if (const std::string unit = UnitAt(row, column); !unit.empty()) return unit;
    return {};
  }

  void Refuse(PasteRefusal& refusal, std::size_t row, std::size_t column, Trouble trouble) const {
    refusal.lines.push_back({static_cast<int>(row) + 1, TextAt(row, column), trouble});
  }

  PasteReading ReadColumn(std::size_t column) const {
    PasteRefusal refusal;
    const std::string unit = FirstUnit(column);
    for (std::size_t row = header_; row < rows_.size(); ++row) {
      const PastedCell& cell = CellAt(row, column);
      const std::string other = UnitAt(row, column);
      if (cell.kind != CellKind::Number)
        Refuse(refusal, row, column, TroubleOf(cell.kind));
      else if (!other.empty() && UnitKey(other) != UnitKey(unit))
        Refuse(refusal, row, column, Trouble::OtherUnit);
    }
    if (!refusal.lines.empty()) return refusal;
    const std::optional<std::size_t> doubt = DoubtfulRow(column);
    if (doubt && !answers_.sign)
      return AskSign{FirstRows(), column, TextAt(*doubt, column), CellAt(*doubt, column)};
    return Values(column, unit);
  }

  // A line whose separator may part thousands, in a column that makes it doubtful.
  std::optional<std::size_t> DoubtfulRow(std::size_t column) const {
    bool comma = false;
    bool point = false;
    for (std::size_t row = header_; row < rows_.size(); ++row) {
      comma = comma || CellAt(row, column).decimalComma;
      point = point || CellAt(row, column).decimalPoint;
    }
    std::optional<std::size_t> perhaps;
    std::optional<std::size_t> grouped;
    for (std::size_t row = header_; row < rows_.size(); ++row) {
      const PastedCell& cell = CellAt(row, column);
      if (cell.groupedAlone && !grouped) grouped = row;
      if (cell.perhapsGrouped && (cell.decimalComma ? point : comma)) return row;
      if (cell.perhapsGrouped && !perhaps) perhaps = row;
    }
    return grouped && perhaps ? perhaps : grouped;
  }

  // Without a doubt each cell has a decimal sign of its own.
  DecimalSign SignOf(const PastedCell& cell) const {
    if (answers_.sign) return *answers_.sign;
    return cell.decimalPoint ? DecimalSign::Point : DecimalSign::Comma;
  }

  PasteReading Values(std::size_t column, const std::string& unit) const {
    PastedColumn read{{}, column, columns_, HeaderOf(column), static_cast<int>(header_), unit};
    PasteRefusal refusal;
    for (std::size_t row = header_; row < rows_.size(); ++row) {
      const auto value = CellAt(row, column).By(SignOf(CellAt(row, column)));
      if (!value)
        Refuse(refusal, row, column, Trouble::BadGroups);
      else if (RefusalOf(*value) != 0)
        Refuse(refusal, row, column, Trouble::OutOfRange);
      else
        read.values.push_back(*value);
    }
    if (!refusal.lines.empty()) return refusal;
    return read;
  }

  std::string_view unit_;
  const PasteAnswers& answers_;
  std::vector<PastedRow> rows_;
  std::size_t columns_ = 0;
  std::size_t header_ = 0;  // rows
  std::vector<PastedCell> cells_;
};

}  // namespace

PasteReading ReadPasted(std::string_view text, std::string_view unit, const PasteAnswers& answers) {
  if (text.size() > kLongestPaste) return PasteRefusal{true, {}};
  return TableReader(text, unit, answers).Read();
}

}  // namespace rawdata
