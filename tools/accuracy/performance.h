#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tools/accuracy/chance.h"

// How well a formula does what its name says, however exactly it is carried out: the bias of an
// estimate, the cover of a limit, the size of a test.
namespace accuracy {

struct Performance {
  std::string routine;
  std::string what;      // "cover of the mean, percent"
  std::string where;     // "M 10, GSD 2, D 95"
  std::string promised;  // what its name promises; empty when nothing
  int runs = 1;          // of the simulation that is recorded; 1 for one without chance
  std::function<Found(Chance& chance, int runs)> measure;
};

// In the order of the page.
std::vector<Performance> Performances();

std::vector<Performance> EstimatorPerformances();
std::vector<Performance> FitPerformances();
std::vector<Performance> CompliancePerformances();
std::vector<Performance> MeanPerformances();
std::vector<Performance> ComparisonPerformances();

// With a `part` of its runs. Each row has chances of its own, so that none hangs on its neighbours.
Found Simulated(const Performance& row, unsigned seed, double part = 1);

// By the key of the row, "JahrUCL | cover of the mean, percent | M 10, GSD 2, D 95".
using Simulations = std::map<std::string, Found>;
std::string Key(const Performance& row);
// Those whose key lacks `part` keep what `before` has of them.
Simulations SimulateAll(unsigned seed, const Simulations& before = {},
                        const std::string& part = "");

// The recorded simulations as a table of text, and back. The read of a broken table throws.
std::string SimulationsText(const Simulations& simulations);
Simulations ReadSimulations(const std::string& path);

// The statistics of a sample of M outcomes from a lognormal population with GM 1.
struct DrawnSample {
  double M;
  double lnGM;
  double lnGSD;
};
DrawnSample Draw(Chance& chance, double M, double GSD);

}  // namespace accuracy
