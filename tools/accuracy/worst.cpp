#include "tools/accuracy/worst.h"

#include <cmath>
#include <limits>
#include <map>
#include <optional>

#include "base/fault.h"
#include "tools/accuracy/numbers.h"

namespace accuracy {
namespace {

// A field that holds a finite number.
std::optional<double> Finite(const std::string& text) {
  const std::optional<double> value = NumberIn(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

std::string Shortest(const std::string& text) {
  const std::optional<double> value = Finite(text);
  return value ? NumberText(*value) : text;
}

double ErrorOfRow(const Source& source, const support::Row& row, double expected, Measure measure) {
  try {
    return ErrorOf(source.call(row), expected, measure);
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

std::string Inputs(const support::Row& row, const std::vector<Column>& columns) {
  std::string text;
  for (const Column& column : columns) {
    if (row.Text(column.name).empty()) continue;
    if (!text.empty()) text += ", ";
    text += column.shown + " " + Shortest(row.Text(column.name));
  }
  return text;
}

std::vector<std::pair<std::string, double>> Truths(const Source& source) {
  std::vector<std::pair<std::string, double>> truths;
  for (const support::Row& row : Table(source.table)) {
    if (source.takes && !source.takes(row)) continue;
    const std::optional<double> expected =
        source.expected ? source.expected(row) : Finite(row.Text(source.column));
    if (expected) truths.emplace_back(Inputs(row, source.inputs), *expected);
  }
  return truths;
}

Figure Largest(const Source& source, Measure measure) {
  Figure worst;
  for (const support::Row& row : Table(source.table)) {
    if (source.takes && !source.takes(row)) continue;
    const std::optional<double> expected =
        source.expected ? source.expected(row) : Finite(row.Text(source.column));
    if (!expected) continue;
    const double error = ErrorOfRow(source, row, *expected, measure);
    if (worst.rows++ > 0 && error <= worst.error) continue;
    worst.error = error;
    worst.where = Inputs(row, source.inputs);
  }
  return worst;
}

}  // namespace accuracy
