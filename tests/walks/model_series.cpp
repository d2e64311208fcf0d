// The outcomes as the user has opened, typed, pasted and deleted them.
#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>

#include "drive/text.h"
#include "session/global_bas.h"
#include "tests/walks/model.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

constexpr int kMost = 2000;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

// An outcome that a cell takes; 0 and below stand for a row that is not filled.
bool Accepted(double value) { return value <= 0 || (value >= 1E-10 && value <= 1E+10); }

// A name and a size that were refused leave the outcomes that they are to stand for.
bool Empty(const Seen& seen) { return seen.M == 0 && seen.Name.empty() && seen.C.size() <= 1; }

// What closes a series, asked for or by itself.
bool MayClose(const Scene& scene) {
  return scene.OptionPressed() || scene.Chosen("Menuclose") || scene.Chosen("MenuNewVkrFil") ||
         scene.Chosen("menuopen") || scene.Clicked("RawOpt") || scene.Clicked("DesOpt") ||
         !scene.step.boxes.empty();
}

// Typed by hand: nothing but the record has it.
bool HoldsTyped(const Seen& seen) {
  return seen.Mode == "D" && (seen.M != 0 || !seen.Name.empty() || seen.GM != 0 || seen.GSD != 0);
}

bool IsQuestion(const screen::Message& box) {
  return box.buttons == screen::Buttons::YesNo && box.icon == screen::Icon::Question;
}

// Keys that go from control to control choose nothing, and what would be lost is asked about once.
void CheckChoice(const Scene& scene) {
  const auto questions = std::ranges::count_if(scene.step.boxes, IsQuestion);
  const bool start = scene.On("BasisForm");
  if (start && questions > 1) scene.findings.Add("series", "the same is asked twice");
  const bool gone = HoldsTyped(scene.before) && scene.after.Name.empty() && scene.after.M == 0 &&
                    scene.after.GM == 0 && !scene.before.Name.empty() && scene.before.M != 0;
  if (gone && questions == 0)
    scene.findings.Add("series", "typed statistics are gone without a question");
  // The way round the tabs comes to the raw data, which closes a series that has no range to fit.
  const bool chosen = scene.after.Mode != scene.before.Mode && !scene.after.Mode.empty();
  if (start && chosen && scene.step.Command() == "key" && !scene.OptionPressed())
    scene.findings.Add("series", scene.step.Rest() + " chooses the other kind of data");
}

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  while (!lines.empty() && Blank(lines.back())) lines.pop_back();
  return lines;
}

// Of `select FIRST LAST`, counted from 0.
std::vector<int> SelectedRows(std::string line) {
  drive::TakeWord(line);
  const int one = drive::IntOf(drive::TakeWord(line));
  const int other = drive::IntOf(line);
  std::vector<int> rows;
  for (int row = std::min(one, other); row <= std::max(one, other); ++row) rows.push_back(row - 1);
  return rows;
}

bool Matches(const std::string& text, const char* pattern) {
  return std::regex_match(text, std::regex(pattern));
}

// Tables of the walks hold dates, numbers and words; a line without a number is a header.
bool HasNumber(const std::string& line) {
  std::istringstream in(line);
  for (std::string cell; std::getline(in, cell, '\t');)
    if (Matches(cell, " *[-+]?[.,]?[0-9].*") && !Matches(cell, "[0-9]+-[0-9]+-[0-9]+")) return true;
  return false;
}

// The cell of the outcomes: the last one, unless the user has said that it is the first.
std::string CellOf(const std::string& line, bool first) {
  const std::size_t tab = line.find('\t');
  if (tab == std::string::npos) return line;
  return first ? line.substr(0, tab) : line.substr(tab + 1);
}

bool IsOutcome(const std::string& cell) {
  static const char* number = " *[+]?([0-9]+[.,]?[0-9]*|[.,][0-9]+)(e[-+]?[0-9]+)? *(mg/m3|ppm)? *";
  const double value = TypedNumber(cell);
  return Matches(cell, number) && value > 0 && Accepted(value);
}

// The outcomes of a pasted text; none when it is refused.
std::vector<double> PastedOutcomes(const std::string& text, bool first) {
  std::vector<std::string> lines = Lines(text);
  lines.erase(lines.begin(), std::find_if(lines.begin(), lines.end(), HasNumber));
  std::vector<double> values;
  for (const std::string& line : lines) {
    const std::string cell = CellOf(line, first);
    if (!IsOutcome(cell)) return {};
    values.push_back(TypedNumber(cell));
  }
  return values;
}

}  // namespace

void Model::AdvanceSeries(const Scene& scene) {
  edited_ = FollowSteps(scene);
  if (scene.On("DataCtrlForm") && !scene.before.ModifyMode) Edited(scene);
  if (scene.Chosen("menuopen")) Opened(scene);
  if (scene.Chosen("MenuSave") && scene.step.asked && !scene.step.file.empty()) {
    const double M = scene.after.ModifyMode ? MBeforeModify_ : scene.after.Count();
    outcomes_.resize(At(static_cast<int>(M)));
    folder_.Saved(scene.step.file, outcomes_);
  }
  CheckChoice(scene);
  CheckSeries(scene);
  TakeSeries(scene.after);
  CheckDigits(scene);
}

// A refused file leaves a loaded series as it is, and else a size without outcomes.
void Model::Opened(const Scene& scene) {
  const RawFile* file = scene.step.asked ? folder_.Find(scene.step.file) : nullptr;
  if (file && file->accepted) {
    outcomes_ = file->values;
  } else if (scene.before.C.size() <= 2) {
    outcomes_.assign(At(scene.after.Count()), 0);
  }
}

void Model::Edited(const Scene& scene) {
  const int count = scene.before.Count();
  std::string rest = scene.step.Rest();
  const std::string command = scene.step.Command();
  const Outcomes before = outcomes_;
  if (command == "addrow") Append(drive::TextArgument(rest), count);
  if (command == "delrow") Delete({drive::IntOf(rest) - 1}, count);
  if (scene.Chosen("MenuDeleteRow")) Delete(scene.before.gridRows, count);
  if (command == "key" && rest == "Delete" && scene.step.lines.size() == 2)
    Delete(SelectedRows(scene.step.lines.front()), count);
  if (command == "cell") {
    const int row = drive::IntOf(drive::TakeWord(rest));
    SetCell(row, drive::TextArgument(rest), count);
  }
  if (command == "paste") {
    std::string row = scene.step.lines.front();
    drive::TakeWord(row);
    const bool first = scene.step.lines[1] == "choose 1";
    Paste(drive::IntOf(row), PastedOutcomes(drive::Unescaped(drive::TextArgument(rest)), first),
          count);
  }
}

void Model::SetCell(int row, const std::string& text, int count) {
  if (row == count + 1) return Append(text, count);
  const double value = TypedNumber(text);
  if (!Accepted(value)) return;
  // The value that the cell has already, in whatever notation, is no edit.
  if (outcomes_[At(row - 1)] == value) return;
  outcomes_.resize(At(count));
  outcomes_[At(row - 1)] = value;
  edited_ = true;
}

// The empty line behind the last row takes no empty text.
void Model::Append(const std::string& text, int count) {
  const double value = TypedNumber(text);
  if (text.empty() || !Accepted(value) || count >= kMost) return;
  outcomes_.resize(At(count));
  outcomes_.push_back(value);
  edited_ = true;
}

// From the last row up, until two are left; what lies beyond them goes as with every edit.
void Model::Delete(const std::vector<int>& rows, int count) {
  if (std::ranges::none_of(rows, [count](int row) { return row < count; })) return;
  outcomes_.resize(At(count));
  for (auto row = rows.rbegin(); row != rows.rend() && outcomes_.size() > 2; ++row) {
    if (*row >= count) continue;
    outcomes_.erase(outcomes_.begin() + *row);
    edited_ = true;
  }
}

// All lines or none.
void Model::Paste(int row, const Outcomes& values, int count) {
  const int end = row - 1 + static_cast<int>(values.size());
  if (values.empty() || end > kMost) return;
  outcomes_.resize(At(std::max(count, end)));
  std::copy(values.begin(), values.end(), outcomes_.begin() + row - 1);
  edited_ = true;
}

// M as the step leaves it.
double Model::ExpectedSize(const Scene& scene) const {
  const double old = scene.before.M;
  if (scene.StepsBack()) return scene.after.M;
  std::string text;
  if (scene.On("BasisForm") && scene.Typed("SampSizTxB", text)) {
    const double typed = TypedNumber(text);
    if (Blank(text) || !std::isfinite(typed)) return old;
    return std::trunc(typed + 0.0001) == typed ? typed : std::trunc(typed);
  }
  const int direction = scene.On("BasisForm") ? scene.Stepped("SampSizTxB") : 0;
  if (direction != 0) return std::clamp(old + direction, 2.0, 1.0 * kMost);
  if (scene.after.ModifyMode && !scene.before.ModifyMode) return scene.before.df + 1;
  if (!scene.after.ModifyMode && scene.before.ModifyMode) return MBeforeModify_;
  return edited_ ? static_cast<double>(outcomes_.size()) : old;
}

void Model::CheckSeries(const Scene& scene) {
  const Seen& after = scene.after;
  if (Empty(after) || after.Mode.empty()) {
    if (!outcomes_.empty() && !Empty(scene.before) && !MayClose(scene))
      scene.findings.Add("series", "the series is gone");
    if (!outcomes_.empty() && scene.before.unsaved && scene.step.boxes.empty())
      scene.findings.Add("series", "the series is gone, unsaved and without a question");
    outcomes_.clear();
    return;
  }
  const bool opened = scene.Chosen("menuopen") && scene.step.asked;
  const bool changed = opened || scene.Chosen("MenuNewVkrFil") || after.Mode != scene.before.Mode;
  if (!changed && after.M != ExpectedSize(scene))
    scene.findings.Add("series", "M is " + Word(after.M) + ", wanted " + Word(ExpectedSize(scene)));
  if (after.Mode != "R" || after.ModifyMode) return;
  if (outcomes_.size() < At(after.Count())) outcomes_.resize(At(after.Count()));
  if (after.C.size() <= At(after.Count())) return;
  Outcomes wanted(outcomes_.begin(), outcomes_.begin() + after.Count());
  Outcomes held(after.C.begin() + 1, after.C.begin() + 1 + after.Count());
  std::copy(held.begin(), held.end(), outcomes_.begin());
  std::sort(wanted.begin(), wanted.end());
  std::sort(held.begin(), held.end());
  if (wanted != held) scene.findings.Add("series", "the outcomes are not those that were given");
}

// Every number is shown as wide as the longest outcome of the sample; what was tried in its place
// goes with it.
void Model::CheckDigits(const Scene& scene) {
  const Seen& after = scene.after;
  if (!complete_ || after.Mode != "R" || after.ModifyMode) return;
  std::size_t width = 0;
  for (const double c : series_) width = std::max(width, GlobalBAS::GeneralText(c).size());
  if (after.SigDigits != static_cast<int>(width))
    scene.findings.Add("digits", "numbers are " + Word(after.SigDigits) +
                                     " wide, the longest outcome is " +
                                     Word(static_cast<double>(width)));
}

void Model::TakeSeries(const Seen& after) {
  otherOutcomes_ = false;
  const Outcomes before = series_;
  if (after.ModifyMode && after.Mode == "R") return;
  const auto count = std::min(outcomes_.size(), At(after.Count()));
  series_.assign(outcomes_.begin(), outcomes_.begin() + static_cast<std::ptrdiff_t>(count));
  complete_ = after.Mode == "R" && count >= 2 &&
              std::ranges::all_of(series_, [](double c) { return c > 0; });
  if (complete_) std::sort(series_.begin(), series_.end());
  otherOutcomes_ = series_ != before;
}

}  // namespace walks
