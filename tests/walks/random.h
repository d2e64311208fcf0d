#pragma once

#include <cstdint>
#include <vector>

namespace walks {

// The same numbers from the same seed on every machine: the standard library's distributions differ
// from one to the next. Source: G.L. Steele, D. Lea and C.H. Flood (2014), SplitMix.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  // 0 to n - 1.
  int Below(int n) { return static_cast<int>(Next() % static_cast<std::uint64_t>(n)); }
  bool Chance(int percent) { return Below(100) < percent; }
  template <typename T>
  const T& Pick(const std::vector<T>& from) {
    return from[static_cast<std::size_t>(Below(static_cast<int>(from.size())))];
  }

 private:
  std::uint64_t Next() {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15U);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }

  std::uint64_t state_;
};

}  // namespace walks
