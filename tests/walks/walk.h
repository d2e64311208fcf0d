#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/walks/findings.h"
#include "tests/walks/roads.h"
#include "tests/walks/step.h"

namespace walks {

// What a walk has come to.
struct Outcome {
  std::vector<Step> steps;  // those that were done, up to the first finding
  std::optional<Finding> finding;
  std::map<std::string, int> visits;  // steps that ended on each screen
  std::size_t numbers = 0;            // that were compared
};

// Who asks after each step whether that is it; used to find one road again.
using Sought = std::function<bool(const View& view)>;

// Plays walks, each in a fresh window and a fresh folder.
class Walker {
 public:
  Walker(std::string folder, std::set<std::string> without)
      : folder_(std::move(folder)), without_(std::move(without)) {}

  // A walk by chance, of so many steps.
  Outcome Walk(long seed, std::size_t steps, Roads* roads);
  // Those steps again; what a user could not do now is left out. `sought`, when given, stands in
  // for the checks.
  Outcome Replay(const std::vector<Step>& steps, const Sought& sought = {});

  const std::string& FolderPath() const { return folder_; }

 private:
  std::string folder_;
  std::set<std::string> without_;  // rules whose findings are passed over
};

}  // namespace walks
