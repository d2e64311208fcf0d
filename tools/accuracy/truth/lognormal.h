#pragma once

#include "tools/accuracy/truth/real.h"

// The estimators of a lognormal population: what their definitions give.
namespace accuracy::truth {

Real MeanMVU(Real df, Real GM, Real GSD);
Real MeanMMSE(Real df, Real GM, Real GSD);
Real VarianceMVU(Real df, Real GM, Real GSD);
// GM 0F1(df / 2 + 1; -L squared / 4).
Real GMByBessel(Real df, Real GM, Real GSD);
// Finney's unbiased estimate, GM 0F1(df / 2; -L squared df / (4 (df + 1))).
Real GMUnbiased(Real df, Real GM, Real GSD);

// exp(L squared / 2) less 1, on which the linear moments rest.
Real ExcessOfMean(Real GSD);

}  // namespace accuracy::truth
