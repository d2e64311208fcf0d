#pragma once

#include <cstddef>
#include <functional>
#include <string>

// From the bytes of a raw file to its lines, in memory that no line can make grow.
namespace rawdata {

// Fills a buffer with the next bytes of the file; returns how many, 0 at the end.
using ByteSource = std::function<std::size_t(char* buffer, std::size_t size)>;

// Characters that are kept of a line, leading blanks and tabs not counted.
inline constexpr std::size_t kKeptCharacters = 65536;

// One line, as far as it can matter for its number.
//
// Of a longer line the text holds the first characters and then a blank and at most two of the
// separators that stand behind them: the last separator of a line is its decimal one, wherever it
// stands, and a comma anywhere makes the points group digits. The number that the text begins with
// is therefore the number that the whole line begins with.
struct Line {
  std::string text;         // without leading blanks and tabs
  bool digitsCut = false;   // digits of the number stand behind the kept characters
  bool numberCut = false;   // and its exponent or separators too
  bool textBehind = false;  // something else stands behind them
};

// The number that the line begins with, by GlobalBAS::ReadNumber of the whole line; 0 for none.
// Digits cut off behind the decimal separator are too small to count. A number that is longer than
// the kept characters in another way is no outcome: it gives infinity.
double NumberOf(const Line& line);

// Something other than blanks stands behind the number.
bool HasTrailingText(const Line& line);

bool HasCommaAndPoint(const Line& line);

// What stands in the line, for a message: at most 40 characters, unprintable ones as "?".
std::string ShownText(const Line& line);

// Cuts bytes into lines. CR, LF and CR LF end a line, the end of the file ends the last one, and a
// byte order mark at the start belongs to no line.
class LineReader {
 public:
  explicit LineReader(ByteSource source, std::size_t kept = kKeptCharacters);

  // The next line; false at the end of the file.
  bool Next(Line& line);

 private:
  int NextByte();  // -1 at the end
  void SkipByteOrderMark();
  void Add(char c);
  void AddBehind(char c);
  void Finish(Line& line);

  ByteSource source_;
  std::size_t kept_;
  std::string buffer_;
  std::size_t at_ = 0;
  std::size_t filled_ = 0;
  bool started_ = false;
  bool afterCarriageReturn_ = false;

  // The line being read.
  Line line_;
  bool full_ = false;        // characters stand behind the kept ones
  bool numberOpen_ = false;  // so far all of them could belong to the number
  bool roundUp_ = false;     // a digit that was cut off is not 0
  bool comma_ = false;       // behind the kept characters
  bool point_ = false;
  char lastSeparator_ = '\0';
};

}  // namespace rawdata
