#include "tests/support/csv.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace support {
namespace {

// One record, which may hold line ends inside quotes. False at the end of the file.
bool ReadRecord(std::istream& in, std::vector<std::string>& fields, int& line) {
  fields.clear();
  std::string field;
  bool quoted = false;
  bool any = false;
  for (int c = in.get(); c != EOF; c = in.get()) {
    any = true;
    const char ch = static_cast<char>(c);
    if (ch == '\n') ++line;
    if (quoted) {
      if (ch != '"')
        field += ch;
      else if (in.peek() == '"')
        field += static_cast<char>(in.get());
      else
        quoted = false;
    } else if (ch == '"') {
      quoted = true;
    } else if (ch == ',') {
      fields.push_back(std::move(field));
      field.clear();
    } else if (ch == '\n') {
      break;
    } else if (ch != '\r') {
      field += ch;
    }
  }
  if (any) fields.push_back(std::move(field));
  return any;
}

}  // namespace

const std::string& Row::Text(const std::string& column) const {
  auto found = fields_.find(column);
  if (found == fields_.end()) throw std::out_of_range(where_ + ": no column " + column);
  return found->second;
}

double Row::Number(const std::string& column) const {
  const std::string& text = Text(column);
  double value = 0;
  const char* last = text.data() + text.size();
  auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last)
    throw std::invalid_argument(where_ + ": " + column + " is no number: " + text);
  return value;
}

std::vector<Row> ReadTable(const std::string& name) {
  std::ifstream in(std::string(VALKORIN_TEST_DATA) + "/" + name, std::ios::binary);
  if (!in) throw std::runtime_error("no table " + name);
  int line = 1;
  std::vector<std::string> header;
  std::vector<std::string> fields;
  ReadRecord(in, header, line);
  std::vector<Row> rows;
  for (int at = line; ReadRecord(in, fields, line); at = line) {
    std::map<std::string, std::string> named;
    for (std::size_t i = 0; i < header.size() && i < fields.size(); ++i)
      named[header[i]] = fields[i];
    rows.emplace_back(std::move(named), name + ":" + std::to_string(at));
  }
  if (rows.empty()) throw std::runtime_error("empty table " + name);
  return rows;
}

double RelativeError(double a, double b) {
  if (a == b) return 0;
  return std::abs(a - b) / (b == 0 ? 1.0 : std::abs(b));
}

}  // namespace support
