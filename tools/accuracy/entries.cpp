#include "tools/accuracy/entries.h"

#include <initializer_list>

namespace accuracy {
namespace {

using Part = std::vector<Entry> (*)();

std::vector<Entry> Joined(std::initializer_list<Part> parts) {
  std::vector<Entry> all;
  for (const Part part : parts)
    for (Entry& entry : part()) all.push_back(std::move(entry));
  return all;
}

}  // namespace

std::vector<Entry> Routines() {
  return Joined({NormalEntries, DistributionEntries, EstimatorEntries, FitEntries,
                 ComplianceEntries, MeanEntries, ComparisonEntries});
}

std::vector<Entry> Peculiarities() {
  return Joined({NormalPeculiarities, DistributionPeculiarities, EstimatorPeculiarities,
                 FitPeculiarities, CompliancePeculiarities, ComparisonPeculiarities});
}

}  // namespace accuracy
