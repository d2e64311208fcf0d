#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The constants of the published algorithms, read at start from two text files.
namespace StatFWinBAS {

// What is there or not there as a whole.
enum class Block { ExactRankits, Rankits, InverseNormal, Hill, Royston };

// Numbers of coefficients of the columns of RoystonTable: the polynomials C1 to C9 and G.
inline constexpr std::array<std::uint8_t, 11> kPolynomialSizes = {0, 6, 6, 4, 4, 4, 3, 2, 2, 2, 2};

// Element 0 of every array but ExactRankits is never filled; the indices of the others are those
// of the tables in normal.h and of the routines that read them.
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
  std::array<bool, 5> complete{};  // by Block
};

// The process's coefficients: all zero until loaded, read-only after.
const Coefficients& Coefs();

[[noreturn]] void ThrowLacking(Block block);

// The same, for a routine that needs a block of them: a fault that names the file when a constant
// of the block is 0, which none of the published ones is but the first of C1 and C2.
inline const Coefficients& Needed(Block block) {
  const Coefficients& c = Coefs();
  if (!c.complete[static_cast<std::size_t>(block)]) ThrowLacking(block);
  return c;
}

// Loads VALKORIN.COF and asr94COF.txt. A file is looked for by its bare name in the current
// directory, then in each of `folders`. What cannot be read stays 0; coefficient_status.h tells it.
//
// A file is a list of numbers with a point as decimal sign; an item ends at a comma or a line end.
// An item that is no number is consumed and leaves 0. Items behind the last wanted one have no
// effect, a byte order mark in front has none either, and no more than 1 MiB is read.
void LoadCoefficients(const std::vector<std::string>& folders);

// The polynomial of the given degree in x with the coefficients of RoystonTable(column, 0..degree),
// summed from the low power upward; x to the power 0 is 1, also for x = 0.
// Domain: column 0 to 10 and degree up to 6, otherwise a subscript fault; missing constants are a
// fault, but not for column 0, which is never filled; a sum beyond a double is
// an overflow. A negative degree gives the empty sum 0.
// Source: P. Royston (1995), algorithm AS R94, function poly, here with all powers written out.
// Accuracy, as a part of the value or of 1 where that is smaller, x from 0.01 to 11: 4.3E-15.
double RoystonPoly(double x, int degree, int column);

}  // namespace StatFWinBAS
