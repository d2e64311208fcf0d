#include "drive/record_fields.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "catalog/catalog.h"
#include "drive/failure.h"
#include "drive/letters.h"
#include "drive/text.h"
#include "session/derivation.h"
#include "session/limit_checks.h"
#include "session/workflow.h"

namespace drive {
namespace {

using S = ExposureSession;
using Doubles = std::vector<double>;
using Member = std::variant<DataMode S::*, Extrapolation S::*, PlotStyle S::*, ReferenceKind S::*,
                            VarianceChoice S::*, std::optional<ScreenId> S::*, std::string S::*,
                            bool S::*, std::int16_t S::*, double S::*, std::optional<double> S::*,
                            Doubles S::*, std::vector<std::array<std::string, 4>> S::*>;

struct Field {
  std::string_view name;
  Member member;
};

const Field kFields[] = {
    {"Mode", &S::Mode},
    {"IdentOk", &S::IdentOk},
    {"DescOk", &S::DescOk},
    {"LimitsOk", &S::LimitsOk},
    {"RawIncomplete", &S::RawIncomplete},
    {"ModifyMode", &S::ModifyMode},
    {"DeveloperMode", &S::DeveloperMode},
    {"InputState", &S::InputState},
    {"CurrentTab", &S::CurrentTab},
    {"TestTag", &S::TestTag},
    {"PlotKind", &S::PlotKind},
    {"Name", &S::Name},
    {"M", &S::M},
    {"df", &S::df},
    {"Unit", &S::Unit},
    {"RefPeriod", &S::RefPeriod},
    {"Duration", &S::Duration},
    {"C", &S::C},
    {"LnC", &S::LnC},
    {"GridData", &S::GridData},
    {"SortOrder", &S::SortOrder},
    {"SigDigits", &S::SigDigits},
    {"DetecOn", &S::DetecOn},
    {"LOQ", &S::LOQ},
    {"URR", &S::URR},
    {"FirstInRange", &S::FirstInRange},
    {"LastInRange", &S::LastInRange},
    {"NInRange", &S::NInRange},
    {"RegressionOn", &S::RegressionOn},
    {"RegressionLabel", &S::RegressionLabel},
    {"GM", &S::GM},
    {"GSD", &S::GSD},
    {"GMu", &S::GMu},
    {"LnGM", &S::LnGM},
    {"LnGSD", &S::LnGSD},
    {"AMml", &S::AMml},
    {"AMu", &S::AMu},
    {"AMmv", &S::AMmv},
    {"XM", &S::XM},
    {"SDu", &S::SDu},
    {"SDlin", &S::SDlin},
    {"OELV", &S::OELV},
    {"U", &S::U},
    {"D", &S::D},
    {"PercEx", &S::PercEx},
    {"UCL", &S::UCL},
    {"UTL", &S::UTL},
    {"GM2", &S::GM2},
    {"GSD2", &S::GSD2},
    {"M2", &S::M2},
    {"df2", &S::df2},
    {"CompareMode", &S::CompareMode},
    {"GSDChoice", &S::GSDChoice},
    {"LandConfidence", &S::LandConfidence},
    {"MsgText", &S::MsgText},
    {"MsgTitle", &S::MsgTitle},
    {"VersionText", &S::VersionText},
    {"CR", &S::CR},
    {"LogName", &S::LogName},
    {"Idx", &S::Idx},
};

const Member& MemberOf(const std::string& field) {
  for (const Field& known : kFields)
    if (known.name == field) return known.member;
  throw Failure("the record has no field " + field);
}

// A text field stays one line.
std::string OneLine(const std::string& text) {
  const std::string quoted = Quoted(text);
  std::string line = quoted.substr(1, quoted.size() - 2);
  for (std::size_t at = line.find("\\\""); at != std::string::npos; at = line.find("\\\"", at + 1))
    line.erase(at, 1);
  return line;
}

template <class Choice>
concept Closed = std::is_enum_v<Choice>;

std::string ValueText(const std::string& value) { return OneLine(value); }
std::string ValueText(Closed auto value) { return LettersOf(value); }
// A screen is named by the caption of its tab.
std::string ValueText(const std::optional<ScreenId>& value) {
  return value ? LoadResString(workflow::TabOf(*value).caption) : "";
}
std::string ValueText(bool value) { return value ? "1" : "0"; }
std::string ValueText(std::int16_t value) { return IntText(value); }
std::string ValueText(double value) { return NumberText(value); }
std::string ValueText(const std::optional<double>& value) {
  return value ? NumberText(*value) : "empty";
}
std::string ValueText(const Doubles& values) {
  std::string line;
  for (const double value : values) line.append(line.empty() ? "" : " ").append(NumberText(value));
  return line;
}
std::string ValueText(const std::vector<std::array<std::string, 4>>& rows) {
  std::string line;
  for (const auto& row : rows)
    for (const std::string& cell : row) line.append(line.empty() ? "" : " ").append(Quoted(cell));
  return line;
}

std::string OneWord(const std::string& rest) {
  const auto words = Words(rest);
  if (words.size() != 1) throw Failure("one value is wanted, not " + Quoted(rest));
  return words[0];
}

void Set(std::string& value, const std::string& rest) { value = TextArgument(rest); }
void Set(Closed auto& value, const std::string& rest) { FromLetters(TextArgument(rest), value); }
void Set(std::optional<ScreenId>& value, const std::string& rest) {
  const std::string caption = TextArgument(rest);
  value.reset();
  for (int i = 0; i <= static_cast<int>(ScreenId::TwoSamp); ++i) {
    const auto each = static_cast<ScreenId>(i);
    if (LoadResString(workflow::TabOf(each).caption) == caption) value = each;
  }
}
void Set(bool& value, const std::string& rest) {
  const std::string word = OneWord(rest);
  value = word == "1" || word == "true";
  if (!value && word != "0" && word != "false") throw Failure("no flag: " + Quoted(word));
}
void Set(std::int16_t& value, const std::string& rest) {
  const int number = IntOf(OneWord(rest));
  if (number < INT16_MIN || number > INT16_MAX) throw Failure("too large: " + rest);
  value = static_cast<std::int16_t>(number);
}
void Set(double& value, const std::string& rest) { value = NumberOf(OneWord(rest)); }
void Set(std::optional<double>& value, const std::string& rest) {
  const std::string word = OneWord(rest);
  value = word == "empty" ? std::nullopt : std::optional(NumberOf(word));
}
void Set(Doubles& values, const std::string& rest) {
  Doubles read;
  for (const std::string& word : Words(rest)) read.push_back(NumberOf(word));
  values = std::move(read);
}
void Set(std::vector<std::array<std::string, 4>>&, const std::string&) {
  throw Failure("the grid's data can't be set");
}

bool Near(double value, double wanted, double tolerance) {
  if (value == wanted || (std::isnan(value) && std::isnan(wanted))) return true;
  return std::abs(value - wanted) <= tolerance * (wanted == 0 ? 1 : std::abs(wanted));
}

// Numbers against the words behind them: as many, and perhaps one more, the tolerance.
bool Holds(const Doubles& values, const std::string& rest) {
  const auto words = Words(rest);
  if (words.size() != values.size() && words.size() != values.size() + 1) return false;
  const double tolerance = words.size() > values.size() ? NumberOf(words.back()) : 0;
  for (std::size_t i = 0; i < values.size(); ++i)
    if (!Near(values[i], NumberOf(words[i]), tolerance)) return false;
  return true;
}
bool Holds(double value, const std::string& rest) { return Holds(Doubles{value}, rest); }
bool Holds(std::int16_t value, const std::string& rest) {
  return Holds(Doubles{1.0 * value}, rest);
}
bool Holds(bool value, const std::string& rest) {
  bool wanted = false;
  Set(wanted, rest);
  return value == wanted;
}
bool Holds(const std::optional<double>& value, const std::string& rest) {
  if (Words(rest) == std::vector<std::string>{"empty"}) return !value;
  return value && Holds(*value, rest);
}
bool Holds(Closed auto value, const std::string& rest) {
  return LettersOf(value) == TextArgument(rest);
}
bool Holds(const std::string& value, const std::string& rest);
bool Holds(const std::optional<ScreenId>& value, const std::string& rest) {
  return ValueText(value) == TextArgument(rest);
}
bool Holds(const std::string& value, const std::string& rest) {
  return value == TextArgument(rest) || Quoted(value) == rest;
}
bool Holds(const std::vector<std::array<std::string, 4>>& rows, const std::string& rest) {
  return ValueText(rows) == rest;
}

// A limit of the range that is not the default is somebody's, as when it is typed.
void NoteStated(ExposureSession& s, std::string_view field) {
  const bool series = CompleteSeries(s);
  if (field == "LOQ") s.LOQStated = !series || s.LOQ != DefaultLOQ(s);
  if (field == "URR") s.URRStated = !series || s.URR != DefaultURR(s);
}

}  // namespace

std::string FieldText(const ExposureSession& s, const std::string& field) {
  return std::visit([&](auto member) { return ValueText(s.*member); }, MemberOf(field));
}

void SetField(ExposureSession& s, const std::string& field, const std::string& rest) {
  std::visit([&](auto member) { Set(s.*member, rest); }, MemberOf(field));
  NoteStated(s, field);
}

void ExpectField(const ExposureSession& s, const std::string& field, const std::string& rest) {
  if (std::visit([&](auto member) { return Holds(s.*member, rest); }, MemberOf(field))) return;
  throw Failure("session." + field + " is " + FieldText(s, field) + ", expected " + rest);
}

double* DoubleField(ExposureSession& s, const std::string& field) {
  const auto* member = std::get_if<double S::*>(&MemberOf(field));
  return member ? &(s.**member) : nullptr;
}

}  // namespace drive
