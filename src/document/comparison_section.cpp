// The comparison with a reference, as it was last made.
#include "catalog/catalog.h"
#include "catalog/document_texts.h"
#include "compare/inference.h"
#include "document/sections.h"
#include "session/results.h"

namespace document {
namespace {

Doc WordOf(VarianceChoice choice) {
  switch (choice) {
    case VarianceChoice::Pooled:
      return Doc::Pooled;
    case VarianceChoice::Separate:
      return Doc::Separate;
    case VarianceChoice::PooledByProbability:
      return Doc::PooledByProbability;
    default:
      return Doc::SeparateByProbability;
  }
}

Facts WithSample(const ExposureSession& s, const ComparisonBasis& basis) {
  const compare::Location location = compare::SampleLocation(basis);
  const compare::Combined both = compare::CombinedStatistics(basis);
  const bool pooled =
      s.GSDChoice == VarianceChoice::Pooled || s.GSDChoice == VarianceChoice::PooledByProbability;
  const std::string t = DocText(pooled ? Doc::PooledMethod : Doc::SeparateMethod);
  const std::string together = DocText(Doc::CombinedMethod);
  return {
      {{DocText(Doc::ReferenceName), DocText(Doc::ReferenceSample), "", ""},
       {DocText(Doc::ReferenceSize), Value(s, s.M2), "", DocText(Doc::TypedMethod)},
       {RowName(2930), Value(s, s.GM2), s.Unit, DocText(Doc::TypedMethod)},
       {RowName(2920), Value(s, s.GSD2), "", DocText(Doc::TypedMethod)},
       {RowName(2980), Value(s, compare::SampleDispersion(basis).A), "%", DocText(Doc::FMethod)},
       {DocText(Doc::Variances), DocText(WordOf(s.GSDChoice)), "", ""},
       {RowName(2990), Value(s, location.A), "%", t},
       {RowName(location.caption), Value(s, location.v), "", t},
       {RowName(3170), Value(s, both.GM), s.Unit, together},
       {RowName(3150), Value(s, both.GSD), "", together}}};
}

Facts WithPopulation(const ExposureSession& s, const ComparisonBasis& basis) {
  return {{{DocText(Doc::ReferenceName), DocText(Doc::ReferencePopulation), "", ""},
           {RowName(3030), Value(s, s.GM2), s.Unit, DocText(Doc::TypedMethod)},
           {RowName(3020), Value(s, s.GSD2), "", DocText(Doc::TypedMethod)},
           {RowName(3080), Value(s, compare::PopulationDispersion(basis).A), "%",
            DocText(Doc::ChiMethod)},
           {RowName(3090), Value(s, compare::PopulationLocation(basis).A), "%",
            DocText(Doc::PopulationMethod)}}};
}

}  // namespace

Section ComparisonOf(const ExposureSession& s, const Circumstances& circumstances) {
  const bool sample = s.CompareMode == ReferenceKind::Sample;
  Section section{RowName(2800), {}};
  if (!HasComparison(s, circumstances)) return section;
  Try(section, [&] {
    const ComparisonBasis basis = ComparisonBasisOf(s);
    section.blocks.emplace_back(sample ? WithSample(s, basis) : WithPopulation(s, basis));
  });
  return section;
}

}  // namespace document
