#include "drive/call.h"
#include "stats/chi_f.h"
#include "stats/noncentral_t.h"
#include "stats/student.h"

namespace drive {

const std::vector<Routine>& DistributionRoutines() {
  static const std::vector<Routine> routines = {
      {"StudentUpper", 2, TwoByReference<StatFWinBAS::StudentUpper>},
      {"StudentUpperInverse", 2, TwoByReference<StatFWinBAS::StudentUpperInverse>},
      {"StudentUpperInverseSeries", 2, TwoByReference<StatFWinBAS::StudentUpperInverseSeries>},
      {"NoncentralTUpper", 3, ThreeByReference<StatFWinBAS::NoncentralTUpper>},
      {"OwenT", 2, TwoByReference<StatFWinBAS::OwenT>},
      {"ChiUpper", 2, TwoByReference<StatFWinBAS::ChiUpper>},
      {"FUpper", 3, ThreeByReference<StatFWinBAS::FUpper>},
  };
  return routines;
}

}  // namespace drive
