#include <charconv>
#include <limits>
#include <string>
#include <string_view>

#include "session/global_bas.h"

// How a typed text becomes a number.
namespace GlobalBAS {
namespace {

constexpr int kMostRemoved = 3;  // separators of one kind that are taken out

// Deletes the leftmost `separator` in front of position `i`, up to three times.
void RemoveLeft(std::string& text, std::size_t& i, char separator) {
  for (int pass = 0; pass < kMostRemoved; ++pass) {
    const std::size_t at = text.find(separator);
    if (at == std::string::npos || at >= i) return;
    text.erase(at, 1);
    --i;
  }
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }
bool IsExponentLetter(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

// A numeric prefix in the form that from_chars takes, with the place of its first digit that is
// not zero: 10 to the `power`, exponent included.
struct Prefix {
  std::string text;
  bool digits = false;
  bool nonZero = false;
  long power = 0;
};

class PrefixReader {
 public:
  explicit PrefixReader(std::string_view text) : text_(text) {}

  Prefix Read() {
    while (at_ < text_.size() && std::string_view(" \t\r\n").find(Here()) != std::string_view::npos)
      ++at_;
    if (IsSign(Here())) {
      if (Here() == '-') prefix_.text += '-';
      ++at_;
    }
    ReadMantissa();
    if (prefix_.digits) ReadExponent();
    return prefix_;
  }

 private:
  char Here() const { return at_ < text_.size() ? text_[at_] : '\0'; }

  void ReadMantissa() {
    bool point = false;
    long whole = 0;   // digits in front of the point, from the first that is not zero on
    long behind = 0;  // zeros behind the point in front of the first that is not zero
    for (; IsDigit(Here()) || (Here() == '.' && !point); ++at_) {
      const char c = Here();
      prefix_.text += c;
      if (c == '.') {
        point = true;
        continue;
      }
      prefix_.digits = true;
      if (c != '0') prefix_.nonZero = true;
      if (!point && prefix_.nonZero) ++whole;
      if (point && !prefix_.nonZero) ++behind;
    }
    prefix_.power = whole > 0 ? whole - 1 : -behind - 1;
  }

  // Takes the exponent only when a digit stands behind its letter and sign.
  void ReadExponent() {
    if (!IsExponentLetter(Here())) return;
    std::size_t at = at_ + 1;
    const bool negative = at < text_.size() && text_[at] == '-';
    if (at < text_.size() && IsSign(text_[at])) ++at;
    if (at >= text_.size() || !IsDigit(text_[at])) return;
    prefix_.text += negative ? "E-" : "E+";
    constexpr long kEnough = std::numeric_limits<long>::max() / 20;
    long exponent = 0;
    for (; at < text_.size() && IsDigit(text_[at]); ++at) {
      prefix_.text += text_[at];
      if (exponent < kEnough) exponent = exponent * 10 + (text_[at] - '0');
    }
    prefix_.power += negative ? -exponent : exponent;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  Prefix prefix_;
};

}  // namespace

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// The last separator of an entry is its decimal one, whichever it is; the others group digits.
std::string NormalizeDecimal(std::string text) {
  if (text.find(',') == std::string::npos) return text;
  text = Trim(text);
  std::size_t i = text.find_last_of(",.");
  if (text[i] == ',') {
    text[i] = '.';
    RemoveLeft(text, i, '.');
    RemoveLeft(text, i, ',');
  } else {
    RemoveLeft(text, i, ',');
    RemoveLeft(text, i, '.');
  }
  return text;
}

// from_chars tells only that a value lies outside the doubles; the place of the first digit tells
// on which side.
double Val(std::string_view text) {
  const Prefix prefix = PrefixReader(text).Read();
  if (!prefix.digits || !prefix.nonZero) return 0;
  const std::string& digits = prefix.text;
  double value = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (read.ec != std::errc::result_out_of_range) return value;
  if (prefix.power < 0) return 0;
  const double infinity = std::numeric_limits<double>::infinity();
  return digits.front() == '-' ? -infinity : infinity;
}

double ReadNumber(std::string_view text) { return Val(Trim(NormalizeDecimal(std::string(text)))); }

}  // namespace GlobalBAS
