#pragma once

#include <string>
#include <vector>

#include "tests/house/source_tree.h"

namespace house {

// One line for each call that reads or writes numbers by the process locale. The window toolkit
// sets that locale to the user's: such a call would then take and show decimal commas.
std::vector<std::string> LocaleFaults(const SourceFile& file);

}  // namespace house
