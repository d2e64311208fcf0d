#include "tests/house/source_tree.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace house {
namespace {

namespace fs = std::filesystem;

bool Skipped(const fs::path& folder) {
  const std::string name = folder.filename().string();
  return name.starts_with('.') || name.starts_with("build");
}

bool Wanted(const fs::path& file) {
  return file.extension() == ".cpp" || file.extension() == ".h" ||
         file.filename() == "CMakeLists.txt";
}

// Blanks everything from `at` to the end of the literal that begins there.
std::size_t BlankLiteral(std::string& text, std::size_t at) {
  const char quote = text[at];
  text[at] = ' ';
  for (++at; at < text.size() && text[at] != quote && text[at] != '\n'; ++at) {
    if (text[at] == '\\' && at + 1 < text.size()) text[at++] = ' ';
    text[at] = ' ';
  }
  if (at < text.size() && text[at] == quote) text[at] = ' ';
  return at;
}

// Blanks everything from `at` up to `end`, the line ends apart.
std::size_t BlankTo(std::string& text, std::size_t at, std::size_t end) {
  if (end > text.size()) end = text.size();
  for (; at < end; ++at)
    if (text[at] != '\n') text[at] = ' ';
  return at;
}

// Where the raw literal ends whose quote stands at `at`.
std::size_t RawEnd(const std::string& text, std::size_t at) {
  const std::size_t open = text.find('(', at);
  if (open == std::string::npos) return text.size();
  const std::string close = ')' + text.substr(at + 1, open - at - 1) + '"';
  const std::size_t end = text.find(close, open);
  return end == std::string::npos ? text.size() : end + close.size();
}

bool StartsAt(const std::string& text, std::size_t at, const char* what) {
  return text.compare(at, 2, what) == 0;
}

// A quote behind a digit or a letter separates digits: 10'000.
bool BeginsLiteral(const std::string& text, std::size_t at) {
  if (text[at] != '\'') return text[at] == '"';
  return at == 0 || !std::isalnum(static_cast<unsigned char>(text[at - 1]));
}

std::size_t Behind(std::size_t found, std::size_t length, const std::string& text) {
  return found == std::string::npos ? text.size() : found + length;
}

}  // namespace

std::string SourceFile::Folder() const {
  const std::size_t begin = path.starts_with("src/") ? 4 : 0;
  return path.substr(begin, path.find('/', begin) - begin);
}

std::string ReadText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<SourceFile> ReadTree(const std::string& root) {
  std::vector<SourceFile> files;
  fs::recursive_directory_iterator walk(root);
  for (; walk != fs::recursive_directory_iterator(); ++walk) {
    if (walk->is_directory() && Skipped(walk->path())) walk.disable_recursion_pending();
    if (!walk->is_regular_file() || !Wanted(walk->path())) continue;
    files.push_back(
        {fs::relative(walk->path(), root).generic_string(), ReadText(walk->path().string())});
  }
  return files;
}

bool IsCpp(const SourceFile& file) { return !IsCMake(file); }
bool IsCMake(const SourceFile& file) { return file.path.ends_with("CMakeLists.txt"); }

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = text.find('\n', begin);
    lines.push_back(text.substr(begin, end - begin));
    begin = Behind(end, 1, text);
  }
  return lines;
}

std::string CodeOnly(const std::string& source) {
  std::string text = source;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (StartsAt(text, at, "//"))
      at = BlankTo(text, at, text.find('\n', at));
    else if (StartsAt(text, at, "/*"))
      at = BlankTo(text, at, Behind(text.find("*/", at + 2), 2, text)) - 1;
    else if (StartsAt(text, at, "R\""))
      at = BlankTo(text, at, RawEnd(text, at + 1)) - 1;
    else if (BeginsLiteral(text, at))
      at = BlankLiteral(text, at);
  }
  return text;
}

}  // namespace house
