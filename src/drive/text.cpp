#include "drive/text.h"

#include <array>
#include <charconv>
#include <cmath>

#include "drive/failure.h"

namespace drive {
namespace {

constexpr std::string_view kBlanks = " \t";

// The place of the quote that closes the one at 0; npos when there is none.
std::size_t ClosingQuote(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == '"') {
      ++i;
    } else if (text[i] == '"') {
      return i;
    }
  }
  return std::string_view::npos;
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    switch (c) {
      case '\r':
        quoted += "\\r";
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\t':
        quoted += "\\t";
        break;
      case '"':
        quoted += "\\\"";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + '"';
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (text[i] != '\\' || std::string_view("rnt\"").find(next) == std::string_view::npos) {
      plain += text[i];
      continue;
    }
    plain += next == 'r' ? '\r' : next == 'n' ? '\n' : next == 't' ? '\t' : '"';
    ++i;
  }
  return plain;
}

std::string NumberText(double value) {
  std::array<char, 40> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::general, 17);
  return {buffer.data(), end.ptr};
}

std::string IntText(long long value) {
  std::array<char, 24> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

std::optional<double> ParseNumber(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (end != last || text.empty()) return std::nullopt;
  if (error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) return std::nullopt;
  return value;
}

double NumberOf(std::string_view text) {
  const auto value = ParseNumber(text);
  if (!value) throw Failure("no number: " + Quoted(text));
  return *value;
}

int IntOf(std::string_view text) {
  const double value = NumberOf(text);
  if (!(std::abs(value) <= 1e9) || value != std::trunc(value))
    throw Failure("no whole number: " + Quoted(text));
  return static_cast<int>(value);
}

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string TakeWord(std::string& rest) {
  const std::string_view all = TrimBlanks(rest);
  const std::size_t end = std::min(all.find_first_of(kBlanks), all.size());
  std::string word(all.substr(0, end));
  rest = std::string(TrimBlanks(all.substr(end)));
  return word;
}

std::vector<std::string> Words(std::string_view rest) {
  std::vector<std::string> words;
  for (rest = TrimBlanks(rest); !rest.empty(); rest = TrimBlanks(rest)) {
    if (rest[0] == '"') {
      const std::size_t close = ClosingQuote(rest);
      if (close == std::string_view::npos) throw Failure("a quote is not closed");
      words.push_back(Unescaped(rest.substr(1, close - 1)));
      rest.remove_prefix(close + 1);
    } else {
      const std::size_t end = std::min(rest.find_first_of(kBlanks), rest.size());
      words.emplace_back(rest.substr(0, end));
      rest.remove_prefix(end);
    }
  }
  return words;
}

std::string TextArgument(std::string_view rest) {
  rest = TrimBlanks(rest);
  if (rest.empty() || rest[0] != '"') return std::string(rest);
  if (ClosingQuote(rest) != rest.size() - 1) throw Failure("a quote is not closed");
  return Unescaped(rest.substr(1, rest.size() - 2));
}

}  // namespace drive
