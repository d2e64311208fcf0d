#pragma once

#include <optional>
#include <string>

#include "tests/walks/series.h"

// What the plain routines give for values. All calls of them stand behind this header, and results
// are kept by their arguments. An absent result is a calculation that faults.
namespace walks {

struct Limits {
  double OELV = 0;
  double U = 0;
  double D = 0;
};

struct TestExpected {
  double first = 0;             // percent exceedance, or the confidence in percent
  std::optional<double> limit;  // none beyond the bounds, and of EN 689 with U up to 50
  std::optional<double> third;  // the fraction of EN 689
  std::string thirdText;        // what stands in its place
};

// `tag`: "Le", "Wi" or "Tu".
std::optional<TestExpected> ExpectedTest(const std::string& tag, const Sample& sample,
                                         const Limits& limits);

struct SampleSizeExpected {
  std::optional<double> df;
  std::optional<double> PercEx;
  std::optional<double> Mopt;
  bool coverageTooLow = false;
};
std::optional<SampleSizeExpected> ExpectedSampleSize(const Sample& sample, const Limits& limits,
                                                     double M, bool regression, int inRange);

struct MeanExpected {
  double GMu = 0;
  double AMu = 0;
};
std::optional<MeanExpected> ExpectedMean(const Sample& sample);

struct UpperExpected {
  double UCL = 0;  // natural logarithm
  double PercEx = 0;
};
std::optional<UpperExpected> ExpectedJahr(const Sample& sample, const Limits& limits);
std::optional<UpperExpected> ExpectedLand(const Sample& sample, const Limits& limits, double M);

struct DescriptiveExpected {
  double GMu = 0, AMml = 0, AMu = 0, SDu = 0;
  std::optional<double> AMmv;  // none for too few degrees of freedom
  double XM = 0;
  std::optional<double> SDlin;  // none without spread
};
// `outcomes`: of the series when the linear moments come from it; empty when from GM and GSD.
std::optional<DescriptiveExpected> ExpectedDescriptive(const Sample& sample, double M,
                                                       const Outcomes& outcomes);

struct Reference {
  std::string mode;  // "S" or "P"
  std::string choice;
  double GM = 0, GSD = 0, M = 0;
};
struct CompareExpected {
  double dispersion = 0;
  double location = 0;
  double df = 0, GM = 0, GSD = 0;  // of both samples together
};
std::optional<CompareExpected> ExpectedCompare(const Sample& sample, const Reference& reference);

struct FitExpected {
  double W = 0, PW = 0;
  bool tested = false;
};
// Of the outcomes on a scale, named as in the menu of the plot.
std::optional<FitExpected> ExpectedFit(const Outcomes& outcomes, const std::string& scaleMenu,
                                       Range range);

// How a typed text reads, and where a click on an up-down pair leads.
double TypedNumber(const std::string& text);
double SteppedOELV(const std::optional<double>& value, int direction);
double SteppedPercent(double value, int direction);
double SteppedGM2(double value, int direction);
double SteppedGSD2(double value, int direction);
double SteppedM2(double value, int direction);

}  // namespace walks
