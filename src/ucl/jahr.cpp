#include "ucl/jahr.h"

#include <utility>

#include "base/fault.h"
#include "stats/student.h"

namespace ucl {

JahrLimit JahrUCL(double AMu, double GSD, double df, double D, double OELV) {
  const double q = 1 - D / 100;
  const double rootDf = Sqrt(df);
  const double t = Checked(StatFWinBAS::StudentUpperInverse(q, std::as_const(df)));
  const double k = Divide(t, rootDf);
  JahrLimit limit;
  limit.UCL = Checked(Log(AMu) + k * Log(GSD));
  const double x = Checked(Divide(Log(Divide(OELV, AMu)), Log(GSD)) * rootDf);
  limit.PercEx = Checked(100 * StatFWinBAS::StudentUpper(std::as_const(df), x));
  return limit;
}

}  // namespace ucl
