#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace files {

// What a file holds, in short: two marks differ when the contents do. Who has written it, and when,
// is no part of it, so that a copied or touched file counts as the same.
struct FileMark {
  std::uint64_t size = 0;
  std::uint64_t sum = 0;     // of the first mebibytes
  std::int64_t changed = 0;  // moment of the last change in nanoseconds, of a longer file only
  bool operator==(const FileMark&) const = default;
};

// Nothing when there is no readable regular file of that name.
std::optional<FileMark> MarkOf(const std::string& path);

// The mark that a file of these bytes has; they are not longer than 4 MiB.
FileMark MarkOfBytes(std::string_view bytes);

}  // namespace files
