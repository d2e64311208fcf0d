#include "tools/accuracy/entries.h"

namespace accuracy {

std::vector<Entry> Routines() {
  std::vector<Entry> all;
  for (auto* part : {NormalEntries, EstimatorEntries, DistributionEntries})
    for (Entry& entry : part()) all.push_back(std::move(entry));
  return all;
}

std::vector<Entry> Peculiarities() { return DistributionPeculiarities(); }

}  // namespace accuracy
