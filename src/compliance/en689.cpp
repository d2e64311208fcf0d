#include "compliance/en689.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "stats/noncentral_t.h"

namespace compliance {
namespace {

constexpr double kCloseEnough = 0.001;  // of the confidence, in percent
constexpr double kLargestLimit = 1E+300;
constexpr double kSmallestLimit = 1E-300;
constexpr double kDecisionAbove = 4;  // degrees of freedom
constexpr double kHalf = 0.5;

bool Met(double ConfNow, double D) { return std::abs(ConfNow - D) < kCloseEnough; }

void Tell(const En689Progress& progress, TestBox box, double value) {
  if (progress) progress(box, value);
}

// The search for the tolerance limit: its candidate is UTL.
class LimitSearch {
 public:
  LimitSearch(const TestBasis& s, const En689Progress& progress)
      : s_(s), progress_(progress), lnGSD_(Log(s.GSD)) {}

  ToleranceSearch Run() {
    now_.UTL = Divide(s_.GM, s_.GSD);
    if (!Step()) return now_;
    if (now_.ConfNow > 100) now_.ConfNow = 100;
    LowerTheLowBound();
    Bisect();
    return now_;
  }

 private:
  double Confidence(double x) {
    ++now_.evaluations;
    return En689ConfidenceAt(s_.df, s_.U, Divide(Log(Divide(x, s_.GM)), lnGSD_));
  }

  // Upward by factors of GSD; whether a bisection is to follow.
  bool Step() {
    for (;;) {
      now_.LowBound = now_.UTL;
      now_.UTL = Checked(now_.UTL * s_.GSD);
      now_.ConfNow = Confidence(now_.UTL);
      ++steps_;
      now_.above1E300 = now_.UTL > kLargestLimit;
      if (now_.above1E300) return false;
      Tell(progress_, TestBox::ToleranceLimit, now_.UTL);
      if (now_.ConfNow > s_.D) return true;
      if (Met(now_.ConfNow, s_.D)) return false;
      SkipAhead();
    }
  }

  // A far limit takes tens of thousands of steps, for a GSD near 1 and few degrees of freedom. From
  // the sixteenth on whole strides are tested at once: as the confidence does not fall with x, but
  // for the rounding of its series, no step of a stride whose end stays below D would have ended
  // the stepping. The candidates are the same numbers as those of single steps.
  void SkipAhead() {
    constexpr int kSingleSteps = 16;
    constexpr double kRounding = 1E-5;
    if (steps_ < kSingleSteps) return;
    for (int stride = kSingleSteps; stride > 1;) {
      double before = now_.UTL;
      double x = now_.UTL;
      for (int i = 0; i < stride && x <= kLargestLimit; ++i) {
        before = x;
        x = x * s_.GSD;
      }
      if (x <= kLargestLimit && Confidence(x) < s_.D - kCloseEnough - kRounding) {
        now_.LowBound = before;
        now_.UTL = x;
        stride *= 2;
      } else {
        stride /= 2;
      }
    }
  }

  // Only the first step can lie above the limit that is sought with its low bound too.
  void LowerTheLowBound() {
    if (steps_ > 1) return;
    while (Confidence(now_.LowBound) - s_.D >= kCloseEnough && now_.LowBound > kSmallestLimit)
      now_.LowBound = now_.LowBound / s_.GSD;
  }

  void Bisect() {
    ToleranceSearch before;
    do {
      before = now_;
      if (now_.ConfNow - s_.D < 0) {
        now_.LowBound = now_.UTL;
        now_.UTL = (now_.UTL + now_.HighBound) / 2;
      } else {
        now_.HighBound = now_.UTL;
        now_.UTL = (now_.UTL + now_.LowBound) / 2;
      }
      now_.ConfNow = Confidence(now_.UTL);
      if (now_.UTL <= kLargestLimit) Tell(progress_, TestBox::ToleranceLimit, now_.UTL);
    } while (!Met(now_.ConfNow, s_.D) && !StandsStill(before));
  }

  bool StandsStill(const ToleranceSearch& before) const {
    return now_.UTL == before.UTL && now_.LowBound == before.LowBound &&
           now_.HighBound == before.HighBound;
  }

  const TestBasis& s_;
  const En689Progress& progress_;
  double lnGSD_;
  int steps_ = 0;
  ToleranceSearch now_;
};

// One run of the search for the fraction. With `aboveHalf` the proportion next above a half stands
// in for a half.
class FractionRun {
 public:
  FractionRun(const TestBasis& s, double Ur, const En689Progress& progress, bool aboveHalf)
      : s_(s), Ur_(Ur), progress_(progress), aboveHalf_(aboveHalf) {}

  FractionSearch Run() {
    now_.LowBound = 0;
    now_.HighBound = 100;
    now_.u = s_.U;
    now_.ConfNow = Confidence();
    if (now_.ConfNow >= 99.999999999)
      now_.text = kFractionAll;
    else if (now_.ConfNow < 1E-46)
      now_.text = kFractionNone;
    else
      Bisect();
    return now_;
  }

  // Whether this run ended for standing still, and met a half, so that another may do better.
  bool StoodStillAtHalf() const { return stoodStill_ && metHalf_ && !aboveHalf_; }

 private:
  double Confidence() {
    ++now_.evaluations;
    double p = 1 - now_.u / 100;
    if (std::abs(p - kHalf) <= 1E-16) {
      metHalf_ = true;
      if (aboveHalf_) p = std::nextafter(kHalf, 1.0);
    }
    return Checked(StatFWinBAS::NoncentralTUpper(s_.df, p, Ur_) * 100);
  }

  // A search that stands still would, with these confidences, come to its text in the hundredth
  // pass and a number otherwise.
  void Bisect() {
    constexpr int kTextsAfter = 100;
    FractionSearch before;
    for (int k = 1; !stoodStill_; ++k) {
      before = now_;
      Move();
      now_.ConfNow = Confidence();
      const bool met = Met(now_.ConfNow, s_.D);
      stoodStill_ = !met && StandsStill(before);
      if ((k > kTextsAfter || stoodStill_) && AtAnEnd()) {
        now_.text = now_.u > 50 ? kFractionAll : kFractionNone;
        return;
      }
      Tell(progress_, TestBox::Fraction, now_.u);
      if (met) return;
    }
  }

  void Move() {
    if (now_.ConfNow - s_.D > 0) {
      now_.LowBound = now_.u;
      now_.u = (now_.u + now_.HighBound) / 2;
    } else {
      now_.HighBound = now_.u;
      now_.u = (now_.u + now_.LowBound) / 2;
    }
  }

  bool AtAnEnd() const { return now_.ConfNow >= 99.9999999 || now_.ConfNow < 1E-46; }

  bool StandsStill(const FractionSearch& before) const {
    return now_.u == before.u && now_.LowBound == before.LowBound &&
           now_.HighBound == before.HighBound;
  }

  const TestBasis& s_;
  double Ur_;
  const En689Progress& progress_;
  bool aboveHalf_;
  bool metHalf_ = false;
  bool stoodStill_ = false;
  FractionSearch now_;
};

}  // namespace

double En689ConfidenceAt(double df, double u, double r) {
  const double p = 1 - u / 100;
  return Checked(StatFWinBAS::NoncentralTUpper(df, p, r) * 100);
}

ToleranceSearch En689ToleranceLimit(const TestBasis& s, const En689Progress& progress) {
  return LimitSearch(s, progress).Run();
}

FractionSearch En689Fraction(const TestBasis& s, double Ur, const En689Progress& progress) {
  FractionRun first(s, Ur, progress, false);
  const FractionSearch found = first.Run();
  if (!first.StoodStillAtHalf()) return found;
  FractionSearch again = FractionRun(s, Ur, progress, true).Run();
  again.ranTwice = true;
  again.evaluations += found.evaluations;
  return again;
}

bool En689Decides(double df) { return df > kDecisionAbove; }

std::optional<bool> En689Complies(double df, double UTL, double OELV) {
  if (!En689Decides(df)) return std::nullopt;
  return UTL < OELV;
}

En689Result En689Calculation(const TestBasis& basis, double Ur, const En689Progress& progress,
                             const En689Confidence& found) {
  En689Result result;
  std::optional<double> PercEx;
  if (!CoverageTooLow(basis)) PercEx = En689ConfidenceAt(basis.df, basis.U, Ur);
  if (found) found(PercEx);
  if (PercEx) {
    result.PercEx = *PercEx;
    result.limit = En689ToleranceLimit(basis, progress);
  }
  result.fraction = En689Fraction(basis, Ur, progress);
  return result;
}

}  // namespace compliance
