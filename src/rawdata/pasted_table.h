#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "rawdata/pasted_cells.h"
#include "rawdata/pasted_number.h"

// What a text from the clipboard means: the outcomes of one of its columns, a question, or a
// refusal. It is understood whole or not at all, and never guessed at.
//
// Lines above the first one with a number in a cell are a header. Of several columns that could
// hold the outcomes, the user says which one does. One could when each of its cells is a number, a
// limit ("<0.1"), empty or a word, and not all of them are empty or words: a series with gaps
// beside full columns of other numbers is not passed over for them.
namespace rawdata {

// A longer text is no column of two thousand outcomes.
inline constexpr std::size_t kLongestPaste = std::size_t{4} << 20U;

struct PasteAnswers {
  std::optional<std::size_t> column;
  std::optional<DecimalSign> sign;
};

struct PastedColumn {
  std::vector<double> values;
  std::size_t column = 0;  // from 0
  std::size_t columns = 1;
  std::string header;  // what stands above the column, or above all of it when it has one column
  int headerLines = 0;
  std::string unit;  // what stands behind the numbers, or beside them
};

// Which column holds the outcomes?
struct AskColumn {
  std::vector<PastedRow> firstRows;
  struct Choice {
    std::size_t column = 0;
    std::string header;
    std::string first;  // its first cell below the header
  };
  std::vector<Choice> choices;
  std::optional<std::size_t> proposed;  // the choice that alone has a number in each line
};

// What does the separator of `example` mean?
struct AskSign {
  std::vector<PastedRow> firstRows;
  std::size_t column = 0;
  std::string example;
  PastedCell cell;
};

enum class Trouble {
  Empty,
  Text,
  Date,
  Below,
  Above,
  TextBehind,
  BadGroups,
  ManyLines,
  OutOfRange,
  OtherUnit
};

struct NotUnderstood {
  int line = 0;      // from 1, header lines counted
  std::string text;  // the cell, or the line when it is not known which cell
  Trouble trouble = Trouble::Text;
};

struct PasteRefusal {
  bool tooLong = false;              // too long or too wide for a series
  std::vector<NotUnderstood> lines;  // all of them
};

struct NothingToPaste {};

using PasteReading = std::variant<NothingToPaste, PastedColumn, AskColumn, AskSign, PasteRefusal>;

// `unit` is that of the series.
PasteReading ReadPasted(std::string_view text, std::string_view unit,
                        const PasteAnswers& answers = {});

}  // namespace rawdata
