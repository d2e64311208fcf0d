#pragma once

#include <string>
#include <vector>

#include "tools/accuracy/worst.h"

// What the accuracy page tells: one entry a routine, or a region of its domain, and one entry for
// each place where a method is what it is although a better one would be at hand.
namespace accuracy {

struct Entry {
  std::string routine;
  std::string domain;
  std::string method;
  Measure measure = Measure::Relative;
  Source truth = {};
  Source steps = {};
  Search search = {};  // of the truth, over the whole domain
};

// For a domain that is the rows of a table and no more.
inline Search Listed() {
  Search search;
  search.listed = true;
  return search;
}

// In the order of the page.
std::vector<Entry> Routines();
// Entries of which `method` says what is done, and `truth` measures what it costs.
std::vector<Entry> Peculiarities();

std::vector<Entry> NormalEntries();
std::vector<Entry> EstimatorEntries();
std::vector<Entry> DistributionEntries();
std::vector<Entry> FitEntries();
std::vector<Entry> ComplianceEntries();
std::vector<Entry> ComparisonEntries();
std::vector<Entry> MeanEntries();

std::vector<Entry> NormalPeculiarities();
std::vector<Entry> DistributionPeculiarities();
std::vector<Entry> EstimatorPeculiarities();
std::vector<Entry> FitPeculiarities();
std::vector<Entry> CompliancePeculiarities();
std::vector<Entry> ComparisonPeculiarities();

}  // namespace accuracy
