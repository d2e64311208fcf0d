#pragma once

#include <array>
#include <streambuf>

namespace drive {

// The standard input, for a script that another process writes line by line: while the next one is
// not there yet the window lives, so that the other process can look at it and press its keys.
class LiveInput : public std::streambuf {
 protected:
  int_type underflow() override;

 private:
  std::array<char, 4096> read_{};
};

}  // namespace drive
