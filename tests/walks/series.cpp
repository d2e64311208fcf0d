#include "tests/walks/series.h"

#include <algorithm>
#include <cmath>

#include "analysis/rankits.h"

namespace walks {
namespace {

constexpr double kBelowLowest = 0.95;
constexpr double kAboveHighest = 1.05;

int Size(const Outcomes& outcomes) { return static_cast<int>(outcomes.size()); }

// The i-th, counted from 1; beyond the ends the nearer one.
double At(const Outcomes& outcomes, int i) {
  return outcomes[static_cast<std::size_t>(std::clamp(i, 1, Size(outcomes)) - 1)];
}

long double MeanLog(const Outcomes& outcomes) {
  long double sum = 0;
  for (const double c : outcomes) sum += std::log(static_cast<long double>(c));
  return sum / static_cast<long double>(outcomes.size());
}

struct Moments {
  long double z = 0, y = 0, zz = 0, zy = 0;
};

Moments AboutMeans(const Outcomes& outcomes, const Range& range,
                   const std::vector<double>& rankits) {
  Moments m;
  const int M = Size(outcomes);
  for (int i = range.first; i <= range.last; ++i) {
    m.z += analysis::Score(rankits, M, i);
    m.y += std::log(static_cast<long double>(At(outcomes, i)));
  }
  m.z /= range.Count();
  m.y /= range.Count();
  for (int i = range.first; i <= range.last; ++i) {
    const long double z = analysis::Score(rankits, M, i) - m.z;
    m.zz += z * z;
    m.zy += z * (std::log(static_cast<long double>(At(outcomes, i))) - m.y);
  }
  return m;
}

}  // namespace

double SquaresAboutMean(const Outcomes& outcomes) {
  const long double mean = MeanLog(outcomes);
  long double sum = 0;
  for (const double c : outcomes) {
    const long double away = std::log(static_cast<long double>(c)) - mean;
    sum += away * away;
  }
  return static_cast<double>(sum);
}

bool HasSpread(const Outcomes& outcomes, double df) {
  constexpr double kNone = 1E-10;
  constexpr double kTooLarge = 10000;
  const double squares = SquaresAboutMean(outcomes);
  return squares > kNone && (df <= 0 || std::exp(std::sqrt(squares / df)) < kTooLarge);
}

Sample WholeSample(const Outcomes& outcomes, double df) {
  return {static_cast<double>(std::exp(MeanLog(outcomes))),
          std::exp(std::sqrt(SquaresAboutMean(outcomes) / df)), df};
}

std::optional<Sample> LineThrough(const Outcomes& outcomes, const Range& range) {
  if (range.first < 1 || range.last > Size(outcomes)) return std::nullopt;
  const bool equal = At(outcomes, range.first) == At(outcomes, range.last);
  if (Size(outcomes) < 3 || range.Count() < 2 || equal) return std::nullopt;
  const auto rankits = analysis::RankitsForSampleSize(Size(outcomes));
  const Moments m = AboutMeans(outcomes, range, rankits);
  const long double slope = m.zy / m.zz;
  return Sample{static_cast<double>(std::exp(m.y - slope * m.z)),
                static_cast<double>(std::exp(slope)), RangeDf(Size(outcomes), range.Count())};
}

bool Plausible(const Sample& sample) {
  return sample.GM >= 1E-10 && sample.GM <= 1E+10 && sample.GSD >= 1.001 && sample.GSD <= 1000;
}

double MedianOf(const Outcomes& outcomes) {
  const int M = Size(outcomes);
  return (At(outcomes, (M + 1) / 2) + At(outcomes, M / 2 + 1)) / 2;
}

double RangeDf(int M, int inRange) {
  return std::min(std::floor((M + inRange) / 2.0) - 1, 2.0 * inRange);
}

Range Counted(const Outcomes& outcomes, double LOQ, double URR) {
  const auto atMost = std::upper_bound(outcomes.begin(), outcomes.end(), LOQ) - outcomes.begin();
  const auto below = std::lower_bound(outcomes.begin(), outcomes.end(), URR) - outcomes.begin();
  return {static_cast<int>(std::min(atMost + 1, static_cast<long>(Size(outcomes)))),
          static_cast<int>(std::max(below, 1L))};
}

DetectionLimits WithLower(const Outcomes& outcomes, DetectionLimits present, double t) {
  const double standard = kBelowLowest * outcomes.front();
  present.range.first = 1;
  if (0.9999 * outcomes.back() <= t || standard > t) {
    const bool tooHigh = 0.9999 * outcomes.back() <= t;
    const bool tooFew = Size(outcomes) >= 3 && t > At(outcomes, present.range.last - 2);
    present.LOQ = !tooHigh && tooFew ? At(outcomes, present.range.last - 3) : standard;
  } else if (Size(outcomes) >= 3 && t > At(outcomes, present.range.last - 2)) {
    present.LOQ = At(outcomes, present.range.last - 3);
  } else {
    present.LOQ = t;
    present.range.first = Counted(outcomes, t, present.URR).first;
  }
  return present;
}

DetectionLimits WithUpper(const Outcomes& outcomes, DetectionLimits present, double t) {
  const double standard = kAboveHighest * outcomes.back();
  present.range.last = Size(outcomes);
  if (1.0001 * outcomes.front() >= t || 1.0001 * standard < t) {
    present.URR = standard;
  } else if (Size(outcomes) >= 3 && t < At(outcomes, present.range.first + 2)) {
    present.URR = At(outcomes, present.range.first + 3);
  } else {
    present.URR = t;
    present.range.last = Counted(outcomes, present.LOQ, t).last;
  }
  return present;
}

double SpreadTolerance(const Outcomes& outcomes) {
  double squares = 0;
  for (const double c : outcomes) squares += std::log(c) * std::log(c);
  const double sums = 1E-14 + 2E-16 * static_cast<double>(outcomes.size());
  return 1E-10 + sums * squares / SquaresAboutMean(outcomes);
}

}  // namespace walks
