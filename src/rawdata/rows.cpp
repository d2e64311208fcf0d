#include "rawdata/rows.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace rawdata {

std::vector<int> RowsToDelete(std::vector<int> selected, int count) {
  constexpr int kLeast = 2;
  std::sort(selected.begin(), selected.end());
  selected.erase(std::unique(selected.begin(), selected.end()), selected.end());
  std::erase_if(selected, [count](int row) { return row < 0 || row >= count; });
  const int most = std::max(count - kLeast, 0);
  const int tooMany = static_cast<int>(selected.size()) - most;
  if (tooMany > 0) selected.erase(selected.begin(), selected.begin() + tooMany);
  return selected;
}

std::vector<int> PlacesInOrder(const std::vector<double>& outcomes) {
  std::vector<std::size_t> order(outcomes.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return outcomes[a] < outcomes[b]; });
  std::vector<int> places(outcomes.size());
  for (std::size_t place = 0; place < order.size(); ++place)
    places[order[place]] = static_cast<int>(place);
  return places;
}

int FirstToFill(const std::vector<double>& outcomes) {
  const auto unfilled =
      std::find_if(outcomes.begin(), outcomes.end(), [](double c) { return c <= 0; });
  return unfilled == outcomes.end() ? 0 : static_cast<int>(unfilled - outcomes.begin());
}

// A row that stands where it stood is the same one; the others are told by their values.
std::vector<int> RowsThatCame(const std::vector<double>& before, const std::vector<double>& now) {
  const auto stayed = [&](std::size_t row) {
    return row < before.size() && row < now.size() && before[row] == now[row];
  };
  std::map<double, int> gone;
  for (std::size_t row = 0; row < before.size(); ++row)
    if (!stayed(row)) ++gone[before[row]];
  std::vector<int> came;
  for (std::size_t row = 0; row < now.size(); ++row)
    if (!stayed(row) && gone[now[row]]-- <= 0) came.push_back(static_cast<int>(row));
  return came;
}

}  // namespace rawdata
