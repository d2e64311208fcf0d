#pragma once

#include <string>
#include <string_view>
#include <vector>

// From the text of a clipboard to its cells.
namespace rawdata {

using PastedRow = std::vector<std::string>;

// The rows of the text. CR, LF and CR LF end a row; empty rows at the end are dropped,
// and empty cells at the end of a row. Tabs part
// the cells, or semicolons where no tab stands. A cell in quotes is taken as spreadsheets write it:
// it may hold separators and line ends, and "" stands for one quote; a quote that is not closed in
// front of a separator is a character as any other. Blanks around a cell fall away, the ones that
// do not break a line included.
std::vector<PastedRow> RowsOf(std::string_view text);

bool IsBlank(const PastedRow& row);

}  // namespace rawdata
