#pragma once

#include <string>
#include <vector>

#include "tests/house/source_tree.h"

namespace house {

struct Function {
  std::string name;  // "Record::Change"
  int line = 0;      // of its beginning
  int lines = 0;     // up to its closing brace
};

// The functions of a C++ file, those of its classes among them. A lambda is part of the function
// that it stands in. Reads braces, not the language: a header that ends with a round bracket, as
// clang-format leaves it, opens a function.
std::vector<Function> FunctionsOf(const SourceFile& file);

// How many lines a file has.
int LinesOf(const SourceFile& file);

}  // namespace house
