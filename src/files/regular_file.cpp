#include "files/regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace files {

RegularFile::RegularFile(const std::string& path)
    : handle_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)) {
  struct stat about {};
  failed_ = handle_ < 0 || ::fstat(handle_, &about) != 0 || !S_ISREG(about.st_mode);
}

RegularFile::~RegularFile() {
  if (handle_ >= 0) ::close(handle_);
}

std::size_t RegularFile::Read(char* buffer, std::size_t size) {
  if (failed_) return 0;
  ssize_t got = 0;
  do {
    got = ::read(handle_, buffer, size);
  } while (got < 0 && errno == EINTR);
  failed_ = got < 0;
  return failed_ ? 0 : static_cast<std::size_t>(got);
}

std::string ReadUpTo(const std::string& path, std::size_t most) {
  RegularFile file(path);
  std::string bytes;
  std::array<char, 65536> buffer{};
  while (bytes.size() < most) {
    const std::size_t got = file.Read(buffer.data(), std::min(buffer.size(), most - bytes.size()));
    if (got == 0) break;
    bytes.append(buffer.data(), got);
  }
  return file.Failed() ? std::string() : bytes;
}

}  // namespace files
