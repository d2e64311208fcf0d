#include "tests/walks/steps.h"

#include <utility>

namespace walks {
namespace {

bool IsSize(double M) { return M >= 2 && M <= 2000; }

}  // namespace

Standing::Standing(const Seen& seen)
    : M(seen.M),
      C(seen.C),
      Unit(seen.Unit),
      DetecOn(seen.DetecOn),
      LOQ(seen.LOQ),
      URR(seen.URR),
      FirstInRange(seen.FirstInRange),
      LastInRange(seen.LastInRange) {}

// A sample size that is none is part of the edit that mends it; the first one of all makes a
// series.
void StepList::Did(const Standing& before, const Standing& after) {
  const Standing from = refused_ ? *std::exchange(refused_, std::nullopt) : before;
  if (!IsSize(from.M) || from == after) return;
  if (!IsSize(after.M)) {
    refused_ = from;
    return;
  }
  edits_.erase(edits_.begin() + static_cast<std::ptrdiff_t>(done_), edits_.end());
  edits_.push_back({from, after});
  ++done_;
}

std::optional<Standing> StepList::Undo() {
  refused_.reset();
  return done_ > 0 ? std::optional(edits_[--done_].before) : std::nullopt;
}

std::optional<Standing> StepList::Redo() {
  refused_.reset();
  return done_ < edits_.size() ? std::optional(edits_[done_++].after) : std::nullopt;
}

void StepList::Clear() {
  edits_.clear();
  done_ = 0;
  refused_.reset();
}

}  // namespace walks
