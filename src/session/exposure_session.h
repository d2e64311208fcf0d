#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The one record that all screens work on: one series of exposure measurements, or one pair of
// descriptive statistics, plus the limits against which they are judged.
struct ExposureSession {
  // Workflow state
  std::string Mode;  // "", "R" raw data, "D" known descriptive statistics
  bool IdentOk = false;
  bool DescOk = false;
  bool LimitsOk = false;
  bool RawIncomplete = false;
  bool ModifyMode = false;
  bool DeveloperMode = false;   // the plot screen offers its other kinds and its inner values
  std::int16_t InputState = 0;  // 0 accepted, 1 empty, 2 zero or no number, 3 small, 4 large
  std::string CurrentTab;       // caption of the tab of the shown screen
  std::string TestTag;          // "", "Ap", "Ex", "Le", "Tu", "Wi"
  std::string PlotKind;

  // Identification
  std::string Name;
  double M = 0;   // sample size, a whole number
  double df = 0;  // degrees of freedom
  std::string Unit;
  std::string RefPeriod;
  std::string Duration;

  // Raw data. C(1) to C(M) ascending once the status routine has run; C(0) is the median.
  std::vector<double> C;
  std::vector<double> LnC;
  std::vector<std::array<std::string, 4>> GridData;
  std::string SortOrder;       // "Ascending" or "Onbekend"
  std::int16_t SigDigits = 0;  // width of the longest mantissa seen in entered numbers

  // Detection range
  bool DetecOn = false;
  double LOQ = 0;
  double URR = 0;
  std::int16_t FirstInRange = 0;
  std::int16_t LastInRange = 0;
  std::int16_t NInRange = 0;
  bool RegressionOn = false;
  std::string RegressionLabel;

  // Statistics
  double GM = 0;
  double GSD = 0;
  double GMu = 0;
  double LnGM = 0;
  double LnGSD = 0;
  double AMml = 0;
  double AMu = 0;
  double AMmv = 0;
  double XM = 0;
  double SDu = 0;
  double SDlin = 0;

  // Limits and results
  std::optional<double> OELV;  // absent until set
  double U = 0;
  double D = 0;
  double PercEx = 0;
  double UCL = 0;  // natural logarithm of the upper confidence limit of the mean
  double UTL = 0;
  double GM2 = 0;
  double GSD2 = 0;
  double M2 = 0;
  double df2 = 0;
  std::string CompareMode;
  std::string GSDChoice;
  double LandConfidence = 0;

  // Texts and scratch
  std::string MsgText;
  std::string MsgTitle;
  std::string VersionText;
  std::string CR;
  std::string LogName;
  std::int16_t Idx = 0;
};

// The largest sample size.
inline constexpr int kMaxSampleSize = 2000;

// M as a loop bound. A rejected M that the record still holds counts as the nearest valid bound.
inline int SampleCount(const ExposureSession& s) {
  if (!(s.M > 0)) return 0;
  return s.M > kMaxSampleSize ? kMaxSampleSize : static_cast<int>(s.M);
}

// Lets C and LnC grow to 0 to M; new elements are 0, and no element is dropped.
void GrowSeries(ExposureSession& s);

// Cuts C and LnC to 0 to M, or lets them grow.
void SizeSeries(ExposureSession& s);

// Whether one of C(1) to C(M) is still unfilled (0 or below), or missing.
bool HasUnfilled(const ExposureSession& s);

// Degrees of freedom of the present M, DetecOn and NInRange, into df.
void DegreesOfFreedom(ExposureSession& s);

// Geometric mean and geometric standard deviation of all M outcomes, with the record's df as
// divisor. Leaves InputState 4 when there is no spread (gsd then unchanged), 5 when gsd >= 10000.
// Nothing happens for M < 2.
void LogMoments(ExposureSession& s, double& gm, double& gsd);

// The median of C(1) to C(M), which must be in ascending order, into C(0).
void StoreMedian(ExposureSession& s);
