#pragma once

#include <optional>
#include <string>
#include <string_view>

// What a pasted cell holds.
namespace rawdata {

enum class CellKind {
  Empty,
  Text,        // begins with no number
  Date,        // a date or a time of day
  Number,      // a number, with a unit behind it or not
  Below,       // "<0.1": known only to lie below a limit
  Above,       // ">0.1"
  TextBehind,  // a number, and something behind it that is no unit
  BadGroups,   // separators that part neither thousands nor decimals
  ManyLines    // several lines with a number among them
};

enum class DecimalSign { Comma, Point };

// A number is read with the last separator as its decimal one, as everywhere in the program. Where
// a separator can as well part thousands, the decimal sign of the column decides.
struct PastedCell {
  CellKind kind = CellKind::Empty;
  // The number by either decimal sign; absent where the cell can't be read that way.
  std::optional<double> byComma;
  std::optional<double> byPoint;
  std::string unit;

  bool decimalComma = false;    // a comma stands as its decimal sign, or may
  bool decimalPoint = false;    // a point
  bool perhapsGrouped = false;  // "1,234", "1.234": one separator that could part thousands
  bool groupedAlone = false;    // "1,234,567", "1.234.567": such separators and no decimal one

  std::optional<double> By(DecimalSign sign) const {
    return sign == DecimalSign::Comma ? byComma : byPoint;
  }
  // Whether a header can't hold it.
  bool BeginsWithNumber() const {
    return kind != CellKind::Empty && kind != CellKind::Text && kind != CellKind::Date;
  }
};

// `text` has no blanks around it; `unit` is that of the series.
PastedCell ReadCell(const std::string& text, std::string_view unit);

}  // namespace rawdata
