#include "tests/walks/shrink.h"

#include <algorithm>

namespace walks {
namespace {

std::vector<Step> Without(const std::vector<Step>& steps, std::size_t first, std::size_t count) {
  std::vector<Step> rest;
  for (std::size_t i = 0; i < steps.size(); ++i)
    if (i < first || i >= first + count) rest.push_back(steps[i]);
  return rest;
}

// One pass over all pieces of that size, from the end, where most is needless.
bool DropPieces(std::vector<Step>& steps, std::size_t size, const Fails& fails) {
  bool dropped = false;
  for (std::size_t end = steps.size(); end > 0;) {
    const std::size_t first = end > size ? end - size : 0;
    const std::vector<Step> kept = fails(Without(steps, first, end - first));
    if (!kept.empty()) {
      steps = kept;
      dropped = true;
    }
    end = std::min(first, steps.size());
  }
  return dropped;
}

}  // namespace

std::vector<Step> Shrunk(std::vector<Step> steps, const Fails& fails) {
  for (std::size_t size = std::max<std::size_t>(steps.size() / 2, 1);;) {
    const bool dropped = DropPieces(steps, size, fails);
    if (size == 1 && !dropped) return steps;
    if (size > 1) size /= 2;
  }
}

}  // namespace walks
