#pragma once

#include <string>
#include <vector>

namespace walks {

// A rule that does not hold, by a short name, and what was met.
struct Finding {
  std::string rule;
  std::string what;
};

class Findings {
 public:
  void Add(const std::string& rule, const std::string& what) { all_.push_back({rule, what}); }
  // A number was looked at, right or wrong.
  void Count() { ++compared_; }
  std::size_t Compared() const { return compared_; }
  bool Any() const { return !all_.empty(); }
  const std::vector<Finding>& All() const { return all_; }

 private:
  std::vector<Finding> all_;
  std::size_t compared_ = 0;
};

}  // namespace walks
