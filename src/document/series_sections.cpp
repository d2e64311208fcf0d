// What the document tells of the data themselves: identification, outcomes, program.
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "catalog/own_texts.h"
#include "document/sections.h"
#include "session/derivation.h"
#include "session/global_bas.h"
#include "session/series_text.h"
#include "stats/coefficient_status.h"

namespace document {
namespace {

std::string OrNotStated(const std::string& text) {
  const std::string trimmed = GlobalBAS::Trim(text);
  return trimmed.empty() ? DocText(Doc::NotStated) : trimmed;
}

Doc KindOfData(const ExposureSession& s) {
  if (s.ModifyMode) return Doc::Tried;
  return s.Mode == DataMode::Raw ? Doc::Measured : Doc::Known;
}

void AddExtent(Facts& facts, const ExposureSession& s) {
  if (!CompleteSeries(s) || s.ModifyMode) return;
  const auto last = static_cast<std::size_t>(SeriesCount(s));
  facts.results.push_back({RowName(1501), Value(s, s.C[1]), s.Unit, ""});
  facts.results.push_back({RowName(1502), Value(s, s.C[last]), s.Unit, ""});
}

void AddRange(Facts& facts, const ExposureSession& s) {
  if (s.Mode != DataMode::Raw || s.ModifyMode) return;
  if (!s.DetecOn) {
    facts.results.push_back({RowName(1720), DocText(Doc::NoRange), "", ""});
    return;
  }
  facts.results.push_back({RowName(1721), Value(s, s.LOQ), s.Unit, ""});
  facts.results.push_back({RowName(1722), Value(s, s.URR), s.Unit, ""});
  if (!CompleteSeries(s)) return;
  facts.results.push_back({RowName(1727), Value(s, s.FirstInRange - 1), "", ""});
  facts.results.push_back({RowName(1728), Value(s, s.M - s.LastInRange), "", ""});
  facts.results.push_back({RowName(1724), Value(s, s.NInRange), "", ""});
}

// The words above the outcomes.
std::string OutcomeWords(const ExposureSession& s) {
  std::string words = DocText(Doc::AsTyped);
  if (CompleteSeries(s))
    words = s.Unit.empty() ? DocText(Doc::AscendingNoUnit) : DocText(Doc::Ascending, {s.Unit});
  if (s.DetecOn)
    words += " " + DocText(Doc::Operators,
                           {GlobalBAS::ShownTrimmed(s, s.LOQ), GlobalBAS::ShownTrimmed(s, s.URR)});
  const std::string leftOut = wording::LeftOut(s);
  return leftOut.empty() ? words : words + " " + leftOut;
}

Result OutcomeAt(const ExposureSession& s, std::size_t place) {
  const double outcome = s.C[place];
  Result result{Value(s, static_cast<double>(place)), OwnText(Own::CellEmpty), s.Unit, ""};
  if (outcome <= 0) return result;
  const std::string sign = wording::OperatorOf(s, outcome);
  result.value = (sign == "=" ? "" : sign) + Value(s, outcome);
  if (sign == "<") result.method = DocText(Doc::MethodBelow);
  if (sign == ">") result.method = DocText(Doc::MethodAbove);
  return result;
}

std::string CoefficientWords() {
  const std::string warning = StatFWinBAS::CoefficientWarning(" ");
  if (!warning.empty()) return warning;
  const auto& files = StatFWinBAS::CoefficientStatus();
  return DocText(Doc::Delivered, {files[0].name, files[1].name});
}

}  // namespace

Section IdentificationOf(const ExposureSession& s, const Circumstances& circumstances) {
  Facts facts;
  facts.results = {
      {DocText(Doc::FileOrName), OrNotStated(s.Name), "", ""},
      {DocText(Doc::KindOfData), DocText(KindOfData(s)), "", ""},
      {RowName(301), Value(s, s.M), "", ""},
      {DocText(Doc::Unit), OrNotStated(s.Unit), "", ""},
      {RowName(364), OrNotStated(s.Duration), "", ""},
  };
  AddExtent(facts, s);
  AddRange(facts, s);
  facts.results.push_back(
      {DocText(Doc::MadeOn),
       base::DateText(circumstances.now) + ", " + base::TimeText(circumstances.now), "", ""});
  return {RowName(300), {facts}};
}

Section OutcomesOf(const ExposureSession& s) {
  Section section{DocText(Doc::Outcomes), {}};
  if (!HasOutcomes(s)) return section;
  Outcomes outcomes;
  for (int i = 1; i <= SeriesCount(s); ++i)
    outcomes.results.push_back(OutcomeAt(s, static_cast<std::size_t>(i)));
  section.blocks = {Words{OutcomeWords(s)}, std::move(outcomes)};
  return section;
}

Section ProgramOf(const ExposureSession& s) {
  Facts facts;
  facts.results = {{DocText(Doc::Version), GlobalBAS::Trim(s.VersionText), "", ""},
                   {DocText(Doc::Coefficients), CoefficientWords(), "", ""}};
  return {DocText(Doc::Program), {facts}};
}

}  // namespace document
