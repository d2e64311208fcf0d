#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "files/file_mark.h"
#include "session/exposure_session.h"

// Raw data files (*.vkr): plain text, one outcome a line.
namespace rawdata {

// How a file's lines were understood, for the line under the grid, and what it held.
struct ReadingNotes {
  std::vector<int> trailingText;   // lines that carried text behind the number
  std::vector<int> commaAndPoint;  // lines that held both comma and point
  std::optional<files::FileMark> mark;
};

// A longer file is refused: two thousand outcomes need a hundredth of it.
inline constexpr std::uint64_t kLargestFile = std::uint64_t{64} << 20U;

// The outcome of the first pass.
struct FileCheck {
  bool readable = true;     // false: not a readable file, a read error, or too large
  bool tooLarge = false;    // longer than kLargestFile, with fewer than 2001 lines in it
  int count = 0;            // lines met, the refused one included
  int messageId = 0;        // 915, 920, 925, or 0 when the file can be loaded
  int refusedLine = 0;      // 1-based; 0 when none was refused
  std::string refusedText;  // what stands there, at most 40 characters, printable
  std::uint64_t bytesRead = 0;
};

// Reads the file once in bounded memory and checks every line. Behind line 2001 only a line that is
// no outcome can change the answer: the pass ends 4 MiB later with what it knows.
FileCheck CheckFile(const std::string& path);

// The outcomes of the file in the order of its lines. `ok` is false after a read error, or when
// the file no longer has `count` lines.
struct FileValues {
  bool ok = false;
  std::vector<double> values;  // index 0 is the first line
  ReadingNotes notes;
};
FileValues ReadFile(const std::string& path, int count);

// What a file of these outcomes holds: values[0..] one a line, with CR LF.
std::string FileBytes(const std::vector<double>& values);

// Writes them by files::WriteSafely. Returns false, with nothing changed, on any failure.
bool WriteFile(const std::string& path, const std::vector<double>& values);

// Why a typed or pasted text is no outcome: catalogue id 920, or 0 when it is one in
// 1E-10 to 1E+10.
int RefusalOf(double value);

// Sorts c(1) to c(count) ascending unless `order` says they are; sets `order` (not for two).
void SortValues(int count, std::vector<double>& c, std::string& order);

}  // namespace rawdata
