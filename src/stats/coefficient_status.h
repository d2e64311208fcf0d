#pragma once

#include <array>
#include <string>

// Whether the coefficient files that were loaded are those that the program is delivered with.
namespace StatFWinBAS {

enum class FileState {
  NotLoaded,  // before LoadCoefficients
  Delivered,  // the constants of the delivered file
  Different,  // complete, and used, but with other constants
  Short,      // fewer numbers than it should hold
  Missing     // no such file in any of the folders
};

struct CoefficientFile {
  std::string name;  // "VALKORIN.COF"
  std::string path;  // where it was read; of a missing file, where it was looked for first
  FileState state = FileState::NotLoaded;
  int numbers = 0;  // that were read
  int wanted = 0;   // that it should hold
};

// The main file, then that of Royston's algorithm.
const std::array<CoefficientFile, 2>& CoefficientStatus();

// What a user must know of them, a sentence a file with `separator` between; empty when both are
// the delivered ones.
std::string CoefficientWarning(const std::string& separator);

}  // namespace StatFWinBAS
