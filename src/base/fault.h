#pragma once

#include <cmath>
#include <stdexcept>
#include <string>

// Faults of a calculation. A fault ends the running handler and nothing else: the event boundary
// shows one message that names what failed, and the program lives on.

enum class FaultKind {
  Overflow,
  DivisionByZero,
  InvalidOperation,
  Subscript,
  MissingText,
  MissingConstants
};

class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(FaultKind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}
  FaultKind Kind() const { return kind_; }

 private:
  FaultKind kind_;
};

namespace fault {

[[noreturn]] void Throw(FaultKind kind);
[[noreturn]] void ThrowNotFinite(double value);

}  // namespace fault

// Returns `value`, or throws RunTimeError when an operation has left the finite numbers:
// infinity counts as an overflow, not-a-number as an invalid operation.
inline double Checked(double value) {
  if (!std::isfinite(value)) fault::ThrowNotFinite(value);
  return value;
}

// The operations that can fault on finite arguments, each checked on its own, so that an infinity
// in the middle of an expression never turns into a plausible end result (1 / inf = 0).
inline double Divide(double numerator, double denominator) {
  if (denominator == 0) fault::Throw(FaultKind::DivisionByZero);
  return Checked(numerator / denominator);
}
inline double Exp(double x) { return Checked(std::exp(x)); }
inline double Log(double x) {
  if (!(x > 0)) fault::Throw(FaultKind::InvalidOperation);
  return Checked(std::log(x));
}
inline double Sqrt(double x) {
  if (!(x >= 0)) fault::Throw(FaultKind::InvalidOperation);
  return Checked(std::sqrt(x));
}
inline double Power(double base, double exponent) { return Checked(std::pow(base, exponent)); }
