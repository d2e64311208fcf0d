#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "session/choices.h"

// The one record that all screens work on: one series of exposure measurements, or one pair of
// descriptive statistics, plus the limits against which they are judged. It is made of four parts
// by who may write them; Record (record.h) is the only writer of the first three in the program.

// The sample as every calculation beyond it sees it.
struct Sample {
  double M = 0;   // sample size, a whole number
  double df = 0;  // degrees of freedom
  double GM = 0;
  double GSD = 0;
  bool RegressionOn = false;  // GM and GSD are those of the regression within the range
  std::int16_t NInRange = 0;
  bool operator==(const Sample&) const = default;
};

// What it is judged against.
struct Limits {
  std::optional<double> OELV;  // absent until set
  double U = 0;                // percent of the population to be covered
  double D = 0;                // confidence, percent
  bool operator==(const Limits&) const = default;
};

// What a test rests on: its result holds for this and nothing else.
struct TestBasis : Sample, Limits {
  bool operator==(const TestBasis&) const = default;
};

// The estimates of a line through the outcomes in range.
struct RegressionEstimates {
  double GM = 0;
  double GSD = 0;
  bool operator==(const RegressionEstimates&) const = default;
};

// What Modify sets aside, and Reset brings back.
struct Original {
  std::string Name;
  double M = 0;
  double TypedGM = 0;
  double TypedGSD = 0;
  std::int16_t typedWidth = 0;
  Estimates inForce = Estimates::WholeSample;
  bool operator==(const Original&) const = default;
};

// A series and the range that is laid over it: what an edit changes, and what is put back when the
// user takes it back.
struct GivenSeries {
  double M = 0;
  std::string Unit;

  // Raw data. C(1) to C(M) ascending once the series is complete; C(0) is the median. Outcomes
  // beyond M are kept until the next edit or save.
  std::vector<double> C;
  bool newSeries = false;  // a series is being typed whose sample size may still be missing

  // Detection range: what the checks of the limits made of the entered ones
  bool DetecOn = false;
  double LOQ = 0;
  double URR = 0;
  std::int16_t FirstInRange = 0;
  std::int16_t LastInRange = 0;
  std::int16_t NInRange = 0;
  bool LOQStated = false;  // by somebody; otherwise it stands where the series has put it
  bool URRStated = false;

  Estimates inForce = Estimates::WholeSample;
  std::optional<RegressionEstimates> regression;

  bool operator==(const GivenSeries&) const = default;
};

// What the user gave, and which estimates are in force. Everything else follows from it.
struct Given : GivenSeries {
  DataMode Mode = DataMode::None;

  // Identification
  std::string Name;
  std::string RefPeriod;
  std::string Duration;
  bool refusedFile = false;  // Name and M are those of a file that was refused: there is no series

  // Estimates
  double TypedGM = 0;
  double TypedGSD = 0;
  std::int16_t typedWidth = 0;       // of the longest GM or GSD that was typed
  std::optional<Original> original;  // while other values are tried

  // Limits
  std::optional<double> OELV;
  bool limitStated = false;  // by the user; until then OELV is only the value to start from
  double U = 0;
  double D = 0;

  // Reference of the comparison
  ReferenceKind CompareMode = ReferenceKind::None;
  VarianceChoice GSDChoice = VarianceChoice::None;
  double M2 = 0;
  double GM2 = 0;
  double GSD2 = 0;

  bool operator==(const Given&) const = default;
};

// What follows from what was given, at once.
struct Derived {
  bool RawIncomplete = false;
  bool ModifyMode = false;
  Spread spread = Spread::Fine;  // of the outcomes, where GM and GSD come from them
  bool noEstimates = false;      // the series gives none: GM, GSD and df are not to be used
  double df = 0;
  double GM = 0;
  double GSD = 0;
  bool RegressionOn = false;
  std::vector<double> LnC;     // natural logarithms of C(1) to C(M)
  std::string SortOrder;       // "Ascending" or "Onbekend"
  std::int16_t SigDigits = 0;  // width of the longest number entered
};

// What the screens have computed, for who asks by name. None of it outlives what it rests on.
struct Computed {
  double GMu = 0;
  double LnGM = 0;
  double LnGSD = 0;
  double AMml = 0;
  double AMu = 0;
  double AMmv = 0;
  double XM = 0;
  double SDu = 0;
  double SDlin = 0;
  double PercEx = 0;
  double UCL = 0;  // natural logarithm of the upper confidence limit of the mean
  double UTL = 0;
  double df2 = 0;
  double LandConfidence = 0;
};

// Where the user is, and scratch. Screens write it as they like.
struct Workflow {
  bool IdentOk = false;
  bool DescOk = false;
  bool LimitsOk = false;
  bool DeveloperMode = false;   // the plot screen offers its other kinds and its inner values
  std::int16_t InputState = 0;  // 0 accepted, 1 empty, 2 zero or no number, 3 small, 4 large
  std::optional<ScreenId> CurrentTab;  // the shown screen
  Extrapolation TestTag = Extrapolation::None;
  PlotStyle PlotKind = PlotStyle::None;
  std::string RegressionLabel;
  std::vector<std::array<std::string, 4>> GridData;
  std::string MsgText;
  std::string MsgTitle;
  std::string VersionText;
  std::string CR;
  std::string LogName;
  std::int16_t Idx = 0;
};

struct ExposureSession : Given, Derived, Computed, Workflow {};

// The basis of the tests in the present state.
TestBasis BasisOf(const ExposureSession& s);

// The largest sample size.
inline constexpr int kMaxSampleSize = 2000;

// M as a loop bound. A rejected M that the record still holds counts as the nearest valid bound.
inline int SampleCount(double M) {
  if (!(M > 0)) return 0;
  return M > kMaxSampleSize ? kMaxSampleSize : static_cast<int>(M);
}
inline int SampleCount(const Given& given) { return SampleCount(given.M); }
