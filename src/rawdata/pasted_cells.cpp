#include "rawdata/pasted_cells.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace rawdata {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";

// Blanks of spreadsheets and web pages that do not break a line.
constexpr std::string_view kFixedBlanks[] = {"\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x87"};

std::string Trimmed(std::string text) {
  for (const std::string_view fixed : kFixedBlanks)
    for (std::size_t at = text.find(fixed); at != std::string::npos; at = text.find(fixed, at))
      text.replace(at, fixed.size(), " ");
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

// Cuts a text with one kind of separator into rows of cells.
class CellReader {
 public:
  CellReader(std::string_view text, char separator) : text_(text), separator_(separator) {}

  // Whether a separator stood outside of quotes.
  bool Parted() const { return parted_; }

  std::vector<PastedRow> Read() {
    while (at_ < text_.size()) ReadRow();
    return std::move(rows_);
  }

 private:
  void ReadRow() {
    PastedRow row;
    for (;;) {
      const auto quoted = QuotedCell();
      row.push_back(Trimmed(quoted ? *quoted : PlainCell()));
      if (at_ >= text_.size() || text_[at_] != separator_) break;
      parted_ = true;
      ++at_;
    }
    if (text_.substr(at_, 2) == "\r\n") ++at_;
    if (at_ < text_.size()) ++at_;
    while (row.size() > 1 && row.back().empty()) row.pop_back();
    rows_.push_back(std::move(row));
  }

  bool EndsCell(std::size_t at) const {
    return at >= text_.size() || text_[at] == separator_ || IsLineEnd(text_[at]);
  }

  std::string PlainCell() {
    const std::size_t first = at_;
    while (!EndsCell(at_)) ++at_;
    return std::string(text_.substr(first, at_ - first));
  }

  // Nothing, and no character taken, where no closed quotes stand.
  std::optional<std::string> QuotedCell() {
    if (at_ >= text_.size() || text_[at_] != '"') return std::nullopt;
    std::string cell;
    for (std::size_t at = at_ + 1; at < text_.size(); ++at) {
      if (text_[at] != '"') {
        cell += text_[at];
      } else if (at + 1 < text_.size() && text_[at + 1] == '"') {
        cell += text_[at++];
      } else {
        if (!EndsCell(at + 1)) return std::nullopt;
        at_ = at + 1;
        return cell;
      }
    }
    return std::nullopt;
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  bool parted_ = false;
  std::vector<PastedRow> rows_;
};

}  // namespace

bool IsBlank(const PastedRow& row) {
  return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return cell.empty(); });
}

std::vector<PastedRow> RowsOf(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  CellReader byTab(text, '\t');
  std::vector<PastedRow> rows = byTab.Read();
  if (!byTab.Parted()) rows = CellReader(text, ';').Read();
  while (!rows.empty() && IsBlank(rows.back())) rows.pop_back();
  return rows;
}

}  // namespace rawdata
