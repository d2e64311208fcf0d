#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "stats/coefficients.h"
#include "tools/accuracy/page.h"

namespace {

// Times what the test spends: some minutes for all rows.
constexpr accuracy::Effort kEffort = {15, 1941};
constexpr unsigned kChances = 1975;

const std::string kRoot = VALKORIN_SOURCE_DIR;
const std::string kFigures = kRoot + "/tools/accuracy/recorded.csv";
const std::string kSimulations = kRoot + "/tools/accuracy/simulated.csv";

void Write(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error("can't write " + path);
}

void Renew(const std::string& what, const std::string& part) {
  if (what != "page" && what != "simulations") {
    const accuracy::Records before = accuracy::ReadRecords(kFigures);
    Write(kFigures, RecordsText(accuracy::MeasureAll(kEffort, before, part)));
  }
  if (what != "page" && what != "figures")
    Write(kSimulations, SimulationsText(accuracy::SimulateAll(
                            kChances, accuracy::ReadSimulations(kSimulations), part)));
  Write(kRoot + "/docs/accuracy.md",
        Page(accuracy::ReadRecords(kFigures), accuracy::ReadSimulations(kSimulations)));
}

}  // namespace

// Measures every routine, simulates what the formulas are worth, records both and writes the page.
// With an argument only the `figures`, the `simulations`, or nothing but the `page`; with a second
// one only the rows whose name holds it.
int main(int argc, char** argv) {
  try {
    StatFWinBAS::LoadCoefficients({kRoot + "/data"});
    Renew(argc > 1 ? argv[1] : "", argc > 2 ? argv[2] : "");
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
