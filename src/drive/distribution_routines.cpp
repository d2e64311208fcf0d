#include "drive/call.h"
#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"

namespace drive {

const std::vector<Routine>& DistributionRoutines() {
  static const std::vector<Routine> routines = {
      {"StudentUpper", 2, OnNumbers<StatFWinBAS::StudentUpper, 2>},
      {"StudentUpperInverse", 2, OnNumbers<StatFWinBAS::StudentUpperInverse, 2>},
      {"StudentUpperInverseSeries", 2, OnNumbers<StatFWinBAS::StudentUpperInverseSeries, 2>},
      {"NoncentralTUpper", 3, OnNumbers<StatFWinBAS::NoncentralTUpperInPlace, 3>},
      {"OwenT", 2, OnNumbers<StatFWinBAS::OwenTInPlace, 2>},
      {"ChiUpper", 2, OnNumbers<StatFWinBAS::ChiUpper, 2>},
      {"FUpper", 3, OnNumbers<StatFWinBAS::FUpper, 3>},
  };
  return routines;
}

}  // namespace drive
