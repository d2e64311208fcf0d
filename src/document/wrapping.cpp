#include "document/wrapping.h"

#include "drawing/font.h"

namespace document {
namespace {

// One line's words, put into lines.
class Wrapper {
 public:
  Wrapper(double width, const Ink& ink, std::vector<std::string>& lines)
      : width_(width), ink_(ink), lines_(lines) {}

  void Put(const std::string& word) {
    const std::string longer = line_.empty() ? word : line_ + " " + word;
    if (Fits(longer)) {
      line_ = longer;
      return;
    }
    if (!line_.empty()) End();
    if (Fits(word))
      line_ = word;
    else
      Break(word);
  }
  void End() {
    lines_.push_back(line_);
    line_.clear();
  }

 private:
  bool Fits(const std::string& text) const {
    return drawing::LineWidth(text, ink_.size, ink_.bold) <= width_;
  }
  // At least one letter a line, however narrow it is.
  void Break(const std::string& word) {
    for (const char32_t letter : drawing::Letters(word)) {
      const std::string next = Utf8(letter);
      if (!line_.empty() && !Fits(line_ + next)) End();
      line_ += next;
    }
  }

  double width_;
  Ink ink_;
  std::vector<std::string>& lines_;
  std::string line_;
};

}  // namespace

std::string Utf8(char32_t letter) {
  const auto byte = [](char32_t bits) {
    return static_cast<char>(static_cast<unsigned char>(bits));
  };
  const auto behind = [&](int shift) { return byte(0x80 | ((letter >> shift) & 0x3F)); };
  if (letter < 0x80) return {byte(letter)};
  if (letter < 0x800) return {byte(0xC0 | (letter >> 6)), behind(0)};
  if (letter < 0x10000) return {byte(0xE0 | (letter >> 12)), behind(6), behind(0)};
  return {byte(0xF0 | (letter >> 18)), behind(12), behind(6), behind(0)};
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
    if (text[i] == '\r' || text[i] == '\n')
      lines.emplace_back();
    else
      lines.back() += text[i];
  }
  return lines;
}

std::vector<std::string> WrappedLines(const std::string& text, double width, const Ink& ink) {
  std::vector<std::string> lines;
  for (const std::string& line : LinesOf(text)) {
    Wrapper wrapper(width, ink, lines);
    std::size_t begin = 0;
    while (begin <= line.size()) {
      const std::size_t end = std::min(line.find(' ', begin), line.size());
      if (end > begin) wrapper.Put(line.substr(begin, end - begin));
      begin = end + 1;
    }
    wrapper.End();
  }
  return lines;
}

}  // namespace document
