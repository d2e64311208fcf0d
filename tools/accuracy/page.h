#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/accuracy/entries.h"

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

Recorded MeasureEntry(const Entry& entry);
Records MeasureAll();

// The recorded figures as a table of text, and back. The read of a broken table throws.
std::string RecordsText(const Records& records);
Records ReadRecords(const std::string& path);

// docs/accuracy.md. Throws when an entry has no record.
std::string Page(const Records& records);

// "3.3E-15" with two digits, rounded up, so that a recorded figure is never below the measured one;
// "0" for none.
std::string FigureText(double error);

}  // namespace accuracy
