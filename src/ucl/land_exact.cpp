#include "ucl/land_exact.h"

#include <cstdint>

#include "base/fault.h"
#include "ucl/land_probability.h"
#include "ucl/land_search.h"

namespace UCLBAS {
namespace {

double FirstEnd(double nu, double s) {
  if (s <= 1) return Divide(s * -7.5, Sqrt(nu));
  return Divide((-3 - 2 * s) * s, Sqrt(nu));
}

// The smallest samples have the largest factors.
double SecondEnd(double nu, double s) {
  const double x2 = Divide(10 * s * s, Sqrt(nu));
  return nu <= 5 ? Checked(x2 * Exp(6 - nu)) : x2;
}

// The root, in an interval that moves by tens until it holds one.
double Root(double nu, double s, double p, LandWatch& watch) {
  double x1 = FirstEnd(nu, s);
  double x2 = SecondEnd(nu, s);
  double f1 = 0, f2 = 0, C = 0;
  std::int16_t status = 0;
  for (;;) {
    LandRootSearch(nu, s, x1, x2, f1, f2, p, C, status, watch);
    if (status == 0) return C;
    if (status < 0) {
      x2 = x1;
      x1 = Checked(10 * x1);
    } else {
      x1 = x2;
      x2 = Checked(10 * x2);
    }
  }
}

}  // namespace

LandLimit LandExactUCL(double lambda, double nu, double s, double mean, double confidence,
                       LandWatch& watch) {
  const double rootN = Sqrt(nu + 1);
  const double q = confidence / 100;
  LandLimit limit;
  limit.C = Root(nu, s, lambda < 0 ? q : 1 - q, watch);
  limit.Factor = Divide(limit.C * Sqrt(nu), s);
  watch.ConFactTxb = limit.Factor;
  watch.Tell(LandSign::ConFactTxb);
  const double theta = Checked(lambda * s * s + mean);
  const double width = Divide(s, rootN) * SignNonZero(lambda) * Sqrt(Divide(nu + 1, nu));
  limit.UCL = Checked(width * limit.Factor + theta);
  watch.UCL = limit.UCL;
  watch.Tell(LandSign::Limit);
  return limit;
}

}  // namespace UCLBAS
