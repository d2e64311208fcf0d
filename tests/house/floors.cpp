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

// A valkorin_library(...) of a CMakeLists.txt.
struct Call {
  std::string library;
  std::string arguments;
  // What stands behind `list`, up to the next list.
  std::set<std::string> Words(const std::string& list) const {
    static const std::regex word(R"(([\w./${}]+))");
    std::set<std::string> words;
    bool in = false;
    for (const std::string& each : AllMatches(arguments, word)) {
      if (each == "SOURCES" || each == "HEADERS" || each == "USES")
        in = each == list;
      else if (in)
        words.insert(each);
    }
    return words;
  }
};

std::vector<Call> CallsOf(const std::string& cmake) {
  static const std::regex call(R"(valkorin_library\(\s*(\w+)([^)]*)\))");
  std::vector<Call> calls;
  for (std::sregex_iterator at(cmake.begin(), cmake.end(), call), end; at != end; ++at)
    calls.push_back({(*at)[1], (*at)[2]});
  return calls;
}

std::string WithoutEnding(const std::string& path) { return path.substr(0, path.rfind('.')); }

bool HasWindows(const SourceFile& file) {
  for (const char* folder : {"src/ui/", "src/drive/", "bench/", "tests/window/", "tests/walks/"})
    if (file.path.starts_with(folder)) return true;
  // The root looks for the toolkit on behalf of these folders.
  return file.path == "CMakeLists.txt";
}

}  // namespace

Floors ReadFloors(const std::string& page) {
  static const std::regex row(R"(^\|[^|]*\|\s*`([a-z]+)/`( screens)?\s*\|[^|]*\|([^|]*)\|\s*$)");
  static const std::regex name("`([a-z_]+)`");
  Floors floors;
  for (const std::string& line : Lines(page)) {
    std::smatch cells;
    if (!std::regex_match(line, cells, row)) continue;
    const std::vector<std::string> used = AllMatches(cells[3], name);
    floors[cells[1].str() + (cells[2].matched ? "_screen" : "")] = {used.begin(), used.end()};
  }
  return floors;
}

Floors LinkedLibraries(const std::string& cmake) {
  Floors linked;
  for (const Call& call : CallsOf(cmake)) linked[call.library] = call.Words("USES");
  return linked;
}

Libraries::Libraries(const std::vector<SourceFile>& tree) {
  for (const SourceFile& file : tree) {
    if (!IsCMake(file)) continue;
    for (const Call& call : CallsOf(file.text)) {
      of_[file.Folder()].insert(call.library);
      for (const char* list : {"SOURCES", "HEADERS"})
        for (const std::string& source : call.Words(list))
          listed_[WithoutEnding(file.Folder() + "/" + source)] = call.library;
    }
  }
}

std::string Libraries::Of(const std::string& path) const {
  if (const auto at = listed_.find(WithoutEnding(path)); at != listed_.end()) return at->second;
  const std::string folder = path.substr(0, path.find('/'));
  const auto at = of_.find(folder);
  if (at == of_.end()) return folder;
  return at->second.size() == 1 ? *at->second.begin() : "";
}

std::vector<std::string> IncludeFaults(const SourceFile& file, const Libraries& libraries,
                                       const Floors& floors) {
  static const std::regex include(R"re(^\s*#\s*include\s*"([^"]*)".*$)re");
  if (!IsCpp(file) || !file.path.starts_with("src/")) return {};
  const std::string own = libraries.Of(file.path.substr(4));
  const auto floor = floors.find(own);
  if (floor == floors.end()) return {file.path + ": belongs to no library of the table"};
  std::vector<std::string> faults;
  const std::vector<std::string> lines = Lines(file.text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::smatch match;
    if (!std::regex_match(lines[i], match, include)) continue;
    const std::string header = match[1];
    const std::string used = libraries.Of(header);
    // Generated from the .ui files, these lie in no folder of the tree.
    const bool generated = header.starts_with("ui_") && own == "ui";
    if (generated || used == own || floor->second.contains(used)) continue;
    faults.push_back(Where(file, i) + own + " may not include " + header);
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
