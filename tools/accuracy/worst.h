#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/csv.h"

// The largest error of a routine over the rows of a table.
namespace accuracy {

enum class Measure { Relative, Absolute };

// One table against one routine.
struct Source {
  std::string table;   // of tests/data; empty when there is none
  std::string column;  // what the routine should give
  std::vector<std::string> inputs;
  std::function<double(const support::Row&)> call;
  std::function<bool(const support::Row&)> takes = {};       // all rows when empty
  std::function<double(const support::Row&)> expected = {};  // in place of the column when given
};

struct Figure {
  double error = 0;
  std::string where;
  int rows = 0;
};

// Rows whose column is empty, a fault, or no number are passed over. A call that faults counts as
// an infinite error.
Figure Largest(const Source& source, Measure measure);

// "df 9, t 1.5": the inputs of a row, each number in its shortest form.
std::string Inputs(const support::Row& row, const std::vector<std::string>& columns);

}  // namespace accuracy
