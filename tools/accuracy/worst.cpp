#include "tools/accuracy/worst.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

#include "base/fault.h"

namespace accuracy {
namespace {

std::optional<double> NumberIn(const std::string& text) {
  double value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string Shortest(const std::string& text) {
  const std::optional<double> value = NumberIn(text);
  if (!value) return text;
  char shortest[32];
  const auto [end, error] = std::to_chars(shortest, shortest + sizeof shortest, *value);
  return error == std::errc() ? std::string(shortest, end) : text;
}

double ErrorOf(const Source& source, const support::Row& row, double expected, Measure measure) {
  try {
    const double result = source.call(row);
    if (std::isnan(result)) return std::numeric_limits<double>::infinity();
    return measure == Measure::Relative ? support::RelativeError(result, expected)
                                        : std::abs(result - expected);
  } catch (const RunTimeError&) {
    return std::numeric_limits<double>::infinity();
  }
}

// Several entries read the same table; each is parsed once.
const std::vector<support::Row>& Table(const std::string& name) {
  static std::map<std::string, std::vector<support::Row>> tables;
  const auto found = tables.find(name);
  if (found != tables.end()) return found->second;
  return tables.emplace(name, support::ReadTable(name)).first->second;
}

}  // namespace

std::string Inputs(const support::Row& row, const std::vector<std::string>& columns) {
  std::string text;
  for (const std::string& column : columns) {
    if (!text.empty()) text += ", ";
    text += column + " " + Shortest(row.Text(column));
  }
  return text;
}

Figure Largest(const Source& source, Measure measure) {
  Figure worst;
  for (const support::Row& row : Table(source.table)) {
    if (source.takes && !source.takes(row)) continue;
    const std::optional<double> expected =
        source.expected ? source.expected(row) : NumberIn(row.Text(source.column));
    if (!expected) continue;
    const double error = ErrorOf(source, row, *expected, measure);
    if (worst.rows++ > 0 && error <= worst.error) continue;
    worst.error = error;
    worst.where = Inputs(row, source.inputs);
  }
  return worst;
}

}  // namespace accuracy
