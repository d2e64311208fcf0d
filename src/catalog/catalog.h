#pragma once

#include <string>
#include <string_view>

// The text of catalogue row `id`. Throws RunTimeError (missing text) for an id without a row.
const std::string& LoadResString(int id);

namespace catalog {

struct Row {
  int id;
  std::string_view text;
};

// All rows in ascending order of id.
const Row* begin();
const Row* end();

}  // namespace catalog
