#include "compliance/leidel.h"

#include "base/fault.h"
#include "stats/normal.h"

namespace compliance {

double LeidelExceedance(double Ur) { return Checked(StatFWinBAS::NormalUpper(Ur) * 100); }

bool LeidelComplies(double PercEx) { return PercEx < 5; }

double LeidelDeviate(double U) {
  double p = 1 - U / 100;
  return Checked(StatFWinBAS::NormalUpperInverse(p));
}

double LeidelToleranceLimit(double GM, double GSD, double deviate) {
  return Checked(GM * Power(GSD, deviate));
}

}  // namespace compliance
