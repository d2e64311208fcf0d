#pragma once

#include <string>
#include <vector>

#include "output/form_page.h"
#include "screen/control.h"

namespace output {

// A table as it is printed: all its rows, whether they are in sight or not.
struct PrintedTable {
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

PrintedTable TableOf(const screen::Grid& grid);

// The table on as many pages as it takes, each with the header above its rows and with its number.
std::vector<drawing::DrawingRecord> GridPages(const PrintedTable& table, const std::string& title,
                                              const Foot& foot, screen::Extent paper);

}  // namespace output
