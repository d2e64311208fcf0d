#include "tests/house/glossary.h"

#include <regex>

namespace house {
namespace {

// "RM_2" keeps its number, which is half of a formula.
std::string WithoutNumber(const std::string& name) {
  static const std::regex number(R"((\(\d+\))?$|([^_\d])\d+$)");
  return std::regex_replace(name, number, "$2");
}

std::string WithoutEnding(const std::string& name, const Glossary& glossary) {
  for (const std::string& ending : glossary.endings)
    if (name.ends_with(ending)) return name.substr(0, name.size() - ending.size());
  return name;
}

std::string WithoutBeginning(const std::string& name, const Glossary& glossary) {
  for (const std::string& beginning : glossary.beginnings)
    if (name.starts_with(beginning)) return name.substr(beginning.size());
  return name;
}

void Add(const std::string& name, Glossary& glossary) {
  if (name.starts_with('-'))
    glossary.endings.insert(name.substr(1));
  else if (name.ends_with('-'))
    glossary.beginnings.insert(name.substr(0, name.size() - 1));
  else
    glossary.words.insert(name);
}

}  // namespace

Glossary ReadGlossary(const std::string& page) {
  static const std::regex quoted("`([^`]+)`");
  Glossary glossary;
  for (const std::string& line : Lines(page)) {
    if (!line.starts_with('|')) continue;
    const std::string names = line.substr(0, line.find('|', 1));
    for (std::sregex_iterator at(names.begin(), names.end(), quoted), end; at != end; ++at)
      Add((*at)[1], glossary);
  }
  return glossary;
}

std::vector<std::string> ControlNames(const SourceFile& header) {
  static const std::regex control(R"re(\{\*this,\s*(?:screen::Kind::\w+,\s*)?"([^"]+)"\})re");
  std::vector<std::string> names;
  const std::string& text = header.text;
  for (std::sregex_iterator at(text.begin(), text.end(), control), end; at != end; ++at)
    names.push_back((*at)[1]);
  return names;
}

std::string Word(const std::string& control, const Glossary& glossary) {
  const std::string name = WithoutNumber(WithoutNumber(control));
  return WithoutNumber(WithoutBeginning(WithoutEnding(name, glossary), glossary));
}

}  // namespace house
