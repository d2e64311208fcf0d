#include "session/derivation.h"

#include <algorithm>
#include <cmath>

#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "session/limit_checks.h"
#include "session/moments.h"

namespace {

double SeriesM(const Given& given) { return given.original ? given.original->M : given.M; }

bool ValidSampleSize(double M) { return M >= 2 && M <= kMaxSampleSize; }

bool HasUnfilled(const Given& g) {
  const auto first = g.C.begin() + 1;
  return std::any_of(first, first + SeriesCount(g), [](double c) { return c <= 0; });
}

// No element is dropped: outcomes beyond M come back with the sample size.
void GrowSeries(Given& g) {
  const auto size = static_cast<std::size_t>(SeriesCount(g)) + 1;
  if (g.C.size() < size) g.C.resize(size);
}

void SortSeries(Given& g) {
  const int M = SeriesCount(g);
  std::sort(g.C.begin() + 1, g.C.begin() + 1 + M);
  g.C[0] = MedianOf(g.C, M);
}

// Without a detection range its ends are those of the series; with one, ends that nobody has set
// yet are.
void SettleRange(Given& g) {
  const auto M = static_cast<std::int16_t>(SeriesCount(g));
  Given series = g;
  series.M = M;
  if (!g.DetecOn) g.LOQStated = g.URRStated = false;
  if (!g.DetecOn || g.LOQ == 0) g.LOQ = DefaultLOQ(series);
  if (!g.DetecOn || g.URR == 0) g.URR = DefaultURR(series);
  if (!g.DetecOn || g.FirstInRange < 1) g.FirstInRange = 1;
  if (!g.DetecOn || g.LastInRange < 1 || g.LastInRange > M) g.LastInRange = M;
  if (!g.DetecOn) g.NInRange = M;
}

// Estimates that there are no grounds for give way to those that there are.
void SettleEstimates(Given& g) {
  const bool typed = g.Mode == DataMode::Statistics || g.original;
  if (typed) {
    g.inForce = Estimates::Typed;
    return;
  }
  if (g.inForce == Estimates::Typed) g.inForce = Estimates::WholeSample;
  if (!g.DetecOn) g.inForce = Estimates::WholeSample;
  if (g.inForce == Estimates::Regression && !g.regression) g.inForce = Estimates::RangeDegrees;
  if (g.inForce != Estimates::Regression) g.regression.reset();
}

void EstimateFromSeries(const Given& g, Derived& d) {
  const double M = SeriesM(g);
  d.df = g.inForce == Estimates::WholeSample ? M - 1 : DegreesOfFreedom(M, g.DetecOn, g.NInRange);
  const GeometricMoments moments = LogMoments(g.C, M, d.df);
  d.spread = moments.spread;
  d.GM = moments.GM;
  d.GSD = moments.GSD.value_or(0);
  d.noEstimates = d.df < 1 || moments.spread != Spread::Fine;
  // A line through the outcomes in range has its own spread, whatever that of all outcomes is with
  // the few degrees of freedom that the range leaves.
  if (g.inForce != Estimates::Regression || d.df < 1) return;
  d.spread = Spread::Fine;
  d.noEstimates = false;
  d.GM = g.regression->GM;
  d.GSD = g.regression->GSD;
  d.RegressionOn = true;
}

void TakeTyped(const Given& g, Derived& d) {
  d.df = std::isfinite(g.M) && g.M >= 1 ? g.M - 1 : 0;
  d.GM = g.TypedGM;
  d.GSD = g.TypedGSD;
}

// The longest of the outcomes, and of what was typed for GM and GSD.
std::int16_t WidthOf(const Given& g, bool series) {
  std::size_t width = 0;
  for (int i = 1; series && i <= SeriesCount(g); ++i) {
    const double outcome = g.C[static_cast<std::size_t>(i)];
    width = std::max(width, GlobalBAS::GeneralText(outcome).size());
  }
  return std::max(g.typedWidth, static_cast<std::int16_t>(width));
}

std::vector<double> Logarithms(const Given& g) {
  std::vector<double> LnC(g.C.size());
  for (std::size_t i = 1; i <= static_cast<std::size_t>(SeriesCount(g)); ++i)
    LnC[i] = std::log(g.C[i]);
  return LnC;
}

}  // namespace

int SeriesCount(const Given& given) { return SampleCount(SeriesM(given)); }

const std::string& SeriesName(const Given& given) {
  return given.original ? given.original->Name : given.Name;
}

std::string CensoringLabel(const Given& given) {
  constexpr int kWords[] = {1757, 1754, 1752};
  constexpr int kCensored = 1758;
  const int ends =
      (given.FirstInRange > 1 ? 1 : 0) + (given.LastInRange < SeriesCount(given) ? 1 : 0);
  return LoadResString(kWords[ends]) + " " + LoadResString(kCensored);
}

bool CompleteSeries(const Given& given) {
  return given.Mode == DataMode::Raw && !given.refusedFile && ValidSampleSize(SeriesM(given)) &&
         given.C.size() > static_cast<std::size_t>(SeriesCount(given)) && !HasUnfilled(given);
}

Consequences ConsequencesOf(Given g) {
  Derived d;
  const bool raw = g.Mode == DataMode::Raw && !g.refusedFile;
  if (raw && SeriesCount(g) > 0) GrowSeries(g);
  const bool complete = CompleteSeries(g);
  d.RawIncomplete = raw && (SeriesCount(g) > 0 ? HasUnfilled(g) : g.newSeries);
  d.ModifyMode = g.original.has_value();
  SettleEstimates(g);
  if (complete) {
    SortSeries(g);
    SettleRange(g);
    d.LnC = Logarithms(g);
  } else {
    d.LnC.assign(g.C.size(), 0.0);
  }
  d.SortOrder = complete ? "Ascending" : "Onbekend";
  d.SigDigits = WidthOf(g, raw && SeriesCount(g) > 0);
  if (g.inForce == Estimates::Typed)
    TakeTyped(g, d);
  else if (complete)
    EstimateFromSeries(g, d);
  return {std::move(g), std::move(d)};
}
