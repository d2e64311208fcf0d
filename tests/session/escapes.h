#pragma once

#include <string>

// The text that a table writes with escapes: \t, \\, \xNN (one byte) and \uNNNN (UTF-8).
std::string Unescaped(const std::string& text);
