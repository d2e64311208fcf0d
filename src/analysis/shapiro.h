#pragma once

#include <vector>

// Shapiro and Wilk's test of normality, with outcomes outside a range counted as censored.
namespace analysis {

// The weights of the test for the last sample size tested; they are kept because a plot is redrawn
// at each move of a limit while the sample size stays.
struct ShapiroWeights {
  int ShapiroN = 0;                   // sample size of the weights; 0: none yet
  std::vector<double> ShapiroCoeffs;  // a(1) to a(M\2); element 0 is not used
};

struct ShapiroResult {
  double W = 0;   // of the test; 1 is a perfect fit
  double PW = 1;  // probability of so small a W from a normal distribution; M = 3: see below
  int fault = 0;  // 4, 5: not tested, see below
  bool tested = false;
};

// Weights a(1) to a(M\2) for a sample of M, unless `weights` holds those already.
// Domain: M from 3 on; below is a subscript fault, and `weights` then stays as it was.
// Changes: weights.
// Source: P. Royston (1995), remark AS R94, Applied Statistics 44, 547-551, with the plotting
// position (i - 3/8) / (M + 1/4).
// Accuracy, relative: 1.2E-13, as NormalUpperInverse has it at the outermost order.
void FillShapiroWeights(int M, ShapiroWeights& weights);

// Tests whether CTransf(first) to CTransf(last), out of M values in ascending order, come from a
// normal distribution. The other values of the M count as censored.
// Returns W, 1 for a perfect fit, and its probability PW, the upper tail of the normalising
// transformation of ln(1 - W). For M = 3 PW is 1.5 (arctan sqrt W - arctan sqrt 3) / arctan 1,
// which lies below 0 for every W: the method has it so, where the publication has the arc sine.
// Where W is small beyond the publication's table (M up to 11) PW is 0, there 1E-19.
// Domain: W 0, PW 1 and not tested for M < 3 or fewer than 3 values in range (fault 0), for more
// values in range than M, or M < 20 with a censored one (fault 4), and for more than 80 % censored
// (fault 5). Fault 2 tells that M is beyond the 5000 of the publication; the test runs. Equal
// values in range are a division by zero, an index outside CTransf is a subscript fault. A W that
// rounding would put to 1 or above is 1, with PW 1 (M = 3: -0.5).
// Changes: weights.
// Source: P. Royston (1995), remark AS R94 (function swilk), with a mean weight below 1E-13 taken
// as 0; the treatment of censored samples by P. Royston (1993), Statistics in Medicine 12, 181-184.
// Accuracy over the reference series, absolute: W 1.1E-14, PW 4.5E-12; outcomes that differ in
// their seventh digit only: W 2.2E-11, PW 2.0E-10. The publication treats samples that are censored
// at one end. With both ends out of range the test rejects normal samples far less often than its
// probability says, and its probabilities above 5 percent are too high with one end too
// (docs/accuracy.md).
ShapiroResult ShapiroWilk(const std::vector<double>& CTransf, int M, int first, int last,
                          ShapiroWeights& weights);

}  // namespace analysis
