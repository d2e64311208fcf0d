#pragma once

#include <string_view>

#include "analysis/regression.h"

// The steps of the plot on a whole record, as session scripts call them one by one: the transformed
// outcomes share their store with LnC, and the line writes its estimates straight into the record.
namespace analysis {

// Fills CTransf, held in LnC, with the outcomes on the scale `name`; the reciprocal leaves element
// 0 as it was. Returns false, with the reason in MsgText and MsgTitle, where the series does not
// fit.
bool FillCTransf(ExposureSession& s, std::string_view name);

// FitLine, and what it gives to the record: with a detection range and "Log(x)" GM and GSD,
// otherwise those of all outcomes (LogMoments, by the df that still holds from before).
// Changes: NInRange, RegressionLabel, MsgText (the text of the test), InputState (the fault of the
// test, then what GMUnbiased leaves); with a line also GM, GSD, df, GMu, SDu (the variance, not its
// root) and RegressionOn; the weights in `state`, whose CTransf is that of the record.
// Accuracy over the reference series, relative: a 4.5E-13, b 6.2E-13. The subtraction loses the
// digits that the outcomes have in common: where they differ in their seventh digit only, b
// 9.6E-10.
Regression ProbabilityRegression(ExposureSession& s, FitState& state);

// Puts VariabilityComplaint into MsgText and the range back to all outcomes; whether it did.
bool CheckVariability(ExposureSession& s);

}  // namespace analysis
