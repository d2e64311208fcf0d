#include "output/log_name.h"

#include <filesystem>

#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace output {
namespace {

constexpr int kToNoFile = 62;
constexpr int kToFile = 745;
constexpr int kEnding = 750;

// The last character, with all the bytes that it takes in UTF-8.
void CutCharacter(std::string& text) {
  auto goesOn = [&text] { return (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80; };
  while (!text.empty() && goesOn()) text.pop_back();
  if (!text.empty()) text.pop_back();
}

}  // namespace

std::string LogNameOf(const std::string& name) {
  const std::size_t point = name.find('.');
  if (point == std::string::npos) return GlobalBAS::Trim(name) + ".LOG";
  return name.substr(0, point + 1) + "LOG";
}

std::string LogCaption(const std::string& name) {
  constexpr int kCut = 4;
  if (name.empty()) return LoadResString(kToNoFile);
  std::string kept = name;
  for (int i = 0; i < kCut; ++i) CutCharacter(kept);
  return LoadResString(kToFile) + kept + LoadResString(kEnding);
}

std::string WholePath(const std::string& name) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(name, error);
  return error ? name : whole.string();
}

}  // namespace output
