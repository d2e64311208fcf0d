#include "stats/normal.h"

#include <cmath>

#include "base/fault.h"
#include "stats/coefficients.h"

namespace StatFWinBAS {
namespace {

constexpr double kOuterLimit = 37;

double Clamp(double area) {
  if (area < 0) return 0;
  if (area > 1) return 1;
  return area;
}

// The area between 0 and |x| times the sign-free series; |x| is not 0.
double CentralArea(double x) {
  const double a = std::abs(x);
  double term = a;
  double sum = a;
  double d = 1;
  const double y = x * x;
  do {
    d = d + 2;
    term = term * y / d;
    sum = sum + term;
  } while (!(std::abs(term / sum) <= 1E-15));
  return sum / std::sqrt(kTwoPi) / std::exp(y / 2);
}

// Continued fraction of the tail beyond x > 1.28, with y = x x / 2.
double HillTail(double x, double y) {
  const auto& H = Needed(Block::Hill).HillCoefficients;
  double D = x + H[1];
  D = Divide(H[3], D) + (H[2] + x);
  D = Divide(H[5], D) + (H[4] + x);
  D = Divide(H[7], D) + (H[6] + x);
  D = Divide(H[9], D) + (H[8] + x);
  D = Divide(H[11], D) + (H[10] + x);
  return Divide(Divide(H[12], Exp(y)), D);
}

// Rational form near the centre, |x| <= 1.28.
double HillCentre(double x, double y) {
  const auto& H = Needed(Block::Hill).HillCoefficients;
  double D = y + H[13];
  D = Divide(H[15], D) + (y + H[14]);
  D = Divide(H[17], D) + (y + H[16]);
  const double V = Divide(y * H[19], D) + H[18];
  return Checked(0.5 - x * V);
}

// Start value near the centre, q = p - 0.5 with |q| <= 0.42.
double CentralDeviate(double q) {
  const auto& A = Needed(Block::InverseNormal).InverseNormalCoefficients;
  const double r = q * q;
  const double den = (((A[8] * r + A[9]) * r + A[10]) * r + A[11]) * r + 1;
  const double num = ((A[13] * r + A[12]) * r + A[14]) * r + A[15];
  return Divide(-q * num, den);
}

// Start value in the tails.
double TailDeviate(double& p) {
  const auto& A = Needed(Block::InverseNormal).InverseNormalCoefficients;
  const bool replaced = p > 0.5;
  if (replaced) p = 1 - p;
  const double r = Sqrt(-Log(p));
  const double den = (A[2] * r + A[3]) * r + 1;
  const double num = ((A[4] * r + A[5]) * r + A[6]) * r + A[7];
  double x = Divide(num, den);
  if (replaced) {
    x = -x;
    p = 1 - p;
  }
  return x;
}

double StartDeviate(double& p) {
  const double q = p - 0.5;
  if (std::abs(q) <= 1E-16) return 0;
  return std::abs(q) <= 0.42 ? CentralDeviate(q) : TailDeviate(p);
}

// One step of third order from x towards the deviate of p.
double Corrected(double x, double p) {
  const double d = Checked((NormalUpper(x) - p) * std::sqrt(kTwoPi) * Exp(x * x / 2));
  return Checked((x + d + x * d * d / 2) + (2 * x * x + 1) * d * d * d / 6);
}

}  // namespace

double NormalUpper(double x) {
  if (std::isnan(x)) fault::Throw(FaultKind::InvalidOperation);
  double area = 0;
  if (-1E-15 <= x && x <= 1E-15) {
    area = 0.5;
  } else if (-5 <= x && x <= 5) {
    const double sum = CentralArea(x);
    area = x < 0 ? 0.5 + sum : 0.5 - sum;
  } else if (-kOuterLimit <= x && x <= kOuterLimit) {
    area = NormalUpperHill(x);
  } else {
    area = x < 0 ? 1 : 0;
  }
  return Clamp(area);
}

double NormalUpperHill(double x) {
  if (std::isnan(x)) fault::Throw(FaultKind::InvalidOperation);
  const bool neg = x < 0;
  const double a = std::abs(x);
  if (a <= 1E-16) return 0.5;
  if (a > kOuterLimit) return neg ? 1 : 0;
  const double y = x * x / 2;
  double area = 0;
  if (a > 1.28) {
    x = a;
    area = HillTail(x, y);
    if (neg) {
      x = -x;
      area = 1 - area;
    }
  } else {
    area = HillCentre(x, y);
  }
  return Clamp(area);
}

double NormalUpperInverse(double p) { return NormalUpperInverseInPlace(p); }

double NormalUpperInverseInPlace(double& p) {
  if (p <= 1E-300) return kOuterLimit;
  if (p >= 0.9999999999999999) return Needed(Block::InverseNormal).InverseNormalCoefficients[1];
  double x = StartDeviate(p);
  const bool flip = p > 0.5;
  if (flip) {
    p = 1 - p;
    x = -x;
  }
  x = Corrected(x, p);
  if (flip) {
    x = -x;
    p = 1 - p;
  }
  return x;
}

}  // namespace StatFWinBAS
