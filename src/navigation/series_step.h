#pragma once

#include <memory>
#include <optional>
#include <string>

#include "screen/history.h"
#include "session/record.h"

namespace navigation {

using SeriesBefore = std::shared_ptr<const GivenSeries>;

// What the user has changed of the series or of its range in one go: the series as it stood before
// and as it stands behind it. Neighbours share what stands between them.
class SeriesStep final : public screen::Step {
 public:
  // `movement`: of a dragged bar, whose places are one step; anything else is one of its own.
  SeriesStep(Record& record, std::string words, SeriesBefore before, SeriesBefore after,
             int movement);

  const std::string& Words() const override { return words_; }
  void Undo() override { record_.Restore(*before_); }
  void Redo() override { record_.Restore(*after_); }
  bool Absorb(const screen::Step& next) override;
  bool ChangesNothing() const override { return *before_ == *after_; }
  const GivenSeries& Before() const { return *before_; }
  const GivenSeries& After() const { return *after_; }

 private:
  Record& record_;
  std::string words_;
  SeriesBefore before_;
  SeriesBefore after_;
  int movement_;
};

// The user's steps on the one record. What a screen calls an edit goes through here.
class Steps {
 public:
  Steps(Record& record, screen::History& history) : record_(record), history_(history) {}

  // The user has done something, which `words` name; `before` is the series in front of it. A
  // series that stands as it did is no step. Other values that are tried on top of a series are
  // none, and neither is the making of a series: its first sample size. A size that was refused
  // becomes part of the step that mends it.
  void Done(const std::string& words, GivenSeries before, bool goesOn);
  // Takes the last step back, or does it again. False when there is none, or not now.
  bool Undo();
  bool Redo();
  void Forget();

  // What stands to be taken back, or to be done again; empty when nothing does.
  std::string ToUndo() const;
  std::string ToRedo() const;

 private:
  bool Closed() const { return record_.Now().ModifyMode; }

  Record& record_;
  screen::History& history_;
  SeriesBefore last_;                   // as the last step has left it
  std::optional<GivenSeries> refused_;  // what stood before a sample size that is none
  int movement_ = 0;                    // of a bar; a step that moves nothing has one, too
};

}  // namespace navigation
