#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "tests/walks/checks.h"

namespace walks {

// What leaves the program: a log grows by what its screen shows, when its menu
// item is chosen, and at no other time; a printed screen has what it shows, and
// the document of all results the numbers of the screen that it is made from.
// None of them changes anything.
class OutputWatch {
 public:
  void Check(const View& view);

 private:
  void CheckAppended(const View& view, const std::string& log);
  void CheckPrinted(const View& view) const;
  void CheckHandedOver(const View& view) const;

  std::map<std::string, std::uintmax_t> sizes_;  // of the logs that there are
};

}  // namespace walks
