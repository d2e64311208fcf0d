#include "rawdata/line_reader.h"

#include <string_view>
#include <utility>

namespace rawdata {
namespace {

constexpr std::size_t kBufferSize = 65536;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// All characters that a number can hold.
constexpr std::string_view kNumberCharacters = "0123456789+-.,EeDd";

}  // namespace

LineReader::LineReader(ByteSource source, std::size_t kept)
    : source_(std::move(source)), kept_(kept), buffer_(kBufferSize, '\0') {}

int LineReader::NextByte() {
  if (at_ == filled_) {
    filled_ = source_(buffer_.data(), buffer_.size());
    at_ = 0;
    if (filled_ == 0) return -1;
  }
  return static_cast<unsigned char>(buffer_[at_++]);
}

// The source may give its first bytes one by one.
void LineReader::SkipByteOrderMark() {
  std::string first;
  while (first.size() < kByteOrderMark.size()) {
    const int c = NextByte();
    if (c < 0) break;
    first += static_cast<char>(c);
  }
  if (first == kByteOrderMark) return;
  // Put them back in front of what the buffer still holds.
  const std::string rest = first + buffer_.substr(at_, filled_ - at_);
  if (rest.size() > buffer_.size()) buffer_.resize(rest.size());
  buffer_.replace(0, rest.size(), rest);
  at_ = 0;
  filled_ = rest.size();
}

bool LineReader::Next(Line& line) {
  if (!std::exchange(started_, true)) SkipByteOrderMark();
  bool any = false;
  for (int c = NextByte(); c >= 0; c = NextByte()) {
    if (std::exchange(afterCarriageReturn_, false) && c == '\n') continue;
    any = true;
    if (c == '\r' || c == '\n') {
      afterCarriageReturn_ = c == '\r';
      break;
    }
    Add(static_cast<char>(c));
  }
  Finish(line);
  return any;
}

void LineReader::Add(char c) {
  std::string& text = line_.text;
  if (text.empty() && (c == ' ' || c == '\t')) return;
  if (text.size() < kept_) {
    text += c;
    return;
  }
  if (!std::exchange(full_, true)) {
    // Grouping separators in front of the first digit may fall away.
    const std::size_t first = text.find_first_not_of(" \t+-.,");
    numberOpen_ = text.find_first_not_of(kNumberCharacters, first) == std::string::npos;
  }
  AddBehind(c);
}

void LineReader::AddBehind(char c) {
  if (numberOpen_ && c >= '0' && c <= '9') {
    line_.digitsCut = true;
    if (c != '0') roundUp_ = true;
    return;
  }
  if (std::exchange(numberOpen_, false) && kNumberCharacters.find(c) != std::string_view::npos)
    line_.numberCut = true;
  if (c == ',') comma_ = true;
  if (c == '.') point_ = true;
  if (c == ',' || c == '.') lastSeparator_ = c;
  if (c != ' ' && c != '\t') line_.textBehind = true;
}

// One digit more stands for all digits that were cut off: it decides where the kept ones lie
// exactly between two doubles.
void LineReader::Finish(Line& line) {
  if (line_.digitsCut) line_.text += roundUp_ ? '1' : '0';
  if (full_) line_.text += ' ';
  if (comma_ && point_) line_.text += lastSeparator_ == '.' ? ',' : '.';
  if (comma_ || point_) line_.text += lastSeparator_;
  line = std::exchange(line_, Line());
  full_ = numberOpen_ = roundUp_ = comma_ = point_ = false;
  lastSeparator_ = '\0';
}

}  // namespace rawdata
