#pragma once

#include <functional>
#include <optional>

#include "compliance/compliance_tests.h"

// The compliance test of EN 689, Annex F: by the noncentral Student distribution it finds the
// confidence that less than 100 - U percent of the exposures exceeds the limit value, the upper
// tolerance limit with coverage U and confidence D, and the fraction below the limit value with
// confidence D.
namespace compliance {

// Fixed texts of the two search boxes.
inline constexpr const char* kConfidenceBelow1E14 = "    <1E-14";  // until the search begins
inline constexpr const char* kLimitAbove1E300 = "    >1.00E+300";
inline constexpr const char* kFractionAll = "   100        ";
inline constexpr const char* kFractionNone = "    <1.0E-46  ";

using En689Progress = std::function<void(TestBox box, double value)>;

// The confidence in percent that the sample's mean plus r of its standard deviations lies above the
// quantile u (in percent) of the population. u = 50 gives the other tail, by the house rule of
// NoncentralTUpper at p = 0.5. u 0 to 100, df at least 1.
// Accuracy, absolute, u 0.01 to 99.99: 8.3E-05 percent, the short cut of Owen's function; above 200
// degrees of freedom 2.8E-01 percent, where one normal tail stands in.
double En689ConfidenceAt(double df, double u, double r);

struct ToleranceSearch {
  double UTL = 0;      // in the unit of GM
  double ConfNow = 0;  // confidence in percent at UTL
  double LowBound = 0;
  double HighBound = 0;     // 0 when the search ended before it bisected
  bool above1E300 = false;  // the box then shows kLimitAbove1E300
  int evaluations = 0;      // of NoncentralTUpper
};

// The limit x with confidence D that U percent of the exposures lie below it: steps of a factor GSD
// upward from GM / GSD, then bisection until the confidence is within 0.001 of D, or the search
// stands still. U above 50 to 99.99, D 0.01 to 99.99.
// Source: EN 689:2018, Annex F; D.B. Owen (1968), Technometrics 10, 445-478.
// Accuracy: the confidence is met to 0.001 percent, unless neighbouring doubles lie further apart.
// Against the exact distribution ln(x / GM) / ln GSD is off by 9.1E-02 of it or of 1 (at df 1 and D
// 0.01, where 0.001 percent of confidence is that much), above df 200 by 7.9E-03.
// Ends after at most 3,500 evaluations, most of them far below GM for a D near 0 at df 1; 50 are
// many otherwise.
ToleranceSearch En689ToleranceLimit(const TestBasis& basis, const En689Progress& progress = {});

struct FractionSearch {
  double u = 0;        // percent of the population below the limit value
  double ConfNow = 0;  // confidence in percent at u
  double LowBound = 0;
  double HighBound = 0;
  const char* text = nullptr;  // kFractionAll or kFractionNone where the box shows no number
  bool ranTwice = false;       // the first search stood still at 50 percent
  int evaluations = 0;         // of NoncentralTUpper
};

// The fraction u with confidence D that u percent of the exposures lie below the limit value, by
// bisection from U on until the confidence is within 0.001 of D, or the search stands still.
// Where it has met 50 percent, at which NoncentralTUpper returns the other tail, and then stood
// still, it runs once more with the proportion next above a half in that place.
// U and D 0.01 to 99.99. Accuracy: u is off by 1.1E+00 percent where D is near 0 or 100 and the
// limit far from GM, by the stop of the search, and by 1.5E-01 above df 200.
// Where the confidence of U is all (99.999999999) or nothing (1E-46), the text comes at once,
// however far the fraction is from it. Ends after at most 320 evaluations.
FractionSearch En689Fraction(const TestBasis& basis, double Ur, const En689Progress& progress = {});

// Whether the test decides at all: with df up to 4 it does not.
bool En689Decides(double df);
// Whether the tolerance limit UTL complies with OELV; absent where the test does not decide.
std::optional<bool> En689Complies(double df, double UTL, double OELV);

struct En689Result {
  double PercEx = 0;                     // the confidence in percent; only with a limit
  std::optional<ToleranceSearch> limit;  // absent with U up to 50
  FractionSearch fraction;
};

// `found` hears the confidence before the searches begin; none with U up to 50.
using En689Confidence = std::function<void(std::optional<double> PercEx)>;
En689Result En689Calculation(const TestBasis& basis, double Ur, const En689Progress& progress = {},
                             const En689Confidence& found = {});

// The whole test. With U up to 50 there is no confidence and no tolerance limit; the verdict is
// then on the standing one, and a sentence says so; where none stands nothing is decided.
TestResult En689Test(const TestBasis& basis, const TestRun& how = {});

extern const ComplianceTest kEn689;

}  // namespace compliance
