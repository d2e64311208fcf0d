#pragma once

#include <map>
#include <string>
#include <vector>

#include "analysis/regression.h"
#include "session/exposure_session.h"
#include "tests/support/csv.h"

// Series and records for the tests of the fit.
namespace fit_data {

// The series of series_sorted.csv by name, element 0 the median.
const std::map<std::string, std::vector<double>>& SortedSeries();

// The record after a file with `outcomes` (ascending, median in front) has been opened.
ExposureSession Opened(const std::vector<double>& outcomes);
// The same for 1, 2, ... M, each raised to 1.1 so that no scale is exactly even.
ExposureSession OpenedPowers(int M);
// Puts a range in force.
void Restrict(ExposureSession& s, int first, int last);

// The name of the transformation behind a menu entry such as "MenuLog".
std::string NameOfMenu(const std::string& menu);

// A plot screen that has been activated with the record: rankits, and CTransf on the scale `name`.
analysis::FitState Activated(ExposureSession& s, const std::string& name);

// Text of a table, with its \r and \n as the characters they stand for.
std::string Unescaped(const std::string& text);

}  // namespace fit_data
