#include "compliance/wilks.h"

#include "base/fault.h"
#include "stats/student.h"

namespace compliance {
namespace {

constexpr double kLogBound = 700;  // of the natural logarithm of a tolerance limit

const char* ClampText(Clamp clamp) {
  return clamp == Clamp::Below1E300th ? "Upper tolerance limit is smaller than 1E-300"
                                      : "Upper tolerance limit is larger than 1E+300";
}

}  // namespace

double WilksSpread(double df) { return Sqrt(Divide(1, df + 1) + 1); }

double WilksExceedance(double df, double Ur) {
  const double t = Divide(Ur, WilksSpread(df));
  return Checked(StatFWinBAS::StudentUpper(double{df}, t) * 100);
}

bool WilksComplies(double PercEx) { return PercEx < 5; }

WilksLimit WilksToleranceLimit(double GM, double GSD, double U, double df) {
  WilksLimit limit;
  limit.WilksFactor = Checked(StatFWinBAS::StudentUpperInverse(1 - U / 100, double{df}));
  const double g = Checked(WilksSpread(df) * limit.WilksFactor);
  if (Log(GM) - g * Log(GSD) < -kLogBound)
    limit.clamp = Clamp::Below1E300th;
  else if (Log(GM) + g * Log(GSD) > kLogBound)
    limit.clamp = Clamp::Above1E300;
  else
    limit.UTL = Checked(Power(GSD, g) * GM);
  return limit;
}

WilksResult WilksTest(ExposureSession& s, double Ur) {
  s.TestTag = "Wi";
  s.PercEx = WilksExceedance(s.df, Ur);
  WilksResult result;
  result.compliance = WilksComplies(s.PercEx);
  result.limit = WilksToleranceLimit(s.GM, s.GSD, s.U, s.df);
  if (result.limit.clamp == Clamp::None)
    s.UTL = result.limit.UTL;
  else
    s.MsgText = ClampText(result.limit.clamp);
  return result;
}

}  // namespace compliance
