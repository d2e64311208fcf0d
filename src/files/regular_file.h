#pragma once

#include <cstddef>
#include <string>

namespace files {

// A file open for reading. Anything but a regular file is refused: a pipe or a device could keep
// the program waiting for ever.
class RegularFile {
 public:
  explicit RegularFile(const std::string& path);
  ~RegularFile();
  RegularFile(const RegularFile&) = delete;
  RegularFile& operator=(const RegularFile&) = delete;

  bool Failed() const { return failed_; }

  // The next bytes; 0 at the end and after a read error, which Failed() then tells.
  std::size_t Read(char* buffer, std::size_t size);

 private:
  int handle_;
  bool failed_ = false;
};

// The first `most` bytes of a file; empty when it is no readable regular file.
std::string ReadUpTo(const std::string& path, std::size_t most);

}  // namespace files
