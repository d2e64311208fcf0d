#include "drive/letters.h"

#include <string_view>
#include <vector>

#include "compliance/compliance_tests.h"
#include "drive/failure.h"
#include "drive/text.h"

namespace drive {
namespace {

template <class Choice>
struct Row {
  Choice value;
  std::string_view letters;
};

template <class Choice>
using Table = std::vector<Row<Choice>>;

const Table<DataMode>& Rows(DataMode) {
  static const Table<DataMode> rows = {
      {DataMode::None, ""}, {DataMode::Raw, "R"}, {DataMode::Statistics, "D"}};
  return rows;
}

const Table<Extrapolation>& Rows(Extrapolation) {
  static const Table<Extrapolation> rows = [] {
    Table<Extrapolation> all = {
        {Extrapolation::None, ""}, {Extrapolation::Jahr, "Ap"}, {Extrapolation::Land, "Ex"}};
    for (const compliance::ComplianceTest* test : compliance::ComplianceTests())
      all.push_back({test->tag, test->letters});
    return all;
  }();
  return rows;
}

const Table<PlotStyle>& Rows(PlotStyle) {
  static const Table<PlotStyle> rows = {{PlotStyle::None, ""},
                                        {PlotStyle::Paper, "VALKORIN"},
                                        {PlotStyle::Inverse, "InvPlot"},
                                        {PlotStyle::AnnexE, "EN689AnnexE"}};
  return rows;
}

const Table<ReferenceKind>& Rows(ReferenceKind) {
  static const Table<ReferenceKind> rows = {
      {ReferenceKind::None, ""}, {ReferenceKind::Sample, "S"}, {ReferenceKind::Population, "P"}};
  return rows;
}

const Table<VarianceChoice>& Rows(VarianceChoice) {
  static const Table<VarianceChoice> rows = {{VarianceChoice::None, ""},
                                             {VarianceChoice::Pooled, "Y"},
                                             {VarianceChoice::Separate, "N"},
                                             {VarianceChoice::PooledByProbability, "P"},
                                             {VarianceChoice::SeparateByProbability, "A"}};
  return rows;
}

template <class Choice>
std::string Letters(Choice value) {
  for (const auto& row : Rows(value))
    if (row.value == value) return std::string(row.letters);
  return {};
}

template <class Choice>
void Read(const std::string& letters, Choice& value) {
  for (const auto& row : Rows(value)) {
    if (row.letters != letters) continue;
    value = row.value;
    return;
  }
  throw Failure("no such choice: " + Quoted(letters));
}

}  // namespace

std::string LettersOf(DataMode value) { return Letters(value); }
std::string LettersOf(Extrapolation value) { return Letters(value); }
std::string LettersOf(PlotStyle value) { return Letters(value); }
std::string LettersOf(ReferenceKind value) { return Letters(value); }
std::string LettersOf(VarianceChoice value) { return Letters(value); }

void FromLetters(const std::string& letters, DataMode& value) { Read(letters, value); }
void FromLetters(const std::string& letters, Extrapolation& value) { Read(letters, value); }
void FromLetters(const std::string& letters, PlotStyle& value) { Read(letters, value); }
void FromLetters(const std::string& letters, ReferenceKind& value) { Read(letters, value); }
void FromLetters(const std::string& letters, VarianceChoice& value) { Read(letters, value); }

}  // namespace drive
