#pragma once

#include <string>
#include <vector>

namespace document {

// A character in UTF-8.
std::string Utf8(char32_t letter);

// The lines that CR or a line end separates.
std::vector<std::string> LinesOf(const std::string& text);

struct Ink {
  double size = 9;  // in printer's points
  bool bold = false;
};

// `text` in lines no wider than `width` twips: broken at blanks, and a word that is wider, such as
// a long name, within. At least one line.
std::vector<std::string> WrappedLines(const std::string& text, double width, const Ink& ink);

}  // namespace document
