#include "tests/house/floors.h"

#include <regex>

namespace house {
namespace {

std::vector<std::string> AllMatches(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

std::string Where(const SourceFile& file, std::size_t line) {
  return file.path + ":" + std::to_string(line + 1) + ": ";
}

bool HasWindows(const SourceFile& file) {
  for (const char* folder : {"src/ui/", "src/drive/", "bench/", "tests/window/"})
    if (file.path.starts_with(folder)) return true;
  // The root looks for the toolkit on behalf of these folders.
  return file.path == "CMakeLists.txt";
}

}  // namespace

Floors ReadFloors(const std::string& page) {
  static const std::regex row(R"(^\|[^|]*\|\s*`([a-z]+)/`\s*\|[^|]*\|([^|]*)\|\s*$)");
  static const std::regex name("`([a-z]+)`");
  Floors floors;
  for (const std::string& line : Lines(page)) {
    std::smatch cells;
    if (!std::regex_match(line, cells, row)) continue;
    const std::vector<std::string> used = AllMatches(cells[2], name);
    floors[cells[1]] = {used.begin(), used.end()};
  }
  return floors;
}

Floors LinkedFolders(const std::string& cmake) {
  static const std::regex call(R"(valkorin_library\(\s*(\w+)[^)]*?(?:\bUSES\b([^)]*))?\))");
  static const std::regex name(R"((\w+))");
  Floors linked;
  for (std::sregex_iterator at(cmake.begin(), cmake.end(), call), end; at != end; ++at) {
    const std::vector<std::string> used = AllMatches((*at)[2], name);
    linked[(*at)[1]] = {used.begin(), used.end()};
  }
  return linked;
}

std::vector<std::string> IncludeFaults(const SourceFile& file, const Floors& floors) {
  static const std::regex include(R"re(^\s*#\s*include\s*"([^"]*)".*$)re");
  std::vector<std::string> faults;
  const auto floor = floors.find(file.Folder());
  if (!IsCpp(file) || floor == floors.end()) return faults;
  const std::vector<std::string> lines = Lines(file.text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::smatch match;
    if (!std::regex_match(lines[i], match, include)) continue;
    const std::string header = match[1];
    const std::string used = header.substr(0, header.find('/'));
    // Generated from the .ui files, these lie in no folder of the tree.
    const bool generated = header.starts_with("ui_") && file.Folder() == "ui";
    if (generated || used == floor->first || floor->second.contains(used)) continue;
    faults.push_back(Where(file, i) + floor->first + "/ may not include " + header);
  }
  return faults;
}

std::vector<std::string> ToolkitFaults(const SourceFile& file) {
  static const std::regex include(R"(^\s*#\s*include\s*[<"](Qt?[A-Z]|q[a-z]+\.h|ui_|moc_).*$)");
  static const std::regex link(R"(.*(Qt6|AUTOMOC|AUTOUIC).*)");
  std::vector<std::string> faults;
  if (HasWindows(file)) return faults;
  const std::vector<std::string> lines = Lines(file.text);
  for (std::size_t i = 0; i < lines.size(); ++i)
    if (std::regex_match(lines[i], IsCMake(file) ? link : include))
      faults.push_back(Where(file, i) + "the window toolkit outside its folders: " + lines[i]);
  return faults;
}

}  // namespace house
