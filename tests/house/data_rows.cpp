#include "tests/house/data_rows.h"

#include <algorithm>
#include <regex>

#include "tests/house/source_tree.h"

namespace house {
namespace {

bool Fits(const std::string& name, const std::string& file) {
  if (name.ends_with('/')) return file.starts_with(name);
  static const std::regex capitals("[A-Z]+");
  static const std::regex dot(R"(\.)");
  if (name.find('/') == std::string::npos) return file == name;
  const std::string literal = std::regex_replace(name, dot, R"(\.)");
  return std::regex_match(file, std::regex(std::regex_replace(literal, capitals, "[a-z0-9]+")));
}

}  // namespace

std::vector<DataRow> ReadDataRows(const std::string& page) {
  static const std::regex row(R"(\| (`[^|]*) \| [^|]+ \| ([^|]*) \| ([^|]*) \|)");
  static const std::regex quoted("`([^`]+)`");
  std::vector<DataRow> rows;
  for (const std::string& line : Lines(page)) {
    std::smatch cells;
    if (!std::regex_match(line, cells, row)) continue;
    DataRow& read = rows.emplace_back(DataRow{{}, cells[2], cells[3]});
    const std::string files = cells[1];
    for (std::sregex_iterator at(files.begin(), files.end(), quoted), end; at != end; ++at)
      read.files.push_back((*at)[1]);
  }
  return rows;
}

bool Names(const DataRow& row, const std::string& file) {
  return std::ranges::any_of(row.files, [&](const std::string& name) { return Fits(name, file); });
}

std::vector<std::string> DataFaults(const std::vector<DataRow>& rows,
                                    const std::vector<std::string>& files) {
  std::vector<std::string> faults;
  for (const std::string& file : files) {
    const auto named =
        std::ranges::count_if(rows, [&](const DataRow& row) { return Names(row, file); });
    if (named != 1) faults.push_back(file + (named == 0 ? ": no row" : ": more than one row"));
  }
  for (const DataRow& row : rows) {
    for (const std::string& name : row.files) {
      if (std::ranges::none_of(files, [&](const std::string& file) { return Fits(name, file); }))
        faults.push_back(name + ": no such file");
      if (row.generator.empty()) faults.push_back(name + ": no generator");
      if (row.version.empty()) faults.push_back(name + ": no version");
    }
  }
  return faults;
}

}  // namespace house
