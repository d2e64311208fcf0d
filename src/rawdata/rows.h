#pragma once

#include <vector>

// The rows of the table of outcomes, counted from 0: which of them a command means, and where a
// change of the series takes them.
namespace rawdata {

// Those of the selected rows that a deletion takes, ascending. Two rows always stay, the
// first of the selected ones.
// Domain: every selection; what is no row of the `count` ones, as the empty line at the end, does
// not count.
std::vector<int> RowsToDelete(std::vector<int> selected, int count);

// Where each outcome stands once they are in ascending order; equal ones keep theirs.
std::vector<int> PlacesInOrder(const std::vector<double>& outcomes);

// The first row that is not filled yet, and the first one of all where none is.
int FirstToFill(const std::vector<double>& outcomes);

// The rows of `now` that `before` did not have: what a change has brought, wherever it stands.
std::vector<int> RowsThatCame(const std::vector<double>& before, const std::vector<double>& now);

}  // namespace rawdata
