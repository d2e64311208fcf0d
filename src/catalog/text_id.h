#pragma once

#include <string>
#include <variant>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"

// A text of the catalogue by its row, or one of the program's own.
using TextId = std::variant<int, Own>;

inline std::string TextOf(const TextId& id) {
  if (const Own* own = std::get_if<Own>(&id)) return OwnText(*own);
  return LoadResString(std::get<int>(id));
}
