#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace files {

// The end of a file.
struct Tail {
  std::string bytes;
  bool whole = true;  // the file holds nothing in front of them
};

// The last `most` bytes of a regular file; where it holds more, from the first line that begins
// within them. Nothing when there is no readable regular file of that name.
std::optional<Tail> ReadTail(const std::string& path, std::size_t most);

}  // namespace files
