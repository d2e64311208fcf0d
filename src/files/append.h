#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace files {

enum class Appended {
  Done,
  NoFolder,     // the file's folder does not exist
  IsFolder,     // there is a folder of that name
  NoFile,       // a pipe, a device or a socket
  NotAllowed,   // file or folder may not be written
  NameTooLong,  // for the system
  NotOpened,    // for another reason
  InUse,        // another process has held the file all the time
  NotWritten    // the disk is full, or the file would be larger than it may be
};

// Whether the file could not even be opened.
bool RefusesToOpen(Appended outcome);

// Appends `bytes` to a regular file, which is created where there is none: all of them in one
// piece, on the disk when this returns, or nothing. Other processes that append by this routine
// wait for each other; it gives up after `patience`. A link stays a link: the file behind it grows.
Appended AppendWhole(const std::string& path, std::string_view bytes,
                     std::chrono::milliseconds patience);

// Whether both names lead to the same file; false where one of them leads to none.
bool SameFile(const std::string& one, const std::string& other);

// Whether `path` leads to the file that holds the series, or would make it anew where it was
// removed. `series` is empty where no file holds it.
bool IsSeriesFile(const std::string& path, const std::string& series);

}  // namespace files
