#pragma once

#include <functional>
#include <optional>
#include <string>

#include "compliance/compliance_tests.h"

// The smallest number of degrees of freedom, and the smallest sample, for which the Wilks
// exceedance stays below 100 - U percent on average.
namespace compliance {

// What the frame of the sample size shows. Labels are catalogue rows; an absent entry leaves its
// control as it stands.
struct SampleSizeBoxes {
  std::string ComMinLbl;
  std::optional<int> DegrMinLbl;
  std::optional<double> DegrMinTxb;
  std::optional<int> PercExLbl3;
  std::optional<double> PercExTxB3;
  std::optional<int> SampMinLbl;
  std::optional<double> SampMinTxB;
  bool infinite = false;  // DegrMinTxb and SampMinTxB show the word of kInfinite
};

inline constexpr int kInfinite = 3447;            // catalogue row
inline constexpr int kSampleSizeCaption = 3402;   // of the frame
inline constexpr int kAnySampleSizeTitle = 3400;  // title and text of the warning when
inline constexpr int kAnySampleSizeText = 3442;   // no sample size complies

enum class SampleSizeCase {
  NotWilks,        // asked behind another test: nothing is done
  CoverageTooLow,  // U up to 50: Own::CoverageTooLow is to be told, under the title kCoverageTitle
  OneDegree,       // compliance holds already at one degree of freedom
  Search,          // df and Mopt were searched
  AnySize          // non-compliance for any sample size: the warning is to be shown
};

struct SampleSizeResult {
  SampleSizeCase outcome = SampleSizeCase::NotWilks;
  SampleSizeBoxes boxes;
  double Ur = 0;        // the distance that was set anew, from CoverageTooLow on still 0
  double df = 0;        // smallest degrees of freedom, up to 99; 1 in the case OneDegree
  double Mopt = 0;      // smallest sample size; 0 in the cases without one
  double PercEx = 0;    // the last exceedance computed, in percent
  int evaluations = 0;  // of StudentUpper
};

using SampleSizeProgress = std::function<void(const SampleSizeBoxes& boxes)>;

// (P - 50) / (50 - U): at least 1 when P percent is within 100 - U, for U above 50.
double ComplianceRatio(double P, double U);

// The search itself. Changes nothing. At most 99 evaluations. In the search the degrees of freedom
// are raised after the probability is computed, so that the boxes show the next value beside the
// probability of the last.
// Accuracy: PercEx as WilksExceedance.
SampleSizeResult OptimiseSampleSize(const TestBasis& basis,
                                    const SampleSizeProgress& progress = {});

}  // namespace compliance
