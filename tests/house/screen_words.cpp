#include "tests/house/screen_words.h"

#include <algorithm>
#include <regex>

namespace house {
namespace {

// Behind the literal that begins at `at`.
std::size_t EndOf(const std::string& line, std::size_t at) {
  const char quote = line[at];
  for (++at; at < line.size() && line[at] != quote; ++at)
    if (line[at] == '\\') ++at;
  return std::min(at + 1, line.size());
}

// The text literals of a line, of which `code` has all literals and comments blanked.
std::vector<std::string> LiteralsOf(const std::string& line, const std::string& code) {
  std::vector<std::string> literals;
  std::size_t at = 0;
  while (at < line.size()) {
    const std::string next = line.substr(at, 2);
    const bool blanked = code[at] == ' ';
    if (blanked && (next == "//" || next == "/*")) break;
    if (!blanked || (line[at] != '"' && line[at] != '\'')) {
      ++at;
      continue;
    }
    const std::size_t end = EndOf(line, at);
    if (line[at] == '"') literals.push_back(line.substr(at, end - at));
    at = end;
  }
  return literals;
}

}  // namespace

std::vector<std::string> WordFaults(const SourceFile& file) {
  static const std::regex words(R"([A-Za-z]{2}[,.:;!?]? +[A-Za-z]{2})");
  static const std::regex include(R"( *# *include.*)");
  std::vector<std::string> faults;
  const std::vector<std::string> lines = Lines(file.text);
  const std::vector<std::string> code = Lines(CodeOnly(file.text));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (std::regex_match(lines[i], include)) continue;
    for (const std::string& literal : LiteralsOf(lines[i], code[i]))
      if (std::regex_search(literal, words))
        faults.push_back(file.path + ":" + std::to_string(i + 1) + ": " + literal);
  }
  return faults;
}

}  // namespace house
