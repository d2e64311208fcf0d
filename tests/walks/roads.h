#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/walks/checks.h"

namespace walks {

// The place of a step: in which walk, and how many steps of it led there.
struct Spot {
  long seed = 0;
  std::size_t steps = 0;
};

// What was shown for given inputs, over all walks of a run: two roads to the same inputs must show
// the same.
class Roads {
 public:
  struct Shown {
    std::string text;
    Spot spot;
  };
  // An input's and a control's name, and what the control shows now.
  struct Sight {
    std::string key;
    std::string control;
    std::string text;
  };

  // What the shown screen shows for its inputs.
  static std::vector<Sight> SightsOf(const View& view);
  // Compares with what other roads have shown, and remembers.
  void Compare(const View& view, const Spot& spot);
  // The other road of the last difference.
  const Shown& Other() const { return other_; }
  const Sight& Difference() const { return difference_; }

 private:
  std::map<std::string, Shown> known_;
  Shown other_;
  Sight difference_;
};

}  // namespace walks
