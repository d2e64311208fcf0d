#pragma once

#include <string>
#include <vector>

namespace screen {

// The letter behind the & of a caption, in lower case; 0 where it has no access key. Two & are one
// that is shown.
char AccessKeyOf(const std::string& caption);

// Captions that can be seen together, such that no two answer the same key: the first one keeps its
// letter, a later one with the same takes its first letter that nothing else answers. One that has
// no such letter is left without.
std::vector<std::string> WithOwnKeys(std::vector<std::string> captions);

}  // namespace screen
