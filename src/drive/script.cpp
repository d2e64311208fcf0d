#include "drive/script.h"

#include "drive/text.h"

namespace drive {

std::string_view WithoutComment(std::string_view line) {
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool wordStart = i == 0 || line[i - 1] == ' ' || line[i - 1] == '\t';
    if (quoted && line[i] == '\\') {
      ++i;
    } else if (line[i] == '"' && (quoted || wordStart)) {
      quoted = !quoted;
    } else if (line[i] == '#' && !quoted && wordStart) {
      return line.substr(0, i);
    }
  }
  return line;
}

std::optional<Command> Script::Next() {
  for (std::string text; std::getline(in_, text);) {
    ++line_;
    if (!text.empty() && text.back() == '\r') text.pop_back();
    std::string rest(TrimBlanks(WithoutComment(text)));
    if (rest.empty()) continue;
    Command command{line_, TakeWord(rest), {}};
    command.rest = std::move(rest);
    return command;
  }
  return std::nullopt;
}

}  // namespace drive
