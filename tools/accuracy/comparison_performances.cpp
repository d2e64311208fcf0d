#include <cmath>

#include "compare/inference_on_record.h"
#include "tools/accuracy/numbers.h"
#include "tools/accuracy/performance.h"

namespace accuracy {
namespace {

using compare::Answer;
using compare::InferenceResult;

struct Populations {
  int M;
  double GSD;
  int M2;  // 0 for a population that is known
  double GSD2;
};

std::string Of(const Populations& of) {
  const std::string first = "M " + NumberText(of.M) + ", GSD " + NumberText(of.GSD);
  if (of.M2 == 0) return first + ", a population";
  return first + ", M2 " + NumberText(of.M2) + ", GSD2 " + NumberText(of.GSD2);
}

ExposureSession Drawn(Chance& chance, const Populations& of) {
  const DrawnSample sample = Draw(chance, of.M, of.GSD);
  ExposureSession s;
  s.CompareMode = of.M2 == 0 ? ReferenceKind::Population : ReferenceKind::Sample;
  s.M = of.M;
  s.df = of.M - 1;
  s.GM = std::exp(sample.lnGM);
  s.GSD = std::exp(sample.lnGSD);
  s.M2 = of.M2 == 0 ? 2 : of.M2;
  s.GM2 = 1;
  s.GSD2 = of.GSD2;
  if (of.M2 > 0) {
    const DrawnSample reference = Draw(chance, of.M2, of.GSD2);
    s.GM2 = std::exp(reference.lnGM);
    s.GSD2 = std::exp(reference.lnGSD);
  }
  return s;
}

// How often populations with the same GM, or the same GSD, get a probability below 5 percent.
Performance Size(const std::string& what, const Populations& of, Answer answer,
                 double (*A)(const InferenceResult&)) {
  return {"Inference",
          what + " below 5 %, percent",
          Of(of),
          "5",
          200000,
          [=](Chance& chance, int runs) {
            Tally tally;
            for (int i = 0; i < runs; ++i) {
              ExposureSession s = Drawn(chance, of);
              tally.Add(A(compare::Inference(s, [=](double) { return answer; })) < 5 ? 100 : 0);
            }
            return tally.Result();
          }};
}

double OfDispersions(const InferenceResult& result) { return result.dispersion.A; }
double OfLocations(const InferenceResult& result) { return result.location.A; }

}  // namespace

std::vector<Performance> ComparisonPerformances() {
  const Populations equal = {10, 2, 10, 2};
  const Populations few = {3, 2, 5, 2};
  const Populations unlike = {6, 4, 24, 2};
  const Populations large = {30, 2, 2000, 2};
  const Populations known = {10, 2, 0, 2};
  std::vector<Performance> all;
  for (const Populations& of : {equal, few, large, known})
    all.push_back(Size("A of equal dispersions", of, Answer::No, OfDispersions));
  for (const Populations& of : {equal, few, unlike, known})
    all.push_back(
        Size("A of equal locations, pooled or a population,", of, Answer::No, OfLocations));
  for (const Populations& of : {equal, few, unlike})
    all.push_back(Size("A of equal locations, separate variances,", of, Answer::Yes, OfLocations));
  for (const Populations& of : {equal, few, unlike})
    all.push_back(
        Size("A of equal locations, chosen by the dispersions,", of, Answer::Cancel, OfLocations));
  return all;
}

}  // namespace accuracy
