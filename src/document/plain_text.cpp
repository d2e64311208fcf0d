#include "document/plain_text.h"

#include <algorithm>
#include <variant>

#include "document/wrapping.h"
#include "drawing/font.h"

namespace document {
namespace {

constexpr char kEnd[] = "\r\n";
constexpr std::size_t kLineLength = 100;
constexpr std::size_t kGap = 2;

std::size_t Length(const std::string& text) { return drawing::Letters(text).size(); }

std::string Padded(const std::string& text, std::size_t length) {
  const std::size_t has = Length(text);
  return text + std::string(length > has ? length - has : 0, ' ');
}

// What stands in a line of its own or in a cell has no lines.
std::string Straight(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

// A table whose columns are as wide as their widest cell.
std::string Columns(std::vector<std::vector<std::string>> rows) {
  std::vector<std::size_t> widths;
  for (auto& row : rows) {
    std::ranges::transform(row, row.begin(), Straight);
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], Length(row[i]));
  }
  std::string text;
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) line += Padded(row[i], widths[i] + kGap);
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + kEnd;
  }
  return text;
}

std::string WithUnit(const Result& result) {
  return result.unit.empty() ? result.value : result.value + " " + result.unit;
}

std::string SignOf(std::optional<bool> compliance) {
  if (!compliance) return {};
  return *compliance ? "\u2713 " : "\u2717 ";
}

struct Written {
  std::string operator()(const Facts& facts) const {
    std::vector<std::vector<std::string>> rows;
    for (const Result& result : facts.results)
      rows.push_back({result.name, WithUnit(result), result.method});
    return Columns(rows);
  }

  std::string operator()(const Words& words) const {
    std::string text;
    for (const std::string& line : LinesOf(words.text)) text += line + kEnd;
    return text;
  }

  std::string operator()(const Outcomes& outcomes) const {
    std::size_t place = 0;
    std::size_t value = 0;
    for (const Result& result : outcomes.results) {
      place = std::max(place, Length(result.name));
      value = std::max(value, Length(result.value));
    }
    std::string text;
    std::string line;
    for (const Result& result : outcomes.results) {
      const std::string cell = std::string(place - Length(result.name), ' ') + result.name + ": " +
                               Padded(result.value, value + kGap);
      if (Length(line + cell) > kLineLength) {
        text += line + kEnd;
        line.clear();
      }
      line += cell;
    }
    return text + line + kEnd;
  }

  std::string operator()(const VerdictTable& table) const {
    const auto cells = [](const VerdictRow& row) {
      return std::vector{row.test, row.estimate, row.limit, SignOf(row.compliance) + row.words};
    };
    std::vector<std::vector<std::string>> rows{cells(table.heading)};
    for (const VerdictRow& row : table.rows) rows.push_back(cells(row));
    return Columns(rows);
  }

  std::string operator()(const Picture&) const { return {}; }
};

std::string Heading(const std::string& text, char below) {
  return text + kEnd + std::string(Length(text), below) + kEnd;
}

}  // namespace

std::string AsUtf8(const std::string& text) {
  std::string clean;
  for (const char32_t letter : drawing::Letters(text)) clean += Utf8(letter);
  return clean;
}

std::string PlainText(const Contents& contents) {
  std::string text = Heading(contents.title, '=') + Straight(contents.name) + kEnd + contents.made +
                     kEnd + contents.product + kEnd;
  for (const Section& section : contents.sections) {
    std::string body;
    for (const Block& block : section.blocks) body += std::visit(Written{}, block);
    if (!body.empty()) text += kEnd + Heading(section.title, '-') + body;
  }
  return AsUtf8(text);
}

}  // namespace document
