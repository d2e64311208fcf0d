#pragma once

#include "tools/accuracy/search.h"

// The t family, chi-square and F over their domains. The axes are named as the columns of the
// tables in arbitrary precision.
namespace accuracy {

// `step` 2 leaves out the odd or the even degrees of freedom.
Search LookAtStudent(double from, double to);
Search LookAtDeviate(double from, double to, double step = 1);
Search LookAtExpansion(double from, double to);
Search LookAtNoncentral(double from, double to, double step = 1);
Search LookAtOwen(double hTo, double aFrom, double aTo);
Search LookAtChi(double from, double to, double chiFrom, double chiTo);
Search LookAtF(double d1From, double d1To, double d2From, double d2To);

// The same search where the truth is one that a relative error tells something of, and where the
// place is one that `takes` accepts beside what the search takes.
Search From(Real least, Search search);
Search Only(std::function<bool(const Point&)> takes, Search search);

}  // namespace accuracy
