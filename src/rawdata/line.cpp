#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "rawdata/line_reader.h"
#include "session/global_bas.h"

// What one line of a raw file holds.
namespace rawdata {
namespace {

constexpr std::size_t kShownCharacters = 40;

// Where the parts of a number at the start of a text end.
class NumberShape {
 public:
  explicit NumberShape(std::string_view text) : text_(text) {
    while (Here() == ' ' || Here() == '\t') ++at_;
    if (Here() == '+' || Here() == '-') ++at_;
    Digits();
    if (Here() == '.') {
      hasPoint_ = true;
      ++at_;
      Digits();
    }
    mantissaEnd_ = at_;
    Exponent();
  }

  bool HasPoint() const { return hasPoint_; }
  char BehindMantissa() const { return mantissaEnd_ < text_.size() ? text_[mantissaEnd_] : ' '; }
  std::string_view Behind() const { return hasDigit_ ? text_.substr(at_) : text_; }

 private:
  char Here() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  static bool IsDigit(char c) { return c >= '0' && c <= '9'; }

  void Digits() {
    for (; IsDigit(Here()); ++at_) hasDigit_ = true;
  }

  void Exponent() {
    if (!hasDigit_ || std::string_view("EeDd").find(Here()) == std::string_view::npos) return;
    std::size_t digit = at_ + 1;
    if (digit < text_.size() && (text_[digit] == '+' || text_[digit] == '-')) ++digit;
    if (digit >= text_.size() || !IsDigit(text_[digit])) return;
    at_ = digit;
    Digits();
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t mantissaEnd_ = 0;
  bool hasPoint_ = false;
  bool hasDigit_ = false;
};

// The length of the UTF-8 character at `at`, its code point in `code`; 0 for bytes that are none.
std::size_t Utf8Length(std::string_view text, std::size_t at, std::uint32_t& code) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0x80                    ? 1
                             : lead >= 0xC2 && lead < 0xE0  ? 2
                             : lead >= 0xE0 && lead < 0xF0  ? 3
                             : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || at + length > text.size()) return 0;
  code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0) != 0x80) return 0;
    code = code << 6 | (next & 0x3FU);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  return overlong || surrogate || code > 0x10FFFF ? 0 : length;
}

// Controls, and the marks that are invisible or turn the direction of a text.
bool IsPrintable(std::uint32_t code) {
  constexpr std::uint32_t hidden[][2] = {{0x00, 0x1F},     {0x7F, 0x9F},       {0xAD, 0xAD},
                                         {0x61C, 0x61C},   {0x200B, 0x200F},   {0x2028, 0x202E},
                                         {0x2060, 0x206F}, {0xE000, 0xF8FF},   {0xFEFF, 0xFEFF},
                                         {0xFFF0, 0xFFFF}, {0xE0000, 0x10FFFF}};
  for (const auto& range : hidden)
    if (code >= range[0] && code <= range[1]) return false;
  return true;
}

}  // namespace

double NumberOf(const Line& line) {
  if (line.digitsCut || line.numberCut) {
    const std::string text = GlobalBAS::NormalizeDecimal(line.text);
    const NumberShape shape(text);
    const char behind = shape.BehindMantissa();
    const bool openEnd =
        behind == ' ' || std::string_view("EeDd").find(behind) != std::string::npos;
    const bool fraction = behind == ' ' && shape.HasPoint() && !line.numberCut;
    if (openEnd && !fraction) return std::numeric_limits<double>::infinity();
  }
  return GlobalBAS::ReadNumber(line.text);
}

bool HasTrailingText(const Line& line) {
  if (line.textBehind) return true;
  const std::string text = GlobalBAS::Trim(GlobalBAS::NormalizeDecimal(line.text));
  return NumberShape(text).Behind().find_first_not_of(" \t") != std::string_view::npos;
}

bool HasCommaAndPoint(const Line& line) {
  return line.text.find(',') != std::string::npos && line.text.find('.') != std::string::npos;
}

std::string ShownText(const Line& line) {
  std::string shown;
  std::size_t characters = 0;
  const std::size_t last = line.text.find_last_not_of(" \t");
  const std::string_view text(line.text.data(), last == std::string::npos ? 0 : last + 1);
  for (std::size_t at = 0; at < text.size() && characters < kShownCharacters; ++characters) {
    std::uint32_t code = 0;
    const std::size_t length = Utf8Length(text, at, code);
    if (length > 0 && IsPrintable(code))
      shown += text.substr(at, length);
    else
      shown += '?';
    at += length > 0 ? length : 1;
  }
  return shown;
}

}  // namespace rawdata
