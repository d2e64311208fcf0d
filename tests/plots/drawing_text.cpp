#include "tests/plots/drawing_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>
#include <vector>

namespace drawing_text {
namespace {

using drawing::Colour;
using drawing::DrawnDot;
using drawing::DrawnLine;
using drawing::DrawnText;
using drawing::Point;

std::string Number(double value) {
  std::array<char, 400> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::fixed, 1);
  const std::string text(buffer.data(), end.ptr);
  return text == "-0.0" ? "0.0" : text;
}

std::string Whole(std::uint64_t value) {
  std::array<char, 24> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

std::string Text(Point at) { return Number(at.x) + "," + Number(at.y); }
std::string Text(Colour c) {
  return "rgb(" + Whole(c.red) + "," + Whole(c.green) + "," + Whole(c.blue) + ")";
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '\r' ? std::string("\\r") : std::string(1, c);
  return quoted + '"';
}

std::string Text(const DrawnLine& line) {
  return "line " + Text(line.from) + " " + Text(line.to) + " " + Text(line.colour) + " " +
         Number(line.width);
}
std::string Text(const DrawnDot& dot) { return "dot " + Text(dot.at) + " " + Text(dot.colour); }
std::string Text(const DrawnText& text) {
  constexpr std::array kAcross = {"left", "centre", "right"};
  constexpr std::array kDown = {"top", "middle", "bottom"};
  const drawing::TextStyle& style = text.style;
  return text.label + " " + Text(text.at) + " " +
         kAcross.at(static_cast<std::size_t>(style.across)) + " " +
         kDown.at(static_cast<std::size_t>(style.down)) + " " + Number(style.size) +
         (style.bold ? " bold " : " ") + Text(style.colour) + " " + Quoted(text.text);
}

using Items = std::vector<drawing::DrawingRecord::Item>;

const DrawnLine* LineAt(const Items& items, std::size_t i) {
  return i < items.size() ? std::get_if<DrawnLine>(&items[i]) : nullptr;
}

bool Upright(const DrawnLine& l) { return l.from.x == l.to.x && l.to.y - l.from.y < 150; }
bool Level(const DrawnLine& l) { return l.from.y == l.to.y && l.from.x - l.to.x < 90; }

// Whether the ticks and the cross of a point begin at item `i`.
bool PointAt(const Items& items, std::size_t i) {
  std::array<const DrawnLine*, 4> l{};
  for (std::size_t k = 0; k < l.size(); ++k) {
    l[k] = LineAt(items, i + k);
    if (!l[k]) return false;
  }
  const Point cross = {(l[2]->from.x + l[2]->to.x) / 2, (l[2]->from.y + l[2]->to.y) / 2};
  const auto near = [](double a, double b) { return std::abs(a - b) < 1e-6; };
  return Upright(*l[0]) && Level(*l[1]) && near(l[0]->from.x, cross.x) &&
         near(l[1]->from.y, cross.y) && near(l[3]->from.x, l[2]->from.x) &&
         near(l[3]->from.y, l[2]->to.y);
}

std::vector<std::string> LinesOf(const drawing::DrawingRecord& drawing) {
  const Items& items = drawing.Items();
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (PointAt(items, i)) {
      const DrawnLine& cross = std::get<DrawnLine>(items[i + 2]);
      const Point at = {(cross.from.x + cross.to.x) / 2, (cross.from.y + cross.to.y) / 2};
      lines.push_back("point " + Text(at) + " " + Text(cross.colour));
      i += 3;
    } else {
      lines.push_back(std::visit([](const auto& item) { return Text(item); }, items[i]));
    }
  }
  return lines;
}

// Fowler, Noll and Vo's sum, which a change of any letter changes.
std::uint64_t Sum(const std::vector<std::string>& lines) {
  std::uint64_t sum = 14695981039346656037U;
  for (const std::string& line : lines)
    for (const char c : line + "\n") sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return sum;
}

}  // namespace

std::string Whole(const drawing::DrawingRecord& drawing) {
  std::string text;
  for (const std::string& line : LinesOf(drawing)) text += line + "\n";
  return text;
}

std::string Digest(const drawing::DrawingRecord& drawing) {
  const std::vector<std::string> lines = LinesOf(drawing);
  std::string text = "sum " + Whole(Sum(lines)) + " of " + Whole(lines.size()) + " lines\n";
  std::size_t points = 0;
  for (const std::string& line : lines)
    if (!line.starts_with("point ") || points++ % 250 == 0) text += line + "\n";
  return text;
}

std::string Difference(const std::string& name, const std::string& text) {
  const std::string path = std::string(VALKORIN_TEST_DATA) + "/drawings/" + name;
  if (std::getenv("VALKORIN_RENEW_DRAWINGS")) std::ofstream(path, std::ios::binary) << text;
  std::ifstream file(path, std::ios::binary);
  const std::string kept(std::istreambuf_iterator<char>(file), {});
  if (kept == text) return {};
  if (kept.empty()) return path + " is missing";
  std::size_t at = 0;
  while (at < kept.size() && at < text.size() && kept[at] == text[at]) ++at;
  const std::size_t start = kept.rfind('\n', at == 0 ? 0 : at - 1) + 1;
  const auto line = [start](const std::string& all) {
    return all.substr(start, all.find('\n', start) - start);
  };
  return path + " has\n  " + line(kept) + "\nand the drawing\n  " + line(text);
}

}  // namespace drawing_text
