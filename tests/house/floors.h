#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/house/source_tree.h"

// Which folder may use which: the table of docs/architecture.md against what the files include
// and the targets link.
namespace house {

// Folder to the folders it may use.
using Floors = std::map<std::string, std::set<std::string>>;

// The rows `| floor | `folder/` | what | `used` `used` |` of the page.
Floors ReadFloors(const std::string& page);

// The folders of each valkorin_library(... USES ...) in the text.
Floors LinkedFolders(const std::string& cmake);

// One line for each include of a folder that the table does not allow.
std::vector<std::string> IncludeFaults(const SourceFile& file, const Floors& floors);

// One line for each include or link of the window toolkit outside the folders that have windows.
std::vector<std::string> ToolkitFaults(const SourceFile& file);

}  // namespace house
