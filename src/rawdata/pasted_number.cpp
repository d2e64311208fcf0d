#include "rawdata/pasted_number.h"

#include <algorithm>
#include <vector>

#include "rawdata/units.h"
#include "session/global_bas.h"

namespace rawdata {
namespace {

constexpr std::size_t kGroup = 3;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool HasDigit(std::string_view text) { return std::any_of(text.begin(), text.end(), IsDigit); }

std::size_t DigitsAt(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end - at;
}

// The beginning of a cell, cut where a number's parts end.
struct Shape {
  std::string sign;
  std::string mantissa;  // digits and separators
  std::string exponent;
  std::string_view behind;
};

std::size_t ExponentLength(std::string_view text, std::size_t at) {
  if (at >= text.size() || std::string_view("EeDd").find(text[at]) == std::string_view::npos)
    return 0;
  std::size_t digit = at + 1;
  if (digit < text.size() && (text[digit] == '+' || text[digit] == '-')) ++digit;
  const std::size_t digits = DigitsAt(text, digit);
  return digits > 0 ? digit + digits - at : 0;
}

Shape ShapeOf(std::string_view text) {
  Shape shape;
  std::size_t at = 0;
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) shape.sign = text[at++];
  const std::size_t end = std::min(text.find_first_not_of("0123456789.,", at), text.size());
  shape.mantissa = text.substr(at, end - at);
  if (!HasDigit(shape.mantissa)) return {};
  const std::size_t exponent = ExponentLength(text, end);
  shape.exponent = text.substr(end, exponent);
  shape.behind = text.substr(end + exponent);
  return shape;
}

// Nothing, or a time of day, behind a date.
bool IsTime(std::string_view text) {
  if (text.empty()) return true;
  const bool colon = text.find(':') != std::string_view::npos;
  return colon && text.find_first_not_of("0123456789: TZAPMapm") == std::string_view::npos;
}

// "12-03-2024", "2024/3/12 08:30", "12.03.2024", "8:30".
bool IsDate(std::string_view text) {
  const std::size_t first = DigitsAt(text, 0);
  if (first == 0 || first > 4 || first >= text.size()) return false;
  const char separator = text[first];
  const std::size_t second = DigitsAt(text, first + 1);
  if (separator == ':') return first <= 2 && second == 2 && IsTime(text);
  if (std::string_view("-/.").find(separator) == std::string_view::npos) return false;
  const std::size_t behind = first + 1 + second;
  if (second == 0 || second > 2 || behind >= text.size() || text[behind] != separator) return false;
  const std::size_t third = DigitsAt(text, behind + 1);
  const std::size_t end = behind + 1 + third;
  return third > 0 && third <= 4 && IsTime(text.substr(end));
}

bool BeginsBelow(std::string_view text) {
  return text.starts_with('<') || text.starts_with("\xE2\x89\xA4");
}

bool BeginsAbove(std::string_view text) {
  return text.starts_with('>') || text.starts_with("\xE2\x89\xA5");
}

// The digits between the separators of `mantissa`.
std::vector<std::string> Parts(const std::string& mantissa) {
  std::vector<std::string> parts(1);
  for (const char c : mantissa) {
    if (IsDigit(c))
      parts.back() += c;
    else
      parts.emplace_back();
  }
  return parts;
}

// Whether the first `count` parts are the thousands of one number.
bool AreGroups(const std::vector<std::string>& parts, std::size_t count) {
  if (parts[0].empty() || parts[0].size() > kGroup || parts[0][0] == '0') return false;
  return std::all_of(parts.begin() + 1, parts.begin() + static_cast<std::ptrdiff_t>(count),
                     [](const std::string& part) { return part.size() == kGroup; });
}

class NumberReader {
 public:
  explicit NumberReader(const Shape& shape) : shape_(shape), parts_(Parts(shape.mantissa)) {}

  void Read(PastedCell& cell) const {
    const std::size_t separators = parts_.size() - 1;
    const std::string& m = shape_.mantissa;
    const char last = separators > 0 ? m[m.find_last_of(",.")] : '.';
    const auto same = static_cast<std::size_t>(std::count(m.begin(), m.end(), last));
    cell.kind = CellKind::Number;
    if (separators == 0)
      cell.byComma = cell.byPoint = Value(1, "");
    else if (separators == 1)
      ReadOne(cell, last);
    else if (same == separators && shape_.exponent.empty() && AreGroups(parts_, parts_.size()))
      ReadGroups(cell, last);
    else if (same == 1 && AreGroups(parts_, separators))
      ReadDecimal(cell, last);
    else
      cell.kind = CellKind::BadGroups;
  }

 private:
  // The first `whole` parts in front of the decimal point.
  double Value(std::size_t whole, const std::string& decimals) const {
    std::string text = shape_.sign;
    for (std::size_t i = 0; i < whole; ++i) text += parts_[i];
    return GlobalBAS::Val(text + "." + decimals + shape_.exponent);
  }

  void ReadDecimal(PastedCell& cell, char last) const {
    cell.byComma = cell.byPoint = Value(parts_.size() - 1, parts_.back());
    (last == ',' ? cell.decimalComma : cell.decimalPoint) = true;
  }

  void ReadOne(PastedCell& cell, char last) const {
    ReadDecimal(cell, last);
    cell.perhapsGrouped = shape_.exponent.empty() && AreGroups(parts_, parts_.size());
    if (cell.perhapsGrouped) (last == ',' ? cell.byPoint : cell.byComma) = Value(parts_.size(), "");
  }

  // Number entry takes the last of several commas as the decimal one, and of several points none.
  void ReadGroups(PastedCell& cell, char last) const {
    cell.groupedAlone = true;
    const double grouped = Value(parts_.size(), "");
    if (last == ',') {
      cell.byPoint = grouped;
      cell.byComma = Value(parts_.size() - 1, parts_.back());
    } else {
      cell.byComma = grouped;
    }
  }

  const Shape& shape_;
  std::vector<std::string> parts_;
};

PastedCell ReadLine(const std::string& text, std::string_view unit) {
  PastedCell cell;
  if (text.empty()) return cell;
  cell.kind = CellKind::Text;
  if (BeginsBelow(text) || BeginsAbove(text)) {
    cell.kind = BeginsBelow(text) ? CellKind::Below : CellKind::Above;
    return cell;
  }
  if (IsDate(text)) {
    cell.kind = CellKind::Date;
    return cell;
  }
  const Shape shape = ShapeOf(text);
  if (shape.mantissa.empty()) return cell;
  const std::string behind = GlobalBAS::Trim(shape.behind);
  if (behind.empty() || IsUnit(behind, unit)) {
    NumberReader(shape).Read(cell);
    cell.unit = behind;
  } else {
    cell.kind = CellKind::TextBehind;
  }
  return cell;
}

// Whether one of the lines is a number, or a limit that stands for one.
bool HoldsNumber(const std::string& lines, std::string_view unit) {
  for (std::size_t at = 0; at < lines.size();) {
    const std::size_t end = std::min(lines.find_first_of("\r\n", at), lines.size());
    const CellKind kind = ReadLine(GlobalBAS::Trim(lines.substr(at, end - at)), unit).kind;
    if (kind == CellKind::Number || kind == CellKind::Below || kind == CellKind::Above) return true;
    at = end + 1;
  }
  return false;
}

}  // namespace

PastedCell ReadCell(const std::string& text, std::string_view unit) {
  if (text.find_first_of("\r\n") == std::string::npos) return ReadLine(text, unit);
  std::string line = text;
  for (char& c : line)
    if (c == '\r' || c == '\n' || c == '\t') c = ' ';
  PastedCell cell = ReadLine(line, unit);
  if (cell.kind == CellKind::Number || !HoldsNumber(text, unit)) return cell;
  PastedCell lines;
  lines.kind = CellKind::ManyLines;
  return lines;
}

}  // namespace rawdata
