#pragma once

#include <map>
#include <ostream>
#include <string>

#include "tests/walks/walk.h"

namespace walks {

// Tells what walks have found: of each rule the first findings, shrunk.
class Report {
 public:
  // `each`: how many findings of a rule are told.
  Report(Walker& walker, int each, std::ostream& out) : walker_(walker), each_(each), out_(out) {}

  void Add(long seed, const Outcome& outcome, const Roads& roads);
  // The sum of it; the exit code.
  int Tell() const;

 private:
  void TellOne(const Outcome& outcome);
  void TellTwoRoads(const Outcome& outcome, const Roads& roads);
  std::vector<Step> ShrunkRoad(const std::vector<Step>& steps, const Roads::Sight& sight,
                               const std::string& text);
  void TellScript(const std::vector<Step>& steps);

  Walker& walker_;
  int each_;
  std::ostream& out_;
  std::map<std::string, int> byRule_;
  std::map<std::string, int> visits_;
  int walks_ = 0;
  std::size_t done_ = 0;
  std::size_t numbers_ = 0;
};

}  // namespace walks
