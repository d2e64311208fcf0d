#include "tests/sessions/random_session.h"
#include "session/moments.h"

#include <cmath>
#include <iomanip>
#include <random>
#include <sstream>

#include "base/fault.h"
#include "stats/estimators.h"

namespace sessions {
namespace {

class Draw {
 public:
  explicit Draw(std::uint64_t number) : bits_(number) {}

  double Unit() { return static_cast<double>(bits_() >> 11U) * 0x1p-53; }
  bool OneIn(int n) { return Unit() * n < 1; }
  double Within(double low, double high) { return low + (high - low) * Unit(); }
  double LogWithin(double low, double high) {
    return std::exp(Within(std::log(low), std::log(high)));
  }
  template <std::size_t N>
  double OneOf(const double (&values)[N]) {
    return values[static_cast<std::size_t>(Unit() * N)];
  }

 private:
  std::mt19937_64 bits_;
};

double SampleSize(Draw& draw) {
  constexpr double borders[] = {2,   3,   4,   5,   6,   7,    11,   12,   20,   21,  199,
                                200, 201, 202, 203, 999, 1000, 1001, 1002, 1999, 2000};
  if (draw.OneIn(4)) return draw.OneOf(borders);
  return std::floor(draw.LogWithin(2, 2001));
}

double GeometricMean(Draw& draw) {
  constexpr double borders[] = {0.0001, 1, 10000};
  return draw.OneIn(10) ? draw.OneOf(borders) : draw.LogWithin(0.0001, 10000);
}

double Deviation(Draw& draw) {
  constexpr double borders[] = {1.001, 1.0011, 2, 1000};
  if (draw.OneIn(10)) return draw.OneOf(borders);
  // Evenly in the logarithm of ln GSD: half of the sessions have a GSD below 1.09.
  if (draw.OneIn(4)) return std::exp(draw.LogWithin(std::log(1.0011), std::log(999.9)));
  return draw.LogWithin(1.1, 1000);
}

// Anywhere, or where the verdict hangs in the balance: within some standard deviations of the GM.
double LimitValue(Draw& draw, const ExposureSession& s) {
  constexpr double borders[] = {1e-10, 1e10};
  if (draw.OneIn(20)) return draw.OneOf(borders);
  if (draw.OneIn(20)) return s.GM;
  if (draw.OneIn(3)) return draw.LogWithin(1e-10, 1e10);
  const double near = s.GM * std::pow(s.GSD, draw.Within(-5, 5));
  return std::fmin(1e10, std::fmax(1e-10, near));
}

double Percent(Draw& draw) {
  constexpr double borders[] = {0.01, 0.94, 0.95, 5,  49.99, 50,    50.01, 70,
                                75,   90,   95,   99, 99.75, 99.76, 99.9,  99.99};
  if (draw.OneIn(2)) return draw.OneOf(borders);
  return std::round(draw.Within(0.01, 99.99) * 100) / 100;
}

double ReferenceSize(Draw& draw) {
  constexpr double borders[] = {2, 3, 30000};
  return draw.OneIn(5) ? draw.OneOf(borders) : std::floor(draw.LogWithin(2, 30001));
}

// A series with outcomes outside its range has fewer degrees of freedom.
void DrawRange(Draw& draw, ExposureSession& s) {
  s.NInRange = static_cast<std::int16_t>(s.M);
  s.RegressionOn = s.M > 3 && draw.OneIn(4);
  s.DetecOn = s.RegressionOn;
  if (s.RegressionOn)
    s.NInRange = static_cast<std::int16_t>(3 + std::floor((s.M - 3) * draw.Unit()));
  DegreesOfFreedom(s);
}

}  // namespace

ExposureSession RandomSession(std::uint64_t number) {
  Draw draw(number);
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.CR = "\r";
  s.SigDigits = 4;
  s.M = SampleSize(draw);
  DrawRange(draw, s);
  s.GM = GeometricMean(draw);
  s.GSD = Deviation(draw);
  s.OELV = LimitValue(draw, s);
  s.U = Percent(draw);
  s.D = Percent(draw);
  s.M2 = ReferenceSize(draw);
  s.GM2 = draw.OneIn(10) ? s.GM : GeometricMean(draw);
  s.GSD2 = draw.OneIn(10) ? s.GSD : Deviation(draw);
  s.LnGM = Log(s.GM);
  s.LnGSD = Log(s.GSD);
  return s;
}

std::string Described(std::uint64_t number, const ExposureSession& s) {
  std::ostringstream text;
  text << std::setprecision(17) << "session " << number << ": M " << s.M << ", df " << s.df
       << ", NInRange " << s.NInRange << ", RegressionOn " << s.RegressionOn << ", GM " << s.GM
       << ", GSD " << s.GSD << ", OELV " << s.OELV.value_or(0) << ", U " << s.U << ", D " << s.D
       << ", M2 " << s.M2 << ", GM2 " << s.GM2 << ", GSD2 " << s.GSD2;
  return text.str();
}

double StandardisedDistance(const ExposureSession& s) {
  return Divide(Log(Divide(s.OELV.value_or(0), s.GM)), Log(s.GSD));
}

}  // namespace sessions
