#include "catalog/arguments.h"

std::string WithArguments(std::string text, std::initializer_list<std::string> arguments) {
  char mark[] = "{0}";
  for (const std::string& argument : arguments) {
    for (std::size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + argument.size()))
      text.replace(at, 3, argument);
    ++mark[1];
  }
  return text;
}
