#include "screen/access_keys.h"

#include <set>

namespace screen {
namespace {

// Letters and digits of ASCII; no catalogue row has its key elsewhere.
bool CanBeKey(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::size_t MarkIn(const std::string& caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (CanBeKey(caption[i + 1])) return i;
    ++i;
  }
  return std::string::npos;
}

void MoveKey(std::string& caption, const std::set<char>& taken) {
  caption.erase(MarkIn(caption), 1);
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (!CanBeKey(caption[i]) || taken.contains(Lower(caption[i]))) continue;
    caption.insert(i, 1, '&');
    return;
  }
}

}  // namespace

char AccessKeyOf(const std::string& caption) {
  const std::size_t mark = MarkIn(caption);
  return mark == std::string::npos ? '\0' : Lower(caption[mark + 1]);
}

std::vector<std::string> WithOwnKeys(std::vector<std::string> captions) {
  std::set<char> taken;
  std::vector<std::string*> later;
  for (std::string& caption : captions) {
    const char key = AccessKeyOf(caption);
    if (key != 0 && !taken.insert(key).second) later.push_back(&caption);
  }
  for (std::string* caption : later) {
    MoveKey(*caption, taken);
    taken.insert(AccessKeyOf(*caption));
  }
  return captions;
}

}  // namespace screen
