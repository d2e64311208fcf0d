#include "navigation/series_step.h"

#include <utility>

namespace navigation {
namespace {

bool IsSize(double M) { return M >= 2 && M <= kMaxSampleSize; }

// Whose estimates are in force follows the screens, and so does the count of a range that was
// refused: these alone are nothing that a user has done.
bool SameSeries(GivenSeries a, const GivenSeries& b) {
  a.NInRange = b.NInRange;
  a.inForce = b.inForce;
  a.regression = b.regression;
  return a == b;
}

}  // namespace

SeriesStep::SeriesStep(Record& record, std::string words, SeriesBefore before, SeriesBefore after,
                       int movement)
    : record_(record),
      words_(std::move(words)),
      before_(std::move(before)),
      after_(std::move(after)),
      movement_(movement) {}

bool SeriesStep::Absorb(const screen::Step& next) {
  const auto* step = dynamic_cast<const SeriesStep*>(&next);
  if (!step || step->movement_ != movement_) return false;
  words_ = step->words_;
  after_ = step->after_;
  return true;
}

// A movement that has changed nothing yet, or is back where it began, has no step to go on with:
// the one before it is not its own.
void Steps::Done(const std::string& words, GivenSeries before, bool goesOn) {
  if (!goesOn) ++movement_;
  const ExposureSession& now = record_.Now();
  if (now.Mode != DataMode::Raw || now.ModifyMode) return;
  if (refused_) before = *std::exchange(refused_, std::nullopt);
  const GivenSeries& series = now;
  if (!IsSize(before.M) || SameSeries(before, series)) return;
  if (!IsSize(series.M)) {
    refused_ = std::move(before);
    return;
  }
  const bool stands = last_ && *last_ == before;
  SeriesBefore from = stands ? last_ : std::make_shared<const GivenSeries>(std::move(before));
  last_ = std::make_shared<const GivenSeries>(series);
  history_.Push(std::make_unique<SeriesStep>(record_, words, std::move(from), last_, movement_));
}

bool Steps::Undo() {
  if (ToUndo().empty()) return false;
  refused_.reset();
  ++movement_;
  history_.Undo();
  return true;
}

bool Steps::Redo() {
  if (ToRedo().empty()) return false;
  refused_.reset();
  ++movement_;
  history_.Redo();
  return true;
}

void Steps::Forget() {
  history_.Clear();
  last_.reset();
  refused_.reset();
  ++movement_;
}

std::string Steps::ToUndo() const { return Closed() ? std::string() : history_.ToUndo(); }

std::string Steps::ToRedo() const { return Closed() ? std::string() : history_.ToRedo(); }

}  // namespace navigation
