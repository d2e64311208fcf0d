#pragma once

#include <string>
#include <vector>

namespace house {

// One row of tests/data/README.md: | files | what | generator | version |.
struct DataRow {
  std::vector<std::string> files;  // "series.csv", "raw_files/", "drawings/paper_M.txt"
  std::string generator;
  std::string version;
};

std::vector<DataRow> ReadDataRows(const std::string& page);

// Whether a row names `file`, a path below tests/data: by its own name, by that of its folder, or
// with words of capital letters for what differs ("drawings/paper_M.txt").
bool Names(const DataRow& row, const std::string& file);

// One line for each file that no row or more than one names, for each row that names no file, and
// for each without generator or version.
std::vector<std::string> DataFaults(const std::vector<DataRow>& rows,
                                    const std::vector<std::string>& files);

}  // namespace house
