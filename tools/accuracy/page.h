#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/accuracy/entries.h"
#include "tools/accuracy/performance.h"

namespace accuracy {

// What was measured of one entry when the page was last written.
struct Recorded {
  Figure truth;
  Figure steps;
};

// By the key of the entry.
using Records = std::map<std::string, Recorded>;

// "NormalUpper | x to 5".
std::string Key(const Entry& entry);

// By its tables and, with an effort, by its search, which starts from the recorded places too.
Recorded MeasureEntry(const Entry& entry, const Effort& effort = {0, 0},
                      const std::vector<std::string>& known = {});
// All entries, with that effort each, from the places of `before`. Those whose key lacks `part`
// keep what `before` has of them.
Records MeasureAll(const Effort& effort, const Records& before, const std::string& part = "");

// The recorded figures as a table of text, and back. The read of a broken table throws.
std::string RecordsText(const Records& records);
Records ReadRecords(const std::string& path);

// docs/accuracy.md. Throws when an entry or a simulation has no record.
std::string Page(const Records& records, const Simulations& simulations);

// "93.27" with the digits that the standard error leaves, three decimals when there is none, and
// the standard error itself, "0.04" or "exact".
std::string FoundText(const Found& found);
std::string ErrorText(const Found& found);

// "3.3E-15" with two digits, rounded up, so that a recorded figure is never below the measured one;
// "0" for none.
std::string FigureText(double error);

}  // namespace accuracy
