#pragma once

#include <optional>
#include <string>

namespace accuracy {

// A number in the shortest form that reads back as itself, and back; nothing for another text.
std::string NumberText(double value);
std::optional<double> NumberIn(const std::string& text);

}  // namespace accuracy
