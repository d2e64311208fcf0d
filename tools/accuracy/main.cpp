#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "stats/coefficients.h"
#include "tools/accuracy/page.h"

namespace {

void Write(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error("can't write " + path);
}

}  // namespace

// Measures every routine, records the figures and writes the page.
int main() {
  try {
    const std::string root = VALKORIN_SOURCE_DIR;
    StatFWinBAS::LoadCoefficients({root + "/data"});
    Write(root + "/tools/accuracy/recorded.csv", RecordsText(accuracy::MeasureAll()));
    Write(root + "/docs/accuracy.md",
          Page(accuracy::ReadRecords(root + "/tools/accuracy/recorded.csv")));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
