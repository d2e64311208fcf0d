#pragma once

#include <optional>
#include <string>

#include "session/exposure_session.h"

// Results as the screens show them, kept by the record together with what they rest on.

// A number, or the text that its box shows in place of it; neither where it was not computed.
struct ShownNumber {
  std::optional<double> value;
  std::string text;
  bool operator==(const ShownNumber&) const = default;
};

// Of a test of the upper percentile.
struct TestResult {
  Extrapolation test = Extrapolation::None;
  ShownNumber PercEx;              // percent: the exceedance, or a confidence
  ShownNumber UTL;                 // upper tolerance limit, in the unit of GM
  ShownNumber fraction;            // percent below the limit value, of a test that finds it
  std::optional<bool> compliance;  // none where nothing is decided
  std::string MsgText;             // what the test stores as its message
  bool olderLimit = false;         // the limit shown is that of the test before
  std::string reason;  // what the user should know of this result; empty: nothing special
};

// A limit beyond exp of this is told as an exponent; its box stays empty.
inline constexpr double kLargestLogLimit = 701;

// Of a method for the mean.
struct MeanResult {
  Extrapolation method = Extrapolation::None;
  double UCL = 0;  // natural logarithm of the limit
  double A = 0;    // percent: the probability that the mean exceeds the limit value
};

// What a comparison rests on.
struct ComparisonBasis {
  Sample sample;
  ReferenceKind CompareMode = ReferenceKind::None;
  VarianceChoice GSDChoice = VarianceChoice::None;
  double M2 = 0;
  double GM2 = 0;
  double GSD2 = 0;
  bool operator==(const ComparisonBasis&) const = default;
};

ComparisonBasis ComparisonBasisOf(const ExposureSession& s);

struct ComparisonResult {
  double dispersionA = 0;  // percent
  double locationA = 0;    // percent
  bool combined = false;   // the rest holds: with a reference sample
  int degreesCaption = 0;  // catalogue row that names `degrees`
  double degrees = 0;
  double GM = 0;
  double GSD = 0;
};

// A value that is there only for what it was computed from.
template <class Basis, class Value>
class Kept {
 public:
  void Keep(const Basis& basis, const Value& value) {
    basis_ = basis;
    value_ = value;
  }
  void Drop() { value_.reset(); }
  // Whether there is a value, be it of other data.
  bool Any() const { return value_.has_value(); }
  const Value* For(const Basis& basis) const {
    return value_ && basis_ == basis ? &*value_ : nullptr;
  }

 private:
  Basis basis_{};
  std::optional<Value> value_;
};
