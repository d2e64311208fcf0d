#include "rawdata/raw_file.h"

#include <limits>

#include "files/regular_file.h"
#include "rawdata/line_reader.h"

// Reading a raw data file.
namespace rawdata {
namespace {

constexpr double kLowest = 1E-10;
constexpr double kHighest = 1E+10;
constexpr int kMostLines = 2000;
constexpr int kFewestLines = 2;

LineReader LinesOf(files::RegularFile& file) {
  return LineReader([&file](char* buffer, std::size_t size) { return file.Read(buffer, size); });
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
  files::RegularFile file(path);
  LineReader lines = LinesOf(file);
  for (Line line; lines.Next(line);) {
    // A file of more lines than an int can count is refused long before.
    if (check.count < std::numeric_limits<int>::max()) ++check.count;
    if (check.count > kMostLines) check.messageId = 915;
    if (RefusalOf(NumberOf(line)) == 0) continue;
    check.messageId = RefusalOf(NumberOf(line));
    check.refusedLine = check.count;
    check.refusedText = ShownText(line);
    break;
  }
  if (check.count < kFewestLines) check.messageId = 925;
  check.readable = !file.Failed();
  if (!check.readable) check.messageId = 0;  // what was counted tells nothing about the file
  return check;
}

// The file may have changed since it was checked: a line that is missing or is no outcome any more
// ends the reading as a read error does.
FileValues ReadFile(const std::string& path, int count) {
  FileValues read;
  // What another program writes from here on differs from it.
  read.notes.mark = files::MarkOf(path);
  files::RegularFile file(path);
  LineReader lines = LinesOf(file);
  Line line;
  for (int i = 1; i <= count; ++i) {
    if (!lines.Next(line) || file.Failed()) return read;
    const double value = NumberOf(line);
    if (RefusalOf(value) != 0) return read;
    read.values.push_back(value);
    Note(line, i, read.notes);
  }
  read.ok = !file.Failed();
  return read;
}

}  // namespace rawdata
