#pragma once

#include <string>
#include <string_view>

namespace files {

// Writes `bytes` beside the file first and then renames them over it, so that the old file survives
// a failure, also a crash of the system. Returns false, with nothing changed, on any failure.
//
// A link stays a link: the file behind it is written. What is no regular file (a folder, a pipe, a
// device, links in a ring) and a write-protected file are refused. A replaced file keeps its
// rights, and its owner and group as far as the system lets the user give them.
bool WriteSafely(const std::string& path, std::string_view bytes);

}  // namespace files
