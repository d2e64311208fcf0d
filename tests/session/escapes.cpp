#include "tests/session/escapes.h"

#include <charconv>
#include <stdexcept>

namespace {

unsigned Hex(const std::string& text, std::size_t at, std::size_t count) {
  unsigned value = 0;
  const char* first = text.data() + at;
  const auto [end, error] = std::from_chars(first, first + count, value, 16);
  if (error != std::errc() || end != first + count) throw std::invalid_argument("escape: " + text);
  return value;
}

void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
    return;
  }
  if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
  } else {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
  }
  out += static_cast<char>(0x80 | (code & 0x3F));
}

}  // namespace

std::string Unescaped(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (text[i] != '\\') {
      out += text[i];
    } else if (next == 'x') {
      out += static_cast<char>(Hex(text, i + 2, 2));
      i += 3;
    } else if (next == 'u') {
      AppendUtf8(out, Hex(text, i + 2, 4));
      i += 5;
    } else {
      out += next == 't' ? '\t' : next == 'n' ? '\n' : next == 'r' ? '\r' : next;
      ++i;
    }
  }
  return out;
}
