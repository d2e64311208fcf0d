#include "tools/accuracy/series.h"

#include "tests/support/csv.h"

namespace accuracy {

const std::map<std::string, ExposureSession>& Series() {
  static const std::map<std::string, ExposureSession> all = [] {
    std::map<std::string, ExposureSession> series;
    for (const support::Row& row : support::ReadTable("series_sorted.csv")) {
      ExposureSession& s = series[row.Text("series")];
      s.C.push_back(row.Number("C"));
      s.M = static_cast<double>(s.C.size()) - 1;
    }
    return series;
  }();
  return all;
}

}  // namespace accuracy
