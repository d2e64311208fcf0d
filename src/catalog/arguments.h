#pragma once

#include <initializer_list>
#include <string>

// `text` with its marks {0}, {1} replaced by the arguments in their order.
std::string WithArguments(std::string text, std::initializer_list<std::string> arguments);
