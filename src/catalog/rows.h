#pragma once

#include "catalog/catalog.h"

namespace catalog {

inline constexpr int kRowCount = 498;
extern const Row kRows[kRowCount];

}  // namespace catalog
