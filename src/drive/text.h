#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The texts of scripts and answers. Numbers are written and read by to_chars and from_chars, so
// that a script means the same under every locale.
namespace drive {

// `text` between quotes, so that an answer stays one line: \r, \n, \t and \" inside.
std::string Quoted(std::string_view text);
// The same escapes read back; the text without its quotes comes in.
std::string Unescaped(std::string_view text);

// As %.17g in the C locale: what reads back to the same double.
std::string NumberText(double value);
std::string IntText(long long value);
// A whole text that is a number; also one with a plus sign in front.
std::optional<double> ParseNumber(std::string_view text);
// ParseNumber, or Failure that names the text.
double NumberOf(std::string_view text);
int IntOf(std::string_view text);

std::string_view TrimBlanks(std::string_view text);

// The first word of `rest`, which loses it and the blanks behind it.
std::string TakeWord(std::string& rest);
// The words of a line; a word in quotes may hold blanks.
std::vector<std::string> Words(std::string_view rest);
// TEXT of a command: as it stands, or between quotes with the escapes above, which keep blanks at
// its ends.
std::string TextArgument(std::string_view rest);

}  // namespace drive
