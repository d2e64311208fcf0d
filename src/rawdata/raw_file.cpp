#include "rawdata/raw_file.h"

#include <algorithm>

#include "files/regular_file.h"
#include "rawdata/line_reader.h"

// Reading a raw data file.
namespace rawdata {
namespace {

constexpr double kLowest = 1E-10;
constexpr double kHighest = 1E+10;
constexpr int kMostLines = 2000;
constexpr int kFewestLines = 2;
// What is read behind line 2001 for a line that is no outcome.
constexpr std::uint64_t kBehindLastLine = std::uint64_t{4} << 20U;

// A file's bytes up to a limit, behind which no line is complete.
class BoundedBytes {
 public:
  explicit BoundedBytes(const std::string& path) : file_(path) {}

  std::size_t Read(char* buffer, std::size_t size) {
    const auto room = static_cast<std::size_t>(std::min<std::uint64_t>(size, limit_ - read_));
    const std::size_t got = file_.Read(buffer, room);
    // At the limit one byte more tells whether the file ends there.
    if (room == 0) stopped_ = file_.Read(buffer, 1) > 0;
    read_ += got;
    return got;
  }
  void EndAfter(std::uint64_t more) { limit_ = std::min(limit_, read_ + more); }

  bool Failed() const { return file_.Failed(); }
  // The file goes on behind the limit: the line that was met there is not whole.
  bool Stopped() const { return stopped_; }
  std::uint64_t Count() const { return read_; }

 private:
  files::RegularFile file_;
  std::uint64_t limit_ = kLargestFile;
  std::uint64_t read_ = 0;
  bool stopped_ = false;
};

LineReader LinesOf(BoundedBytes& bytes) {
  return LineReader([&bytes](char* buffer, std::size_t size) { return bytes.Read(buffer, size); });
}

void Note(const Line& line, int number, ReadingNotes& notes) {
  if (HasTrailingText(line)) notes.trailingText.push_back(number);
  if (HasCommaAndPoint(line)) notes.commaAndPoint.push_back(number);
}

}  // namespace

// Written so that a value that is no number at all is refused too.
int RefusalOf(double value) { return value >= kLowest && value <= kHighest ? 0 : 920; }

FileCheck CheckFile(const std::string& path) {
  FileCheck check;
  BoundedBytes bytes(path);
  LineReader lines = LinesOf(bytes);
  for (Line line; lines.Next(line) && !bytes.Stopped();) {
    ++check.count;
    if (check.count == kMostLines + 1) {
      check.messageId = 915;
      bytes.EndAfter(kBehindLastLine);
    }
    if (RefusalOf(NumberOf(line)) == 0) continue;
    check.messageId = RefusalOf(NumberOf(line));
    check.refusedLine = check.count;
    check.refusedText = ShownText(line);
    break;
  }
  check.bytesRead = bytes.Count();
  check.tooLarge = bytes.Stopped() && check.messageId == 0;
  if (check.count < kFewestLines) check.messageId = 925;
  check.readable = !bytes.Failed() && !check.tooLarge;
  if (!check.readable) check.messageId = 0;  // what was counted tells nothing about the file
  return check;
}

// The file may have changed since it was checked: a line that is missing or is no outcome any more
// ends the reading as a read error does.
FileValues ReadFile(const std::string& path, int count) {
  FileValues read;
  // What another program writes from here on differs from it.
  read.notes.mark = files::MarkOf(path);
  BoundedBytes bytes(path);
  LineReader lines = LinesOf(bytes);
  Line line;
  for (int i = 1; i <= count; ++i) {
    if (!lines.Next(line) || bytes.Failed() || bytes.Stopped()) return read;
    const double value = NumberOf(line);
    if (RefusalOf(value) != 0) return read;
    read.values.push_back(value);
    Note(line, i, read.notes);
  }
  read.ok = !bytes.Failed();
  return read;
}

}  // namespace rawdata
