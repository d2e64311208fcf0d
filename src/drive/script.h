#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace drive {

struct Command {
  int line = 0;  // 1-based
  std::string name;
  std::string rest;  // what stands behind the name, without blanks at its ends
};

// `line` without the comment that it may end with: a # at its start or behind a blank, outside
// quotes.
std::string_view WithoutComment(std::string_view line);

// The commands of a script, one a line; empty lines and comments are passed over.
class Script {
 public:
  explicit Script(std::istream& in) : in_(in) {}
  std::optional<Command> Next();

 private:
  std::istream& in_;
  int line_ = 0;
};

}  // namespace drive
