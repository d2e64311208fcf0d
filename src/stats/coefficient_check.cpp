#include "stats/coefficient_check.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>

namespace StatFWinBAS {
namespace {

using Column = std::span<const double>;

// Of the bits of the numbers, so that a change of the last digit shows; each counts with an odd
// factor of its own, so that two that have changed places show too.
std::uint64_t SumOf(Column column) {
  std::uint64_t sum = 0;
  std::uint64_t factor = 1;
  for (const double value : column) {
    sum += factor * std::bit_cast<std::uint64_t>(value);
    factor += 2;
  }
  return sum;
}

bool HoldsNoZero(Column column) {
  return std::find(column.begin(), column.end(), 0.0) == column.end();
}

// What routines read of the arrays; the rest only holds its place in the file.
Column TabledRankits(const Coefficients& c) { return Column(c.ExactRankits).first(98); }
Column Rankits(const Coefficients& c) { return Column(c.RankitCoefficients).subspan(1); }
Column InverseNormal(const Coefficients& c) {
  return Column(c.InverseNormalCoefficients).subspan(1);
}
Column Hill(const Coefficients& c) { return Column(c.HillCoefficients).subspan(1); }
Column Polynomial(const Coefficients& c, std::size_t column) {
  return Column(c.RoystonTable[column]).first(kPolynomialSizes[column]);
}
std::array<double, 9> RoystonConstants(const Coefficients& c) {
  return {c.Z90, c.Z95, c.Z99, c.ZM, c.ZSS, c.BF1, c.XX90, c.XX95, c.ShapiroTH};
}

// The sums of the delivered files.
constexpr std::uint64_t kTabledRankitsSum = 0x8CFDF43184E90ADB;
constexpr std::uint64_t kRankitsSum = 0x9145CD1E96C3FC61;
constexpr std::uint64_t kInverseNormalSum = 0xDDE5DB8FE9329B3D;
constexpr std::uint64_t kHillSum = 0x9DB1BBF4457E7AAF;
// Of the polynomials C1 to C9 and G, which are the columns 1 to 10.
constexpr std::array<std::uint64_t, 11> kPolynomialSums = {0,
                                                           0x3F15667DBB16C1DF,
                                                           0x3F4C25104D551D6B,
                                                           0xF85871FE4A1D5A82,
                                                           0xF9C5BBF1B33622D4,
                                                           0x7A0F6916440F238B,
                                                           0x3C0A59F2BA9D1F5E,
                                                           0xFF6828F5C28F5C2A,
                                                           0xFF42B367A0F9096C,
                                                           0x7E3E69AD42C3C9EE,
                                                           0x7F9A4FDF3B645A1E};
constexpr std::uint64_t kRoystonConstantsSum = 0x38076D527E521573;

// The published C1 and C2 begin with 0.
bool PolynomialsAreComplete(const Coefficients& c) {
  for (std::size_t column = 1; column < kPolynomialSizes.size(); ++column) {
    const Column all = Polynomial(c, column);
    if (!HoldsNoZero(column <= 2 ? all.subspan(1) : all)) return false;
  }
  return true;
}

}  // namespace

void NoteComplete(Coefficients& c) {
  const auto note = [&c](Block block, bool complete) {
    c.complete[static_cast<std::size_t>(block)] = complete;
  };
  note(Block::ExactRankits, HoldsNoZero(TabledRankits(c)));
  note(Block::Rankits, HoldsNoZero(Rankits(c)));
  note(Block::InverseNormal, HoldsNoZero(InverseNormal(c)));
  note(Block::Hill, HoldsNoZero(Hill(c)));
  note(Block::Royston, PolynomialsAreComplete(c) && HoldsNoZero(RoystonConstants(c)));
}

bool MainIsDelivered(const Coefficients& c) {
  return SumOf(TabledRankits(c)) == kTabledRankitsSum && SumOf(Rankits(c)) == kRankitsSum &&
         SumOf(InverseNormal(c)) == kInverseNormalSum && SumOf(Hill(c)) == kHillSum;
}

bool RoystonIsDelivered(const Coefficients& c) {
  for (std::size_t column = 1; column < kPolynomialSizes.size(); ++column)
    if (SumOf(Polynomial(c, column)) != kPolynomialSums[column]) return false;
  return SumOf(RoystonConstants(c)) == kRoystonConstantsSum;
}

}  // namespace StatFWinBAS
