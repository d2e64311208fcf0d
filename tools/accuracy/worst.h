#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/csv.h"
#include "tools/accuracy/search.h"

// The largest error of a routine over the rows of a table.
namespace accuracy {

// A column of a table, and what its numbers are called on the page.
struct Column {
  Column(const char* both) : name(both), shown(both) {}
  Column(std::string both) : name(both), shown(std::move(both)) {}
  Column(const char* of, const char* as) : name(of), shown(as) {}
  std::string name;
  std::string shown;
};

// One table against one routine.
struct Source {
  std::string table;   // of tests/data; empty when there is none
  std::string column;  // what the routine should give
  std::vector<Column> inputs;
  std::function<double(const support::Row&)> call;
  std::function<bool(const support::Row&)> takes = {};       // all rows when empty
  std::function<double(const support::Row&)> expected = {};  // in place of the column when given
};

// Rows whose column is empty, a fault, or no number are passed over. A call that faults counts as
// an infinite error.
Figure Largest(const Source& source, Measure measure);

// The truths of the rows, each with its inputs as text, for a truth that is reckoned otherwise to
// be held against.
std::vector<std::pair<std::string, double>> Truths(const Source& source);

// "df 9, t 1.5": the inputs of a row, each number in its shortest form; an empty field has no place
// in it.
std::string Inputs(const support::Row& row, const std::vector<Column>& columns);

}  // namespace accuracy
