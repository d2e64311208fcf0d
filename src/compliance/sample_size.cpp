#include "compliance/sample_size.h"

#include <cmath>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "compliance/en689.h"
#include "stats/normal.h"
#include "stats/student.h"

namespace compliance {
namespace {

constexpr double kMostDegrees = 99;
constexpr double kLargeSample = 100;

double Int(double x) { return std::trunc(x); }

class Optimisation {
 public:
  Optimisation(ExposureSession& s, const SampleSizeProgress& progress)
      : s_(s), progress_(progress), M0_(s.M), df0_(s.df) {}
  Optimisation(const Optimisation&) = delete;
  Optimisation& operator=(const Optimisation&) = delete;
  ~Optimisation() {
    s_.M = M0_;
    s_.df = df0_;
  }

  SampleSizeResult Run() {
    Boxes().ComMinLbl = LoadResString(3403) + LoadResString(3404) + LoadResString(3405);
    Tell();
    out_.Ur = Divide(Log(Divide(s_.OELV.value_or(0), s_.GM)), Log(s_.GSD));
    s_.PercEx = Checked(StatFWinBAS::NormalUpper(double{out_.Ur}) * 100);
    if (Ratio() < 1) return AnySize();
    s_.M = 2;
    s_.df = 1;
    s_.PercEx = Exceedance(Sqrt(1.5));
    if (Ratio() > 1) return OneDegree();
    Search();
    return Optimum();
  }

 private:
  SampleSizeBoxes& Boxes() { return out_.boxes; }
  void Tell() const {
    if (progress_) progress_(out_.boxes);
  }
  double Ratio() const { return ComplianceRatio(s_.PercEx, s_.U); }

  double Exceedance(double spread) {
    ++out_.evaluations;
    const double t = Divide(out_.Ur, spread);
    return Checked(StatFWinBAS::StudentUpper(double{s_.df}, t) * 100);
  }

  SampleSizeResult AnySize() {
    out_.outcome = SampleSizeCase::AnySize;
    Boxes().DegrMinLbl = 3440;
    Boxes().PercExLbl3 = 3441;
    Boxes().PercExTxB3 = s_.PercEx;
    Boxes().infinite = true;
    Boxes().ComMinLbl += s_.CR + LoadResString(kAnySampleSizeText);
    return out_;
  }

  void Search() {
    do {
      if (s_.df >= kMostDegrees) break;
      s_.PercEx = Exceedance(Sqrt(Divide(1, s_.M) + 1));
      s_.df = s_.df + 1;
      s_.M = s_.df + 1;
      prefix_ = out_.Ur <= 0 ? 3445 : 3443;
      if (out_.Ur > 0) ShowPass();
    } while (Ratio() <= 1);
  }

  void ShowPass() {
    Boxes().DegrMinLbl = 3423;
    Boxes().DegrMinTxb = s_.df;
    Boxes().PercExLbl3 = 3411;
    Boxes().PercExTxB3 = s_.PercEx;
    Boxes().SampMinLbl = 3412;
    Boxes().SampMinTxB = s_.M;
    Tell();
  }

  SampleSizeResult Optimum() {
    out_.outcome = SampleSizeCase::Search;
    out_.df = s_.df;
    Boxes().ComMinLbl += s_.CR;
    out_.Mopt = OptimalSize();
    Boxes().ComMinLbl += s_.CR + LoadResString(prefix_) + LoadResString(Comment());
    Boxes().SampMinTxB = out_.Mopt;
    return out_;
  }

  // The sample that has these degrees of freedom. A regression on part of the sample has fewer of
  // them than M - 1, in a proportion that is carried over.
  double OptimalSize() const {
    const double df = s_.df;
    if (!s_.RegressionOn || M0_ - 1 == df0_) return df + 1;
    const double inRange = s_.NInRange;
    if (df0_ == 2 * inRange) {
      if (df <= 4) return Int(Divide(M0_ + M0_, inRange) + 0.5);
      return Int((Divide(df * M0_, inRange) + 1) / 2);
    }
    const double v = df <= 4 ? Divide(M0_ * 4, inRange) : Divide((df + df) * M0_, inRange + M0_);
    return Int(v + 0.5) + 1;
  }

  int Comment() const {
    if (out_.Mopt >= kLargeSample) return 3430;
    if (out_.Mopt == M0_) return 3420;
    return out_.Mopt < M0_ ? 3421 : 3422;
  }

  // A sample of which one outcome would do is still shown as the number that stands in the box.
  SampleSizeResult OneDegree() {
    out_.outcome = SampleSizeCase::OneDegree;
    out_.df = s_.df;
    Boxes().DegrMinTxb = s_.df;
    Boxes().PercExTxB3 = s_.PercEx;
    Boxes().SampMinLbl = 3412;
    out_.Mopt = 2;
    if (s_.RegressionOn) out_.Mopt = Int(Divide(M0_ + M0_, double(s_.NInRange)) + 0.5);
    Boxes().SampMinTxB = out_.Mopt;
    Boxes().DegrMinLbl = out_.Ur <= 0 ? 3416 : 3413;
    Boxes().PercExLbl3 = out_.Ur <= 0 ? 3418 : 3415;
    Boxes().ComMinLbl += s_.CR + LoadResString(3448);
    return out_;
  }

  ExposureSession& s_;
  const SampleSizeProgress& progress_;
  const double M0_;
  const double df0_;
  int prefix_ = 3443;
  SampleSizeResult out_;
};

}  // namespace

double ComplianceRatio(double P, double U) { return Divide(P - 50, 50 - U); }

SampleSizeResult OptimiseSampleSize(ExposureSession& s, const SampleSizeProgress& progress) {
  if (s.TestTag != "Wi") return {};
  if (CoverageTooLow(s)) {
    SampleSizeResult none;
    none.outcome = SampleSizeCase::CoverageTooLow;
    return none;
  }
  return Optimisation(s, progress).Run();
}

}  // namespace compliance
