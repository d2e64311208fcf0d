#pragma once

#include <map>
#include <string>
#include <vector>

// Tables of tests/data: comma-separated, a header line, fields quoted where they hold a comma.
namespace support {

class Row {
 public:
  Row(std::map<std::string, std::string> fields, std::string where)
      : fields_(std::move(fields)), where_(std::move(where)) {}
  // The field as it stands; throws for a column that the table lacks.
  const std::string& Text(const std::string& column) const;
  // The field as a double; +-inf and nan included. Throws for a field that is no number.
  double Number(const std::string& column) const;
  bool Has(const std::string& column) const { return fields_.count(column) > 0; }
  // File and line, for failure messages.
  const std::string& Where() const { return where_; }

 private:
  std::map<std::string, std::string> fields_;
  std::string where_;
};

// All rows of tests/data/<name>; throws when the file is missing or has no row, so that a test
// over its rows can't pass by finding none.
std::vector<Row> ReadTable(const std::string& name);

// |a - b| as a fraction of |b| (of 1 when b is 0).
double RelativeError(double a, double b);

}  // namespace support
