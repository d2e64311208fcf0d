#include "files/file_mark.h"

#include <sys/stat.h>

#include "files/regular_file.h"

namespace files {
namespace {

constexpr std::size_t kSummed = std::size_t{4} << 20U;

// FNV-1a, 64 bits.
std::uint64_t SumOf(std::string_view bytes) {
  std::uint64_t sum = 14695981039346656037U;
  for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return sum;
}

}  // namespace

std::optional<FileMark> MarkOf(const std::string& path) {
  struct stat about {};
  if (::stat(path.c_str(), &about) != 0 || !S_ISREG(about.st_mode)) return std::nullopt;
  FileMark mark = MarkOfBytes(ReadUpTo(path, kSummed));
  mark.size = static_cast<std::uint64_t>(about.st_size);
  constexpr std::int64_t kNanosecondsToTheSecond = 1'000'000'000;
  if (mark.size > kSummed)
    mark.changed = about.st_mtim.tv_sec * kNanosecondsToTheSecond + about.st_mtim.tv_nsec;
  return mark;
}

FileMark MarkOfBytes(std::string_view bytes) { return {bytes.size(), SumOf(bytes), 0}; }

}  // namespace files
