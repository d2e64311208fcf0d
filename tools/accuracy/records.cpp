#include <charconv>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include "tools/accuracy/page.h"

namespace accuracy {
namespace {

constexpr char kSeparator = ';';
constexpr const char* kHeader = "entry;truth;truth at;truth rows;steps;steps at;steps rows\n";

double NumberOf(const std::string& text) {
  double value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last) throw std::runtime_error("no figure: " + text);
  return value;
}

std::string CountText(int count) {
  char text[16];
  return {text, std::to_chars(text, text + sizeof text, count).ptr};
}

std::vector<std::string> Split(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t from = 0;
  for (std::size_t at = line.find(kSeparator); at != std::string::npos;
       at = line.find(kSeparator, from)) {
    fields.push_back(line.substr(from, at - from));
    from = at + 1;
  }
  fields.push_back(line.substr(from));
  return fields;
}

std::string Fields(const Figure& figure) {
  return kSeparator + FigureText(figure.error) + kSeparator + figure.where + kSeparator +
         CountText(figure.rows);
}

Figure FigureOf(const std::vector<std::string>& fields, std::size_t first) {
  return {NumberOf(fields[first]), fields[first + 1],
          static_cast<int>(NumberOf(fields[first + 2]))};
}

}  // namespace

std::string Key(const Entry& entry) { return entry.routine + " | " + entry.domain; }

Recorded MeasureEntry(const Entry& entry) {
  Recorded measured;
  if (!entry.truth.table.empty()) measured.truth = Largest(entry.truth, entry.measure);
  if (!entry.steps.table.empty()) measured.steps = Largest(entry.steps, entry.measure);
  return measured;
}

Records MeasureAll() {
  Records records;
  for (const auto& entries : {Routines(), Peculiarities()}) {
    for (const Entry& entry : entries) {
      if (!records.emplace(Key(entry), MeasureEntry(entry)).second)
        throw std::logic_error("two entries " + Key(entry));
    }
  }
  return records;
}

std::string FigureText(double error) {
  if (error == 0) return "0";
  char text[32];
  for (double shown = error;; shown *= 1.01) {
    char* const end =
        std::to_chars(text, text + sizeof text, shown, std::chars_format::scientific, 1).ptr;
    double read = 0;
    std::from_chars(text, end, read);
    if (read >= error || !std::isfinite(shown)) {
      std::string figure(text, end);
      if (const auto e = figure.find('e'); e != std::string::npos) figure[e] = 'E';
      return figure;
    }
  }
}

std::string RecordsText(const Records& records) {
  std::string text = kHeader;
  for (const auto& [key, recorded] : records)
    text += key + Fields(recorded.truth) + Fields(recorded.steps) + "\n";
  return text;
}

Records ReadRecords(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::string line;
  if (!std::getline(in, line) || line + "\n" != kHeader)
    throw std::runtime_error("no recorded figures in " + path);
  Records records;
  while (std::getline(in, line)) {
    const std::vector<std::string> fields = Split(line);
    if (fields.size() != 7) throw std::runtime_error("a broken record: " + line);
    records[fields[0]] = {FigureOf(fields, 1), FigureOf(fields, 4)};
  }
  return records;
}

}  // namespace accuracy
