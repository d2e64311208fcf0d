#include "document/contents.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "catalog/own_texts.h"
#include "document/sections.h"
#include "session/derivation.h"
#include "session/global_bas.h"
#include "session/workflow.h"

namespace document {

std::string NameOf(const std::string& caption) {
  std::string name = OnOneLine(caption);
  const auto atEnd = [&name](char c) { return name.ends_with(c); };
  const auto compares = [&name] { return name.ends_with(">=") || name.ends_with("<="); };
  while (atEnd(' ') || (atEnd('=') && !compares())) name.pop_back();
  return name;
}

std::string RowName(int row) { return NameOf(LoadResString(row)); }

std::string Value(const ExposureSession& s, const std::optional<double>& value) {
  return GlobalBAS::Trim(GlobalBAS::Shown(s, value));
}

void Try(Section& section, const std::function<void()>& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    section.blocks.emplace_back(Words{OwnText(Own::NotComputed, {error.what()})});
  }
}

bool HasOutcomes(const ExposureSession& s) {
  return s.Mode == DataMode::Raw && !s.refusedFile && !s.ModifyMode && SeriesCount(s) > 0 &&
         s.C.size() > static_cast<std::size_t>(SeriesCount(s));
}

bool HasEstimates(const ExposureSession& s) {
  return !s.RawIncomplete && workflow::ObstacleTo(s, ScreenId::DataCtrl, ScreenId::Descript) ==
                                 workflow::Obstacle::None;
}

bool HasPaper(const ExposureSession& s) {
  return HasOutcomes(s) && workflow::GateOpen(s, ScreenId::Descript, ScreenId::Plot);
}

bool HasTests(const ExposureSession& s) {
  return HasEstimates(s) && s.OELV.value_or(0) > 0 &&
         workflow::GateOpen(s, ScreenId::Descript, ScreenId::PercEx);
}

bool HasComparison(const ExposureSession& s, const Circumstances& circumstances) {
  return HasEstimates(s) && circumstances.compared && s.CompareMode != ReferenceKind::None;
}

Contents Compose(const ExposureSession& s, const Circumstances& circumstances) {
  const base::DateTime& now = circumstances.now;
  Contents contents;
  contents.title = DocText(Doc::Title);
  contents.name = GlobalBAS::Trim(s.Name);
  contents.product = GlobalBAS::Trim(s.VersionText);
  contents.made = base::DateText(now) + ", " + base::TimeText(now);
  const bool many = SeriesCount(s) > kManyOutcomes;
  const auto add = [&contents](Section section) {
    if (!section.blocks.empty()) contents.sections.push_back(std::move(section));
  };
  add(IdentificationOf(s, circumstances));
  if (!many) add(OutcomesOf(s));
  add(StatisticsOf(s));
  add(DistributionOf(s, now));
  add(LimitsOf(s));
  add(TestsOf(s));
  add(PictureOf(s, now));
  add(SampleSizeOf(s));
  add(MeanOf(s));
  add(ComparisonOf(s, circumstances));
  add(NotApplying(s, circumstances));
  add(AccuracyOf(s, circumstances));
  add(ProgramOf(s));
  if (many) add(OutcomesOf(s));
  return contents;
}

}  // namespace document
