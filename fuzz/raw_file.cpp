// Any bytes as a raw data file: the reader ends in one of its outcomes, says the same as a plain
// reading of the whole lines, and what it accepts can be read, sorted, written and read again.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "rawdata/line_reader.h"
#include "rawdata/raw_file.h"
#include "session/global_bas.h"

using rawdata::FileCheck;
using rawdata::FileValues;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// A file without a disk.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view bytes) : handle_(::memfd_create("raw", MFD_CLOEXEC)) {
    Require(handle_ >= 0);
    Require(::write(handle_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  }
  ~MemoryFile() { ::close(handle_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string Path() const { return "/proc/self/fd/" + GlobalBAS::FileText(handle_); }

 private:
  int handle_;
};

// The lines of a file, the plain way.
std::vector<std::string> WholeLines(std::string_view bytes) {
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
  std::vector<std::string> lines;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    std::string line(bytes.substr(0, end));
    line.erase(0, std::min(line.find_first_not_of(" \t"), line.size()));
    lines.push_back(std::move(line));
    const bool both = bytes.substr(end, 2) == "\r\n";
    bytes.remove_prefix(std::min(end + (both ? 2 : 1), bytes.size()));
  }
  return lines;
}

// What the check of these lines must find.
void JudgeCheck(const FileCheck& check, const std::vector<std::string>& lines) {
  const auto bad = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
    return rawdata::RefusalOf(GlobalBAS::ReadNumber(line)) != 0;
  });
  const auto met = static_cast<int>(bad - lines.begin()) + (bad == lines.end() ? 0 : 1);
  Require(check.readable);
  Require(check.count == met);
  Require(check.refusedLine == (bad == lines.end() ? 0 : met));
  const int wanted = met < 2 ? 925 : bad != lines.end() ? 920 : met > 2000 ? 915 : 0;
  Require(check.messageId == wanted);
  Require(check.refusedText.size() <= 160);
  for (const char c : check.refusedText)
    Require(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
}

void JudgeValues(const FileValues& file, const std::vector<std::string>& lines) {
  Require(file.ok && file.values.size() == lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i)
    Require(file.values[i] == GlobalBAS::ReadNumber(lines[i]));
  for (const int line : file.notes.trailingText)
    Require(line >= 1 && line <= static_cast<int>(lines.size()));
}

// Sorted and in the form that a save gives it, the series is a file as good as the first.
void JudgeSaved(const std::vector<double>& values) {
  std::vector<double> c = {0};
  c.insert(c.end(), values.begin(), values.end());
  std::string order = "Onbekend";
  rawdata::SortValues(static_cast<int>(values.size()), c, order);
  Require(std::is_sorted(c.begin() + 1, c.end()));
  std::string text;
  for (std::size_t i = 1; i < c.size(); ++i) text += GlobalBAS::FileText(c[i]) + "\r\n";
  const MemoryFile saved(text);
  const FileCheck check = rawdata::CheckFile(saved.Path());
  Require(check.messageId == 0 && check.count == static_cast<int>(values.size()));
  const FileValues again = rawdata::ReadFile(saved.Path(), check.count);
  Require(again.ok && again.notes.trailingText.empty() && again.notes.commaAndPoint.empty());
}

// A reader that keeps only a few characters of a line never takes a number for another one.
void JudgeKept(std::string_view bytes, const std::vector<std::string>& lines) {
  constexpr std::size_t kept = 24;
  std::size_t at = 0;
  rawdata::LineReader reader(
      [&](char* buffer, std::size_t size) {
        const std::size_t count = std::min(size, bytes.size() - at);
        std::copy_n(bytes.data() + at, count, buffer);
        at += count;
        return count;
      },
      kept);
  rawdata::Line line;
  for (const std::string& whole : lines) {
    Require(reader.Next(line));
    Require(line.text.size() <= kept + 4);
    const double value = NumberOf(line);
    if (rawdata::RefusalOf(value) != 0 || line.digitsCut) continue;
    Require(value == GlobalBAS::ReadNumber(whole));
  }
  Require(!reader.Next(line));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::vector<std::string> lines = WholeLines(bytes);
  JudgeKept(bytes, lines);
  const MemoryFile raw(bytes);
  const FileCheck check = rawdata::CheckFile(raw.Path());
  JudgeCheck(check, lines);
  if (check.messageId != 0) return 0;
  const FileValues file = rawdata::ReadFile(raw.Path(), check.count);
  JudgeValues(file, lines);
  JudgeSaved(file.values);
  return 0;
}
