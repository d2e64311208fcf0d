#pragma once

#include <string>

namespace output {

// The log that belongs to a series: its name up to the first point of the whole path, with LOG
// behind it; a name without a point is trimmed and gets ".LOG".
std::string LogNameOf(const std::string& name);

// The caption of the menu item that appends to the log: the name without its last four characters
// and ".LOG". It agrees with the log's name for a plain path with an ending of three letters only.
std::string LogCaption(const std::string& name);

// The log's name with the folders that lead to it, as a user finds it.
std::string WholePath(const std::string& name);

}  // namespace output
