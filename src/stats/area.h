#pragma once

#include <cmath>

// What every finite sum for a tail area needs.
namespace StatFWinBAS {

// Rounding may carry a sum past the ends of a probability.
inline double ClampArea(double area) {
  if (area < 0) return 0;
  if (area > 1) return 1;
  return area;
}

inline bool IsOdd(double df) { return std::fmod(df, 2) != 0; }

}  // namespace StatFWinBAS
