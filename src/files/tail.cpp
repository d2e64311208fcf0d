#include "files/tail.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace files {
namespace {

// A pipe or a device is refused: it could keep the program waiting for ever.
int OpenRegular(const std::string& path) {
  const int handle = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  struct stat about {};
  if (handle >= 0 && ::fstat(handle, &about) == 0 && S_ISREG(about.st_mode)) return handle;
  if (handle >= 0) ::close(handle);
  return -1;
}

// The bytes from `begin` on, at most as many as `bytes` has room for. What is appended meanwhile
// is left to the next reading.
bool ReadFrom(int handle, off_t begin, std::string& bytes) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = ::pread(handle, bytes.data() + filled, bytes.size() - filled,
                                begin + static_cast<off_t>(filled));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return true;
}

}  // namespace

std::optional<Tail> ReadTail(const std::string& path, std::size_t most) {
  const int handle = OpenRegular(path);
  if (handle < 0) return std::nullopt;
  const off_t size = ::lseek(handle, 0, SEEK_END);
  Tail tail;
  tail.whole = size <= static_cast<off_t>(most);
  const off_t begin = tail.whole ? 0 : size - static_cast<off_t>(most);
  tail.bytes.resize(static_cast<std::size_t>(size - begin));
  const bool read = size >= 0 && ReadFrom(handle, begin, tail.bytes);
  ::close(handle);
  if (!read) return std::nullopt;
  const std::size_t line = tail.bytes.find('\n');
  if (!tail.whole && line != std::string::npos) tail.bytes.erase(0, line + 1);
  return tail;
}

}  // namespace files
