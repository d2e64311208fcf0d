#include "tests/walks/expected.h"

#include <cmath>
#include <map>
#include <tuple>
#include <vector>

#include "base/fault.h"
#include "compliance/en689.h"
#include "compliance/leidel.h"
#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"
#include "compliance/wilks.h"
#include "session/global_bas.h"
#include "ucl/jahr.h"
#include "ucl/mean_on_record.h"

namespace walks {
namespace {

using Key = std::vector<double>;

Key KeyOf(const Sample& sample, const Limits& limits) {
  return {sample.GM, sample.GSD, sample.df, limits.OELV, limits.U, limits.D};
}

// The result of `calculate`, kept by its arguments; none where it faults.
template <typename Result, typename CacheKey, typename Calculate>
std::optional<Result> Kept(std::map<CacheKey, std::optional<Result>>& cache, const CacheKey& key,
                           Calculate calculate) {
  const auto known = cache.find(key);
  if (known != cache.end()) return known->second;
  std::optional<Result> result;
  try {
    result = calculate();
  } catch (const RunTimeError&) {
    result.reset();
  }
  return cache[key] = result;
}

ExposureSession RecordOf(const Sample& sample, const Limits& limits) {
  ExposureSession s;
  s.GM = sample.GM;
  s.GSD = sample.GSD;
  s.df = sample.df;
  s.M = sample.df + 1;
  s.OELV = limits.OELV;
  s.U = limits.U;
  s.D = limits.D;
  return s;
}

double Distance(const Sample& sample, const Limits& limits) {
  return Divide(Log(Divide(limits.OELV, sample.GM)), Log(sample.GSD));
}

TestExpected Leidel(const Sample& sample, const Limits& limits) {
  TestExpected test;
  test.first = compliance::LeidelExceedance(Distance(sample, limits));
  test.limit =
      compliance::LeidelToleranceLimit(sample.GM, sample.GSD, compliance::LeidelDeviate(limits.U));
  return test;
}

TestExpected Wilks(const Sample& sample, const Limits& limits) {
  TestExpected test;
  test.first = compliance::WilksExceedance(sample.df, Distance(sample, limits));
  const auto limit = compliance::WilksToleranceLimit(sample.GM, sample.GSD, limits.U, sample.df);
  if (limit.clamp == compliance::Clamp::None) test.limit = limit.UTL;
  return test;
}

TestExpected En689(const Sample& sample, const Limits& limits) {
  TestExpected test;
  const ExposureSession s = RecordOf(sample, limits);
  const double Ur = Distance(sample, limits);
  if (limits.U > 50) {
    test.first = compliance::En689ConfidenceAt(sample.df, limits.U, Ur);
    test.limit = compliance::En689ToleranceLimit(s).UTL;
  }
  const auto fraction = compliance::En689Fraction(s, Ur);
  if (fraction.text)
    test.thirdText = fraction.text;
  else
    test.third = fraction.u;
  return test;
}

SampleSizeExpected SampleSize(ExposureSession s) {
  s.TestTag = Extrapolation::Wilks;
  const auto found = compliance::OptimiseSampleSize(s);
  SampleSizeExpected size;
  size.coverageTooLow = found.outcome == compliance::SampleSizeCase::CoverageTooLow;
  size.df = found.boxes.DegrMinTxb;
  size.PercEx = found.boxes.PercExTxB3;
  size.Mopt = found.boxes.SampMinTxB;
  return size;
}

UpperExpected Land(ExposureSession s) {
  ucl::TakeMeanStatistics(s);
  const auto found = ucl::LandCmb(s);
  return {found.UCL, found.A};
}

}  // namespace

std::optional<TestExpected> ExpectedTest(const std::string& tag, const Sample& sample,
                                         const Limits& limits) {
  using TagKey = std::pair<std::string, Key>;
  static std::map<TagKey, std::optional<TestExpected>> cache;
  return Kept(cache, TagKey{tag, KeyOf(sample, limits)}, [&] {
    return tag == "Le"   ? Leidel(sample, limits)
           : tag == "Wi" ? Wilks(sample, limits)
                         : En689(sample, limits);
  });
}

std::optional<SampleSizeExpected> ExpectedSampleSize(const Sample& sample, const Limits& limits,
                                                     double M, bool regression, int inRange) {
  static std::map<Key, std::optional<SampleSizeExpected>> cache;
  Key key = KeyOf(sample, limits);
  key.insert(key.end(), {M, regression ? 1.0 : 0.0, 1.0 * inRange});
  return Kept(cache, key, [&] {
    ExposureSession s = RecordOf(sample, limits);
    s.M = M;
    s.RegressionOn = regression;
    s.NInRange = static_cast<std::int16_t>(inRange);
    return SampleSize(s);
  });
}

std::optional<MeanExpected> ExpectedMean(const Sample& sample) {
  static std::map<Key, std::optional<MeanExpected>> cache;
  return Kept(cache, KeyOf(sample, {}), [&] {
    ExposureSession s = RecordOf(sample, {});
    ucl::TakeMeanStatistics(s);
    return MeanExpected{s.GMu, s.AMu};
  });
}

std::optional<UpperExpected> ExpectedJahr(const Sample& sample, const Limits& limits) {
  static std::map<Key, std::optional<UpperExpected>> cache;
  return Kept(cache, KeyOf(sample, limits), [&] {
    ExposureSession s = RecordOf(sample, limits);
    ucl::TakeMeanStatistics(s);
    const auto jahr = ucl::JahrUCL(s.AMu, s.GSD, s.df, s.D, limits.OELV);
    return UpperExpected{jahr.UCL, jahr.PercEx};
  });
}

std::optional<UpperExpected> ExpectedLand(const Sample& sample, const Limits& limits, double M) {
  static std::map<Key, std::optional<UpperExpected>> cache;
  return Kept(cache, KeyOf(sample, limits), [&] {
    ExposureSession s = RecordOf(sample, limits);
    s.M = M;
    return Land(s);
  });
}

double TypedNumber(const std::string& text) { return GlobalBAS::ReadNumber(text); }

}  // namespace walks
