#include <charconv>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include "tools/accuracy/numbers.h"
#include "tools/accuracy/page.h"

namespace accuracy {
namespace {

constexpr char kSeparator = ';';
constexpr const char* kHeader = "entry;truth;truth at;truth rows;steps;steps at;steps rows\n";

double NumberOf(const std::string& text) {
  const std::optional<double> value = NumberIn(text);
  if (!value) throw std::runtime_error("no figure: " + text);
  return *value;
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
         NumberText(figure.rows);
}

Figure FigureOf(const std::vector<std::string>& fields, std::size_t first) {
  return {NumberOf(fields[first]), fields[first + 1],
          static_cast<int>(NumberOf(fields[first + 2]))};
}

}  // namespace

std::string Key(const Entry& entry) { return entry.routine + " | " + entry.domain; }

Recorded MeasureEntry(const Entry& entry, const Effort& effort,
                      const std::vector<std::string>& known) {
  Recorded measured;
  if (!entry.truth.table.empty()) measured.truth = Largest(entry.truth, entry.measure);
  if (!entry.steps.table.empty()) measured.steps = Largest(entry.steps, entry.measure);
  if (entry.search.axes.empty() || effort.times == 0) return measured;
  std::vector<std::string> places = known;
  places.push_back(measured.truth.where);
  const Figure found = Searched(entry.search, entry.measure, effort, places);
  const int rows = measured.truth.rows + found.rows;
  if (!(measured.truth.error > found.error)) measured.truth = found;
  measured.truth.rows = rows;
  return measured;
}

namespace {

// In rounds with seeds of their own, so that one that has settled round a lesser place costs but
// its share.
Recorded MeasureInRounds(const Entry& entry, const Effort& effort, const std::string& known) {
  constexpr unsigned kRounds = 4;
  Recorded measured;
  int rows = 0;
  std::vector<std::string> places = {known};
  for (unsigned round = 0; round < kRounds; ++round) {
    measured = MeasureEntry(entry, {effort.times / kRounds, effort.seed + round}, places);
    places.push_back(measured.truth.where);
    rows += measured.truth.rows;
  }
  measured.truth.rows = rows;
  return measured;
}

}  // namespace

Records MeasureAll(const Effort& effort, const Records& before, const std::string& part) {
  Records records;
  for (const auto& entries : {Routines(), Peculiarities()}) {
    for (const Entry& entry : entries) {
      const std::string key = Key(entry);
      const auto known = before.find(key);
      const bool isKnown = known != before.end();
      const bool kept = isKnown && key.find(part) == std::string::npos;
      const std::string place = isKnown ? known->second.truth.where : "";
      if (!records.emplace(key, kept ? known->second : MeasureInRounds(entry, effort, place))
               .second)
        throw std::logic_error("two entries " + key);
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
