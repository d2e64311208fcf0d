#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace GlobalBAS {
namespace {

constexpr int kEightHours = 334;
constexpr double kLeastPercent = 0.01;

}  // namespace

bool Identified(const Given& given) {
  return !given.Name.empty() && given.M > 1 && given.M <= kMaxSampleSize && !given.refusedFile;
}

bool EstimatesInRange(const Derived& d) {
  return !d.noEstimates && InRangeGM(d.GM) && InRangeGSD(d.GSD);
}

// An absent or refused limit becomes 1 with LimitsOk false; the next run finds the 1 in range and
// reports LimitsOk true. The screens rely on these two steps.
void StatusFlags(ExposureSession& s) {
  s.IdentOk = Identified(s);
  s.DescOk = s.IdentOk && EstimatesInRange(s);
  s.LimitsOk = InRangeOELV(s.OELV);
  if (s.LimitsOk) {
    if (s.U < kLeastPercent) s.U = kDefaultU;
    if (s.D < kLeastPercent) s.D = kDefaultD;
  } else {
    s.OELV = kDefaultOELV;
    s.RefPeriod = LoadResString(kEightHours);
    s.Duration = LoadResString(kEightHours);
  }
}

}  // namespace GlobalBAS
