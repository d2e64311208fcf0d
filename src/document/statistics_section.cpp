// The estimates, and how well the outcomes fit a lognormal distribution.
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "document/paper_drawing.h"
#include "document/sections.h"
#include "session/global_bas.h"
#include "session/series_text.h"
#include "stats/estimators.h"

namespace document {
namespace {

constexpr double kUsualPercent = 5;  // below it a fit is poor

std::string MethodOf(const ExposureSession& s, Doc fromOutcomes) {
  if (s.ModifyMode) return DocText(Doc::TriedMethod);
  if (s.inForce == Estimates::Typed) return DocText(Doc::TypedMethod);
  return DocText(s.RegressionOn ? Doc::LineMethod : fromOutcomes);
}

// What a text box shows where there is no number.
std::string OrUnknown(const ExposureSession& s, const std::optional<double>& value) {
  return value ? Value(s, value) : DocText(Doc::Unknown);
}

void AddGeometric(Facts& facts, const ExposureSession& s, const StatFWinBAS::Estimators& found) {
  const bool line = s.RegressionOn;
  const bool range = s.inForce == Estimates::RangeDegrees || line;
  const std::string GM = line ? NameOf(wording::RegressionWords(s, "GMg")) : RowName(2006);
  const std::string GSD = line ? NameOf(wording::RegressionWords(s, "GSDg")) : RowName(2008);
  facts.results.push_back({GM, Value(s, s.GM), s.Unit, MethodOf(s, Doc::GMMethod)});
  facts.results.push_back({GSD, Value(s, s.GSD), "", MethodOf(s, Doc::GSDMethod)});
  facts.results.push_back({RowName(2004), Value(s, s.df), "",
                           DocText(range ? Doc::DegreesOfRange : Doc::DegreesOfWhole)});
  facts.results.push_back(
      {RowName(2010), Value(s, found.GMu.value_or(0)), s.Unit, DocText(Doc::GMuMethod)});
}

void AddArithmetic(Facts& facts, const ExposureSession& s, const StatFWinBAS::Estimators& found) {
  const bool outcomes = s.Mode == DataMode::Raw && !s.DetecOn && !s.ModifyMode;
  const auto add = [&](int name, const std::optional<double>& value, const std::string& method) {
    facts.results.push_back({RowName(name), OrUnknown(s, value), value ? s.Unit : "", method});
  };
  add(2012, found.AMml, RowName(2013));
  add(2014, found.AMu, RowName(2015));
  add(2016, found.AMmv, RowName(2017));
  const std::string follows = DocText(Doc::FromGMMethod);
  if (s.Mode == DataMode::Raw) add(2030, found.linear.XM, outcomes ? RowName(2031) : follows);
  add(2018, found.SDu, RowName(2019));
  if (s.Mode == DataMode::Raw) add(2035, found.linear.SDlin, outcomes ? RowName(2036) : follows);
}

std::string FitWords(const ExposureSession& s, const analysis::Regression& fit) {
  const analysis::ShownFit shown = analysis::ShownFitOf(s, fit.test);
  if (!fit.test.tested) return DocText(Doc::FitNone);
  Doc words = 100 * fit.test.PW < kUsualPercent ? Doc::FitPoor : Doc::FitGood;
  if (s.M == 3) words = Doc::FitOfThree;
  std::string text = DocText(words, {shown.W, shown.percent});
  if (fit.NInRange < SampleCount(s)) text += " " + DocText(Doc::FitOfRange);
  return text;
}

Words FitOf(const ExposureSession& s, const analysis::Regression& fit) {
  Words words{FitWords(s, fit)};
  if (!fit.test.tested) return words;
  const analysis::ShownFit shown = analysis::ShownFitOf(s, fit.test);
  const std::string method = DocText(Doc::FitMethod);
  words.results = {{DocText(Doc::FitW), shown.W, "", method},
                   {DocText(Doc::FitProbability), shown.percent, "%", method}};
  return words;
}

}  // namespace

Section StatisticsOf(const ExposureSession& s) {
  Section section{RowName(s.RegressionOn ? 2002 : 2000), {}};
  if (!HasEstimates(s)) return section;
  Try(section, [&] {
    const StatFWinBAS::Estimators found = StatFWinBAS::EstimatorsOf(s);
    Facts facts;
    AddGeometric(facts, s, found);
    AddArithmetic(facts, s, found);
    section.blocks.emplace_back(std::move(facts));
  });
  for (const std::string& words : {wording::OutsideRange(s), wording::InForce(s)})
    if (!words.empty()) section.blocks.emplace_back(Words{words});
  return section;
}

Section DistributionOf(const ExposureSession& s, const base::DateTime& now) {
  Section section{DocText(Doc::Distribution), {}};
  if (!HasPaper(s)) return section;
  Try(section, [&] {
    PaperDrawing paper = DrawPaper(s, now);
    section.blocks.emplace_back(FitOf(s, paper.fit));
    section.blocks.emplace_back(Picture{std::move(paper.drawing)});
  });
  return section;
}

}  // namespace document
