#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace accuracy {

// Random deviates that are the same on every machine: the library's distributions are not.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : bits_(seed) {}
  double Uniform();  // above 0, below 1
  double Normal();
  double ChiSquare(double df);
  // n standard normal deviates in ascending order.
  std::vector<double> Ordered(int n);

 private:
  std::mt19937_64 bits_;
  double waiting_ = 0;
  bool waits_ = false;
};

// What was found over many runs, and its standard error; 0 of one that is reckoned exactly.
struct Found {
  double value = 0;
  double error = 0;
};

// Of one number a run.
class Tally {
 public:
  void Add(double x) {
    ++runs_;
    const double step = x - mean_;
    mean_ += step / runs_;
    squares_ += step * (x - mean_);
  }
  Found Result() const;

 private:
  double runs_ = 0;
  double mean_ = 0;
  double squares_ = 0;
};

}  // namespace accuracy
