#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace GlobalBAS {
namespace {

constexpr int kEightHours = 334;
constexpr double kLeastPercent = 0.01;
constexpr double kDefaultU = 95;
constexpr double kDefaultD = 70;
constexpr double kDefaultOELV = 1;

}  // namespace

// An absent or refused limit becomes 1 with LimitsOk false; the next run finds the 1 in range and
// reports LimitsOk true. The screens rely on these two steps.
void StatusFlags(ExposureSession& s) {
  s.IdentOk = !s.Name.empty() && s.M > 1 && s.M <= 2000;
  s.DescOk = s.IdentOk && InRangeGM(s.GM) && InRangeGSD(s.GSD);
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
