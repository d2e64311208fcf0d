#include "catalog/catalog.h"

#include <algorithm>
#include <vector>

#include "base/fault.h"
#include "catalog/rows.h"

namespace catalog {
namespace {

// The texts as strings, each at the place of its row, so that callers can keep references.
const std::vector<std::string>& Texts() {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> built;
    built.reserve(kRowCount);
    for (const Row& row : kRows) built.emplace_back(row.text);
    return built;
  }();
  return texts;
}

}  // namespace

const Row* begin() { return kRows; }
const Row* end() { return kRows + kRowCount; }

}  // namespace catalog

const std::string& LoadResString(int id) {
  const catalog::Row* row =
      std::lower_bound(catalog::begin(), catalog::end(), id,
                       [](const catalog::Row& each, int wanted) { return each.id < wanted; });
  if (row == catalog::end() || row->id != id) fault::Throw(FaultKind::MissingText);
  return catalog::Texts()[static_cast<std::size_t>(row - catalog::begin())];
}
