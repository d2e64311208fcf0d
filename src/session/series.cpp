#include <algorithm>

#include "session/exposure_session.h"

void GrowSeries(ExposureSession& s) {
  const auto size = static_cast<std::size_t>(SampleCount(s)) + 1;
  if (s.C.size() < size) s.C.resize(size);
  if (s.LnC.size() < size) s.LnC.resize(size);
}

void SizeSeries(ExposureSession& s) {
  const auto size = static_cast<std::size_t>(SampleCount(s)) + 1;
  s.C.resize(size);
  s.LnC.resize(size);
}

bool HasUnfilled(const ExposureSession& s) {
  const auto size = static_cast<std::size_t>(SampleCount(s)) + 1;
  if (s.C.size() < size) return true;
  return std::any_of(s.C.begin() + 1, s.C.begin() + static_cast<std::ptrdiff_t>(size),
                     [](double c) { return c <= 0; });
}
