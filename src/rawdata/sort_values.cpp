#include <utility>

#include "rawdata/raw_file.h"

namespace rawdata {

// Shell sort with halved gaps (D. L. Shell, 1959). `order` is "Onbekend" for a series of unknown
// order. Two values are put in order without a word about it in `order`.
void SortValues(int count, std::vector<double>& c, std::string& order) {
  const auto at = [&c](int i) -> double& { return c[static_cast<std::size_t>(i)]; };
  if (count == 2) {
    if (at(1) > at(2)) std::swap(at(1), at(2));
    return;
  }
  if (order != "Onbekend") return;
  for (int gap = count / 2; gap > 0; gap /= 2)
    for (int i = 1; i <= count - gap; ++i)
      for (int j = i; j >= 1 && at(j) > at(j + gap); j -= gap) std::swap(at(j), at(j + gap));
  order = "Ascending";
}

}  // namespace rawdata
