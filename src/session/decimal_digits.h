#pragma once

#include <string>

// The 15 significant decimal digits of a double: what every shown number starts from.
namespace GlobalBAS {

// digits[0].digits[1]digits[2]... times 10 to the exponent, without zeros at the end; a zero has
// the one digit "0" and the exponent 0.
struct DecimalDigits {
  bool negative = false;
  std::string digits = "0";
  int exponent = 0;

  bool IsZero() const { return digits == "0"; }
  // Digit at the place of 10 to the `power`, '0' outside the digits held.
  char At(int power) const;
};

// The digits of a finite value, rounded to 15 significant ones from its exact binary value.
DecimalDigits DigitsOf(double value);

// Rounds half away from zero so that nothing remains below the place of 10 to the `power`.
void RoundAt(DecimalDigits& decimal, int power);

}  // namespace GlobalBAS
