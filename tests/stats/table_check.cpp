#include "tests/stats/table_check.h"

#include <cmath>
#include <iomanip>

#include "base/fault.h"
#include "stats/coefficients.h"

namespace table {
namespace {

FaultKind Wanted(const std::string& text) {
  if (text.find("division") != std::string::npos) return FaultKind::DivisionByZero;
  if (text.find("overflow") != std::string::npos) return FaultKind::Overflow;
  if (text.find("subscript") != std::string::npos) return FaultKind::Subscript;
  return FaultKind::InvalidOperation;
}

std::string Described(const support::Row& row, const std::vector<std::string>& inputs) {
  std::string text = row.Where();
  for (const std::string& column : inputs) text += ", " + column + " = " + row.Text(column);
  return text;
}

}  // namespace

void Expect(const support::Row& row, const std::vector<std::string>& inputs,
            const std::string& column, double tolerance, const std::function<double()>& routine) {
  const bool fault = row.Text(column).starts_with("FAULT");
  const std::string where = Described(row, inputs);
  try {
    const double result = routine();
    ASSERT_FALSE(fault) << where << ": gave " << result << " in place of " << row.Text(column);
    const double truth = row.Number(column);
    const double error = support::RelativeError(result, truth);
    EXPECT_LE(error, tolerance) << std::setprecision(17) << where << ": result " << result
                                << ", expected " << truth << ", relative error " << error
                                << ", tolerance " << tolerance;
  } catch (const RunTimeError& error) {
    ASSERT_TRUE(fault) << where << ": " << error.what() << " in place of " << row.Text(column);
    EXPECT_EQ(error.Kind(), Wanted(row.Text(column))) << where << ": " << error.what();
  }
}

void Seen::Note(double now, const std::string& row) {
  ++rows;
  if (now <= error || std::isnan(error)) return;
  error = now;
  where = row;
}

void Seen::Hold(const std::string& what, double ratchet) const {
  EXPECT_GT(rows, 0) << what << ": no row in this region";
  EXPECT_LE(error, ratchet) << what << ": largest error " << error << " at " << where
                            << ", last seen below " << ratchet;
}

void Worst::Take(double result, double truth, const std::string& row) {
  Note(support::RelativeError(result, truth), row);
}

void WorstAbsolute::Take(double result, double truth, const std::string& row) {
  Note(std::abs(result - truth), row);
}

void LoadDelivered() { StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"}); }

}  // namespace table
