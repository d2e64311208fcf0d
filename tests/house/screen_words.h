#pragma once

#include <string>
#include <vector>

#include "tests/house/source_tree.h"

namespace house {

// One line for each string literal of a C++ file that holds two words beside each other: such a
// text is for a reader, and belongs to the catalogue module. Includes and comments do not count.
std::vector<std::string> WordFaults(const SourceFile& file);

}  // namespace house
