#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/house/source_tree.h"

// Which library may use which: the table of docs/architecture.md against what the files include
// and the targets link.
namespace house {

// Library to the libraries it may use.
using Floors = std::map<std::string, std::set<std::string>>;

// The rows `| floor | `folder/` | what | `used` `used` |` of the page. The row of "`folder/`
// screens" is that of folder_screen.
Floors ReadFloors(const std::string& page);

// The libraries of each valkorin_library(... USES ...) in the text.
Floors LinkedLibraries(const std::string& cmake);

// Which library a file belongs to.
class Libraries {
 public:
  // From the SOURCES and HEADERS in the CMakeLists.txt of the tree.
  explicit Libraries(const std::vector<SourceFile>& tree);

  // Of a path below src/, "limits/steps.h": the library that lists it or, of a header, the source
  // of its name; in a folder with one library, or none, that of the folder. Empty when nothing of a
  // folder with several libraries lists it.
  std::string Of(const std::string& path) const;

 private:
  std::map<std::string, std::string> listed_;        // by path without its ending
  std::map<std::string, std::set<std::string>> of_;  // by folder
};

// One line for each include of a library that the table does not allow.
std::vector<std::string> IncludeFaults(const SourceFile& file, const Libraries& libraries,
                                       const Floors& floors);

// One line for each include or link of the window toolkit outside the folders that have windows.
std::vector<std::string> ToolkitFaults(const SourceFile& file);

}  // namespace house
