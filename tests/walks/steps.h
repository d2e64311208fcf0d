#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/walks/seen.h"

namespace walks {

// The series, its range and its unit as a user sees them.
struct Standing {
  double M = 0;
  std::vector<double> C;
  std::string Unit;
  bool DetecOn = false;
  double LOQ = 0, URR = 0;
  int FirstInRange = 0, LastInRange = 0;

  explicit Standing(const Seen& seen);
  bool operator==(const Standing&) const = default;
};

// The oracle's own list of what the user has done: how the series stood before each edit and behind
// it.
class StepList {
 public:
  // An edit has led from one to the other.
  void Did(const Standing& before, const Standing& after);
  // Steps through the list; what must stand then, or nothing where there was no step.
  std::optional<Standing> Undo();
  std::optional<Standing> Redo();
  void Clear();
  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < edits_.size(); }

 private:
  struct Edit {
    Standing before, after;
  };
  std::vector<Edit> edits_;
  std::size_t done_ = 0;
  std::optional<Standing> refused_;  // what stood before a sample size that was refused
};

}  // namespace walks
