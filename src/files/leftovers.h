#pragma once

#include <string>

// The files that a save writes beside the file that they are to replace.
namespace files {

// The name of the numbered file of this process: ".valkorin-1234-0.tmp".
std::string TemporaryName(int number);

// Removes from `folder` what processes that were killed in a save have left behind. Those of living
// processes stay.
void RemoveLeftovers(const std::string& folder);

}  // namespace files
