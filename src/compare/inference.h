#pragma once

#include <functional>

#include "session/results.h"

// The comparison of the current lognormal statistics with those of a reference: a second sample
// or a population that is known.
namespace compare {

// The answer to "GSDs from the same population?".
enum class Answer { Yes, No, Cancel };

// Asked with the probability A in percent for equal dispersions, which is on the screen by then.
using Question = std::function<Answer(double A)>;

// The test on the dispersions.
struct Dispersion {
  double statistic = 0;  // F of two samples, or chi (not its square) of a sample and a population
  double A = 0;          // two-sided probability in percent, A(GSD=GSDref) or A(GSD=EXP(sigma))
};

// The test on the locations.
struct Location {
  double t = 0;
  double v = 0;     // its degrees of freedom
  int caption = 0;  // catalogue row that names v: 3130 summed, 3140 combined; 0 for a population
  double A = 0;     // two-sided probability in percent, A(GM=GMref) or A(GM=EXP(mu))
};

// The statistics of two samples taken together.
struct Combined {
  double GM = 0;
  double GSD = 0;
};

struct InferenceResult {
  bool done = false;      // false without a kind of reference: nothing was compared
  bool combined = false;  // whether `both` holds a result; only with a reference sample
  VarianceChoice GSDChoice = VarianceChoice::None;  // with a reference sample
  Dispersion dispersion;
  Location location;
  Combined both;
};

// From an upper tail area, 0 to 1, to the two-sided probability in percent, 0 to 100; an area of
// exactly a half gives 100.
double TwoSidedPercent(double upperTail);

// The decision on the variances by the answer. Yes separates and No pools: the answers are the
// wrong way round against the wording of the question, and users know them so. Cancel goes by A:
// separate below 5, pooled from 5 on.
VarianceChoice GSDChoiceFor(Answer answer, double A);

// F test of two samples: F = (ln GSD / ln GSD2)^2 on df and df2 degrees of freedom. Faults for
// GSD2 = 1. Source: the ratio of two variances (Fisher; Snedecor 1934), in logarithms.
// Accuracy: A, by FUpper, 1.9E-06 percent where (M - 1) (M2 - 1) is below 32768, otherwise 2.5E+00
// percent, enough to cross 5: at M 3, M2 30000 and a ratio of the ln GSD of 0.138 it gives 6.2 for
// 3.8.
Dispersion SampleDispersion(const ComparisonBasis& basis);

// Chi test of a sample against a known sigma: chi = sqrt(df) ln GSD / ln GSD2 on df degrees of
// freedom. Faults for GSD2 = 1. Accuracy: as ChiUpper.
Dispersion PopulationDispersion(const ComparisonBasis& basis);

// Student's test of two samples by GSDChoice: one pooled variance, or separate variances with
// degrees of freedom by F.E. Satterthwaite (1946), Biometrics Bulletin 2, 110-114, cut to a whole
// number. The order of operations in these matters, since the cut follows: equal samples give 2 df
// exactly or one less by their last digit. Without a choice the operation is invalid: t and v of 0
// would read as certainty. df and df2 = M2 - 1 at least 1. Accuracy: as StudentUpper.
Location SampleLocation(const ComparisonBasis& basis);

// Student's test of a sample against a known mu, on df degrees of freedom:
// t = sqrt(df + 1) ln(GM / GM2) / ln GSD. Accuracy: as StudentUpper.
Location PopulationLocation(const ComparisonBasis& basis);

// GM and GSD of both samples together. The second sample's squared mean has the weight df2 + 2,
// where the first has df + 1: by that the combined GSD comes out larger than that of the united
// measurements, the more so the further GM2 lies from 1. The recipe stays, as reports rest on it.
// Domain: a GM, GSD or other value of 0 or below is an invalid operation. Changes nothing.
// Accuracy of that recipe, relative: GM 3.6E-15, GSD 6.2E-13 (the second sample large, GSD2 near
// 1).
Combined CombinedStatistics(const ComparisonBasis& basis);

// The whole comparison by CompareMode. With a reference sample the variances go by the answer to
// `ask`. Changes nothing.
InferenceResult Inference(const ComparisonBasis& basis, const Question& ask);

}  // namespace compare
