#pragma once

#include <string>
#include <vector>

// The files of the tree, as texts that a check can read.
namespace house {

struct SourceFile {
  std::string path;  // from the root of the tree, "src/limits/steps.cpp"
  std::string text;
  // The first part of the path below src/, "limits", or of the path itself, "tests".
  std::string Folder() const;
};

// All C++ files and CMakeLists.txt of the tree, without build directories and hidden folders.
std::vector<SourceFile> ReadTree(const std::string& root);

std::string ReadText(const std::string& path);

bool IsCpp(const SourceFile& file);
bool IsCMake(const SourceFile& file);

std::vector<std::string> Lines(const std::string& text);

// `text` with its comments, string and character literals blanked; lines keep their numbers.
std::string CodeOnly(const std::string& text);

}  // namespace house
