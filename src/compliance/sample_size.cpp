#include "compliance/sample_size.h"

#include <cmath>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "stats/normal.h"
#include "stats/student.h"

namespace compliance {
namespace {

constexpr double kMostDegrees = 99;
constexpr double kLargeSample = 100;
constexpr char kCR[] = "\r";

double Int(double x) { return std::trunc(x); }

class Optimisation {
 public:
  Optimisation(const TestBasis& basis, const SampleSizeProgress& progress)
      : s_(basis), progress_(progress) {}

  SampleSizeResult Run() {
    Boxes().ComMinLbl = LoadResString(3403) + LoadResString(3404) + LoadResString(3405);
    Tell();
    out_.Ur = StandardisedDistance(s_);
    out_.PercEx = Checked(StatFWinBAS::NormalUpper(double{out_.Ur}) * 100);
    if (Ratio() < 1) return AnySize();
    M_ = 2;
    df_ = 1;
    out_.PercEx = Exceedance(Sqrt(1.5));
    if (Ratio() > 1) return OneDegree();
    Search();
    return Optimum();
  }

 private:
  SampleSizeBoxes& Boxes() { return out_.boxes; }
  void Tell() const {
    if (progress_) progress_(out_.boxes);
  }
  double Ratio() const { return ComplianceRatio(out_.PercEx, s_.U); }

  double Exceedance(double spread) {
    ++out_.evaluations;
    const double t = Divide(out_.Ur, spread);
    return Checked(StatFWinBAS::StudentUpper(double{df_}, t) * 100);
  }

  SampleSizeResult AnySize() {
    out_.outcome = SampleSizeCase::AnySize;
    Boxes().DegrMinLbl = 3440;
    Boxes().PercExLbl3 = 3441;
    Boxes().PercExTxB3 = out_.PercEx;
    Boxes().infinite = true;
    Boxes().ComMinLbl += kCR + LoadResString(kAnySampleSizeText);
    return out_;
  }

  void Search() {
    do {
      if (df_ >= kMostDegrees) break;
      out_.PercEx = Exceedance(Sqrt(Divide(1, M_) + 1));
      df_ = df_ + 1;
      M_ = df_ + 1;
      prefix_ = out_.Ur <= 0 ? 3445 : 3443;
      if (out_.Ur > 0) ShowPass();
    } while (Ratio() <= 1);
  }

  void ShowPass() {
    Boxes().DegrMinLbl = 3423;
    Boxes().DegrMinTxb = df_;
    Boxes().PercExLbl3 = 3411;
    Boxes().PercExTxB3 = out_.PercEx;
    Boxes().SampMinLbl = 3412;
    Boxes().SampMinTxB = M_;
    Tell();
  }

  SampleSizeResult Optimum() {
    out_.outcome = SampleSizeCase::Search;
    out_.df = df_;
    Boxes().ComMinLbl += kCR;
    out_.Mopt = OptimalSize();
    Boxes().ComMinLbl += kCR + LoadResString(prefix_) + LoadResString(Comment());
    Boxes().SampMinTxB = out_.Mopt;
    return out_;
  }

  // The sample that has these degrees of freedom. A regression on part of the sample has fewer of
  // them than M - 1, in a proportion that is carried over.
  double OptimalSize() const {
    const double df = df_;
    if (!s_.RegressionOn || s_.M - 1 == s_.df) return df + 1;
    const double inRange = s_.NInRange;
    if (s_.df == 2 * inRange) {
      if (df <= 4) return Int(Divide(s_.M + s_.M, inRange) + 0.5);
      return Int((Divide(df * s_.M, inRange) + 1) / 2);
    }
    const double v = df <= 4 ? Divide(s_.M * 4, inRange) : Divide((df + df) * s_.M, inRange + s_.M);
    return Int(v + 0.5) + 1;
  }

  int Comment() const {
    if (out_.Mopt >= kLargeSample) return 3430;
    if (out_.Mopt == s_.M) return 3420;
    return out_.Mopt < s_.M ? 3421 : 3422;
  }

  // A sample of which one outcome would do is still shown as the number that stands in the box.
  SampleSizeResult OneDegree() {
    out_.outcome = SampleSizeCase::OneDegree;
    out_.df = df_;
    Boxes().DegrMinTxb = df_;
    Boxes().PercExTxB3 = out_.PercEx;
    Boxes().SampMinLbl = 3412;
    out_.Mopt = 2;
    if (s_.RegressionOn) out_.Mopt = Int(Divide(s_.M + s_.M, double(s_.NInRange)) + 0.5);
    Boxes().SampMinTxB = out_.Mopt;
    Boxes().DegrMinLbl = out_.Ur <= 0 ? 3416 : 3413;
    Boxes().PercExLbl3 = out_.Ur <= 0 ? 3418 : 3415;
    Boxes().ComMinLbl += kCR + LoadResString(3448);
    return out_;
  }

  const TestBasis& s_;
  const SampleSizeProgress& progress_;
  double M_ = 0;  // of the trial
  double df_ = 0;
  int prefix_ = 3443;
  SampleSizeResult out_;
};

}  // namespace

double ComplianceRatio(double P, double U) { return Divide(P - 50, 50 - U); }

SampleSizeResult OptimiseSampleSize(const TestBasis& basis, const SampleSizeProgress& progress) {
  if (CoverageTooLow(basis)) {
    SampleSizeResult none;
    none.outcome = SampleSizeCase::CoverageTooLow;
    return none;
  }
  return Optimisation(basis, progress).Run();
}

}  // namespace compliance
