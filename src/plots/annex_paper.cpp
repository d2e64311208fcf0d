#include "plots/annex_paper.h"

#include <cmath>

#include "analysis/transformations.h"
#include "base/fault.h"
#include "stats/normal.h"

namespace PlotWBas {
namespace {

double PowerOfTen(int exponent) {
  return exponent < 0 ? 1 / std::pow(10, -exponent) : std::pow(10, exponent);
}

// `bound` on the transformed scale, or `outcome`, which has a value there.
double TransformedBound(const std::string& scale, double bound, double outcome) {
  try {
    return analysis::TransformValue(scale, bound);
  } catch (const RunTimeError&) {
    return outcome;
  }
}

std::size_t CheckedSize(const PlotData& data) {
  const auto M = static_cast<std::size_t>(SampleCount(data.s));
  if (M < 3 || data.CTransf.size() <= M || data.s.C.size() <= M || data.RankitTable.size() <= M / 2)
    fault::Throw(FaultKind::Subscript);
  return M;
}

double BlomPosition(int i, double M) { return (i - 3.0 / 8) / (M + 1.0 / 4); }

}  // namespace

ProbabilityAxis ProbabilityAxisOf(double Pk) {
  const double edge = Pk <= 99 ? 0.01 : 0.001;
  return {edge, StatFWinBAS::NormalUpperInverse(edge)};
}

const std::vector<int>& AnnexProbabilities() {
  static const std::vector<int> percents = {1,  5,  10, 15, 20, 30, 40, 50,
                                            60, 70, 80, 85, 90, 95, 99};
  return percents;
}

Decades DecadesOf(double lowest, double highest) {
  int low = static_cast<int>(std::floor(std::log10(lowest)));
  int high = static_cast<int>(std::ceil(std::log10(highest)));
  // The logarithm may round over a bound.
  if (PowerOfTen(low) > lowest) --low;
  if (PowerOfTen(low + 1) <= lowest) ++low;
  if (PowerOfTen(high) < highest) ++high;
  if (PowerOfTen(high - 1) >= highest) --high;
  if (high == low) ++high;
  return {PowerOfTen(low), PowerOfTen(high)};
}

std::vector<DecadeTick> TicksOf(const Decades& decades) {
  std::vector<DecadeTick> ticks;
  const int low = static_cast<int>(std::lround(std::log10(decades.lower)));
  const int high = static_cast<int>(std::lround(std::log10(decades.upper)));
  for (int exponent = low; exponent < high; ++exponent)
    for (int digit = 1; digit <= 9; ++digit)
      ticks.push_back(
          {exponent < 0 ? digit / std::pow(10, -exponent) : digit * std::pow(10, exponent), digit});
  ticks.push_back({decades.upper, 1});
  return ticks;
}

AnnexPaper::AnnexPaper(const drawing::DrawSurface& surface, const PlotData& data)
    : data_(data),
      width_(surface.ScaleWidth()),
      height_(surface.ScaleHeight()),
      frame_{0.2 * width_, 0.8 * width_, 0.2 * height_, 0.9 * height_} {
  const std::size_t M = CheckedSize(data);
  const double z = StatFWinBAS::NormalUpperInverse(Position(1));
  axis_ = ProbabilityAxisOf(100 * StatFWinBAS::NormalUpper(z));
  decades_ = DecadesOf(data.s.C[1], data.s.C[M]);
  reversed_ = data.Transformation.starts_with("1/x");
  lower_ = TransformedBound(data.Transformation, decades_.lower, Transformed(1));
  upper_ = TransformedBound(data.Transformation, decades_.upper, Transformed(static_cast<int>(M)));
}

double AnnexPaper::X(double transformed) const {
  const double fraction = upper_ == lower_ ? 0.5 : Divide(transformed - lower_, upper_ - lower_);
  return Checked(frame_.XasStart + 0.6 * width_ * fraction);
}

double AnnexPaper::Y(double p) const { return YOfScore(-StatFWinBAS::NormalUpperInverse(p)); }

double AnnexPaper::YOfScore(double z) const {
  return frame_.YasTop + (0.35 - 0.35 * z / axis_.zEdge) * height_;
}

double AnnexPaper::Position(int i) const { return BlomPosition(i, data_.s.M); }

double AnnexPaper::Transformed(int i) const {
  const int M = SampleCount(data_.s);
  return data_.CTransf[static_cast<std::size_t>(reversed_ ? M + 1 - i : i)];
}

}  // namespace PlotWBas
