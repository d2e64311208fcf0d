// Limits and tests: what the screens of the limits and of compliance say.
#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "catalog/own_texts.h"
#include "compliance/compliance_tests.h"
#include "compliance/sample_size.h"
#include "compliance/verdicts.h"
#include "compliance/wilks.h"
#include "document/paper_drawing.h"
#include "document/sections.h"
#include "plots/density_view.h"
#include "session/global_bas.h"
#include "session/series_text.h"

namespace document {
namespace {

std::string Heading(const compliance::ComplianceTest& test) {
  std::string text = OnOneLine(TextOf(test.heading));
  for (std::size_t at = text.find("&&"); at != std::string::npos; at = text.find("&&", at + 1))
    text.erase(at, 1);
  return text;
}

std::string TextIn(const ExposureSession& s, const ShownNumber& number) {
  return number.text.empty() ? Value(s, number.value) : GlobalBAS::Trim(number.text);
}

void AddResults(VerdictTable& table, const ExposureSession& s,
                const compliance::ComplianceTest& test, const compliance::Verdict& verdict) {
  const std::string method = Heading(test);
  const auto add = [&](const std::string& name, const std::string& value, const std::string& unit) {
    if (!name.empty() && !value.empty())
      table.results.push_back({NameOf(name), value, unit, method});
  };
  try {
    const TestResult result = test.run(BasisOf(s), {});
    const compliance::TestWords words = test.words(s);
    add(words.percEx, TextIn(s, result.PercEx), "%");
    add(words.limit, TextIn(s, result.UTL), s.Unit);
  } catch (const RunTimeError&) {
    // The words of the verdict tell it.
  }
  add(DocText(Doc::TestVerdict), verdict.words, "");
}

VerdictTable TableOf(const ExposureSession& s, const compliance::Verdicts& verdicts) {
  VerdictTable table;
  table.heading = {OwnText(Own::VerdictsTest), OwnText(Own::VerdictsEstimate),
                   OwnText(Own::VerdictsLimit, {GlobalBAS::ShownTrimmed(s, s.U)}),
                   OwnText(Own::VerdictsVerdict), std::nullopt};
  const auto tests = compliance::ComplianceTests();
  for (std::size_t i = 0; i < tests.size(); ++i) {
    const compliance::Verdict& verdict = verdicts.rows[i];
    table.rows.push_back(
        {verdict.test, verdict.estimate, verdict.limit, verdict.words, verdict.compliance});
    AddResults(table, s, *tests[i], verdict);
  }
  return table;
}

// What a test finds beside its estimate and its limit.
Facts FractionsOf(const ExposureSession& s) {
  Facts facts;
  for (const compliance::ComplianceTest* test : compliance::ComplianceTests()) {
    const std::string name = test->words(s).fraction;
    if (name.empty()) continue;
    const std::string value = TextIn(s, test->run(BasisOf(s), {}).fraction);
    facts.results.push_back({NameOf(name), value, "%", Heading(*test)});
  }
  return facts;
}

void AddBox(Facts& facts, const std::optional<int>& row, const std::string& value,
            const std::string& unit) {
  if (row && !value.empty())
    facts.results.push_back({RowName(*row), value, unit, Heading(compliance::kWilks)});
}

Facts BoxesOf(const ExposureSession& s, const compliance::SampleSizeBoxes& boxes) {
  const std::string infinite = boxes.infinite ? LoadResString(compliance::kInfinite) : "";
  Facts facts;
  AddBox(facts, boxes.DegrMinLbl, boxes.infinite ? infinite : Value(s, boxes.DegrMinTxb), "");
  AddBox(facts, boxes.PercExLbl3, Value(s, boxes.PercExTxB3), "%");
  AddBox(facts, boxes.SampMinLbl, boxes.infinite ? infinite : Value(s, boxes.SampMinTxB), "");
  return facts;
}

// The picture of the test by Wilks where it can be drawn, for the limit value stands in it;
// otherwise that of the population alone.
std::optional<PlotWBas::PictureNumbers> PictureNumbersOf(const ExposureSession& s) {
  if (HasTests(s)) {
    const auto tested = PlotWBas::NumbersOf(s, compliance::kWilks.run(BasisOf(s), {}));
    if (tested && PlotWBas::Drawable(*tested)) return tested;
  }
  const PlotWBas::PictureNumbers population = PlotWBas::PopulationNumbers(s);
  return PlotWBas::Drawable(population) ? std::optional(population) : std::nullopt;
}

}  // namespace

Section LimitsOf(const ExposureSession& s) {
  Section section{DocText(Doc::LimitValue), {}};
  if (!(s.OELV.value_or(0) > 0)) return section;
  const std::string period = GlobalBAS::Trim(s.RefPeriod);
  Facts facts;
  facts.results = {
      {RowName(2102), Value(s, s.OELV), s.Unit, ""},
      {DocText(Doc::ReferencePeriod), period.empty() ? DocText(Doc::NotStated) : period, "", ""}};
  if (GlobalBAS::InRangeU(s.U))
    facts.results.push_back({RowName(2103), Value(s, s.U), "%", RowName(2106)});
  if (GlobalBAS::InRangeD(s.D))
    facts.results.push_back({RowName(2101), Value(s, s.D), "%", RowName(2107)});
  section.blocks.emplace_back(std::move(facts));
  const std::string toState = wording::LimitToState(s);
  if (!toState.empty()) section.blocks.emplace_back(Words{toState});
  return section;
}

Section TestsOf(const ExposureSession& s) {
  Section section{OwnText(Own::VerdictsTitle), {}};
  if (!HasTests(s)) return section;
  Try(section, [&] {
    const compliance::Verdicts verdicts = compliance::VerdictsOf(s);
    section.blocks.emplace_back(TableOf(s, verdicts));
    section.blocks.emplace_back(Words{verdicts.why});
  });
  Try(section, [&] {
    const double Ur = compliance::StandardisedDistance(BasisOf(s));
    Facts facts = FractionsOf(s);
    facts.results.push_back({DocText(Doc::Distance), Value(s, Ur), "", RowName(2358)});
    section.blocks.emplace_back(std::move(facts));
  });
  return section;
}

Section PictureOf(const ExposureSession& s, const base::DateTime& now) {
  Section section{DocText(Doc::Picture), {}};
  if (!HasEstimates(s)) return section;
  Try(section, [&] {
    const auto numbers = PictureNumbersOf(s);
    if (!numbers) return;
    Picture picture{{kPictureWidth, kPictureHeight}};
    PlotWBas::DrawDensity(picture.drawing, PlotWBas::DensityOf(*numbers, now));
    section.blocks.emplace_back(std::move(picture));
  });
  return section;
}

Section SampleSizeOf(const ExposureSession& s) {
  Section section{RowName(compliance::kSampleSizeCaption), {}};
  if (!HasTests(s)) return section;
  Try(section, [&] {
    const compliance::SampleSizeResult found = compliance::OptimiseSampleSize(BasisOf(s));
    if (found.outcome == compliance::SampleSizeCase::CoverageTooLow) return;
    section.blocks.emplace_back(BoxesOf(s, found.boxes));
    section.blocks.emplace_back(Words{found.boxes.ComMinLbl});
  });
  return section;
}

}  // namespace document
