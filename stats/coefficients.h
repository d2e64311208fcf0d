#pragma once

#include <array>
#include <string>
#include <vector>

// The constants of the published algorithms, read at start from two text files.
namespace StatFWinBAS {

struct Coefficients {
  std::array<double, 196> ExactRankits{};
  std::array<double, 25> RankitCoefficients{};
  std::array<double, 58> ReservedBlockA{};
  std::array<double, 16> InverseNormalCoefficients{};
  std::array<double, 20> HillCoefficients{};
  std::array<double, 60> ReservedBlockB{};
  std::array<std::array<double, 7>, 11> RoystonTable{};  // column, power
  double Z90 = 0, Z95 = 0, Z99 = 0, ZM = 0, ZSS = 0, BF1 = 0, XX90 = 0, XX95 = 0;
  double ShapiroTH = 0;
};

// The process's coefficients: all zero until loaded, read-only after.
const Coefficients& Coefs();

// Loads both files. A file is looked for by its bare name in the current directory, then in each
// of `folders`. What cannot be read stays 0; nothing is reported.
void LoadCoefficients(const std::vector<std::string>& folders);

double RoystonPoly(double x, int degree, int column);

}  // namespace StatFWinBAS
