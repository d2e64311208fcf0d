#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/csv.h"

// One row of a reference table against one call.
namespace table {

// Calls `routine` and compares its result with the row's `column`, to `tolerance` relative. A
// column that reads "FAULT ..." wants a fault of that kind, any other a result.
// `inputs` are the columns to show when it fails.
void Expect(const support::Row& row, const std::vector<std::string>& inputs,
            const std::string& column, double tolerance, const std::function<double()>& routine);

// The largest error seen, with the row that gave it. An error that is no number is the largest.
struct Seen {
  double error = 0;
  std::string where = "none";
  int rows = 0;

  void Note(double now, const std::string& row);
  // Fails when the error exceeds `ratchet`, and when no row came.
  void Hold(const std::string& what, double ratchet) const;
};

struct Worst : Seen {  // relative
  void Take(double result, double truth, const std::string& row);
};

struct WorstAbsolute : Seen {
  void Take(double result, double truth, const std::string& row);
};

// Loads the delivered coefficient files.
void LoadDelivered();

// Tests that need them.
class Delivered : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { LoadDelivered(); }
};

}  // namespace table
