#include "output/record_lines.h"

namespace output {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// Of a character that takes several bytes in UTF-8 the first one counts.
bool BeginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

}  // namespace

RecordLines& RecordLines::At(int column, std::string_view text) {
  if (next_ > column) EndLine();
  if (next_ < column) text_.append(static_cast<std::size_t>(column - next_), ' ');
  next_ = column;
  return Add(text);
}

RecordLines& RecordLines::Add(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (c == '\r' || c == '\n') {
      EndLine();
      continue;
    }
    text_ += c;
    if (BeginsCharacter(c)) ++next_;
  }
  return *this;
}

void RecordLines::EndLine() {
  text_ += kLineEnd;
  next_ = 1;
}

std::string PlainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    // A double & stands for one, and one before a blank for itself.
    const bool mark = caption[i] == '&';
    if (mark && i + 1 < caption.size() && caption[i + 1] != ' ') ++i;
    plain += caption[i];
  }
  plain.erase(plain.find_last_not_of("\r\n") + 1);
  return plain;
}

}  // namespace output
