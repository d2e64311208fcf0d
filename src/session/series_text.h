#pragma once

#include <string>
#include <vector>

#include "session/exposure_session.h"

// What is to be told of the series, its estimates and the limit value; empty where there is nothing
// to tell.
namespace wording {

// On one line, with single blanks.
std::string OnOneLine(const std::string& text);

// "3, 7 and 12"; a long list is cut.
std::string NumberList(const std::vector<int>& numbers);

// The rows that are still to be filled.
std::string MissingRows(const ExposureSession& s);
// Outcomes beyond the sample size stay until the next edit.
std::string LeftOut(const ExposureSession& s);
// Why the series gives no GM and GSD.
std::string NoEstimates(const ExposureSession& s);
// The estimates are those of all outcomes, although some lie outside the detection range.
std::string OutsideRange(const ExposureSession& s);
// Whose estimates are in force under a detection range.
std::string InForce(const ExposureSession& s);
// "<" for an outcome below the detection range, ">" for one at or above its end, otherwise "=". The
// operators follow from the range: they are neither stored nor read from a file.
std::string OperatorOf(const Given& given, double outcome);
// The limit value is not the user's.
std::string LimitToState(const ExposureSession& s);
// What keeps a click on the tab of `target` on the screen `from`.
std::string WhyClosed(const ExposureSession& s, ScreenId from, ScreenId target);

// Label of a regression estimate, such as "Double censored Rankit estimate GMg=".
std::string RegressionWords(const ExposureSession& s, const std::string& estimate);

}  // namespace wording
