// The upper confidence limit of the mean by both methods.
#include <utility>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "document/sections.h"
#include "session/global_bas.h"
#include "session/results.h"
#include "ucl/mean_limit.h"

namespace document {
namespace {

constexpr char kBelowAllNumbers[] = "<1E-16";  // in place of exactly 0

// A limit that is too large for its box is told by its logarithm.
std::string LimitText(const ExposureSession& s, double UCL) {
  if (UCL < kLargestLogLimit) return Value(s, Exp(UCL));
  return "Exp(" + GlobalBAS::ShownTrimmed(s, UCL) + ")";
}

std::string LimitName(const ExposureSession& s) {
  return NameOf(LoadResString(2408) + " " + GlobalBAS::ShownTrimmed(s, s.D) + LoadResString(2409));
}

void AddMethod(Facts& facts, const ExposureSession& s, const MeanResult& found) {
  const bool jahr = found.method == Extrapolation::Jahr;
  const std::string method = RowName(jahr ? 2430 : 2431);
  const std::string A = jahr && found.A == 0 ? kBelowAllNumbers : Value(s, found.A);
  facts.results.push_back({LimitName(s), LimitText(s, found.UCL), s.Unit, method});
  facts.results.push_back({RowName(2407), A, "%", method});
}

}  // namespace

Section MeanOf(const ExposureSession& s) {
  Section section{RowName(2405), {}};
  if (!HasTests(s)) return section;
  const TestBasis basis = BasisOf(s);
  Facts facts;
  const auto tell = [&] { section.blocks.emplace_back(std::exchange(facts, {})); };
  Try(section, [&] {
    const double AMu = ucl::MeanStatisticsOf(basis).AMu;
    const ucl::JahrLimit jahr = ucl::JahrLimits(basis, AMu);
    facts.results = {{RowName(2014), Value(s, AMu), s.Unit, DocText(Doc::AMuMethod)}};
    AddMethod(facts, s, {Extrapolation::Jahr, jahr.UCL, jahr.PercEx});
    tell();
  });
  if (ucl::LandRefusal(s.M, s.D).empty())
    Try(section, [&] {
      const ucl::LandResult land = ucl::LandCmb(basis);
      AddMethod(facts, s, {Extrapolation::Land, land.UCL, land.A});
      tell();
    });
  section.blocks.emplace_back(Words{RowName(2429) + "."});
  return section;
}

}  // namespace document
