#include "tools/accuracy/numbers.h"

#include <charconv>

namespace accuracy {

std::string NumberText(double value) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

std::optional<double> NumberIn(const std::string& text) {
  double value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last) return std::nullopt;
  return value;
}

}  // namespace accuracy
