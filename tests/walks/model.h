#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>

#include "tests/walks/expected.h"
#include "tests/walks/files.h"
#include "tests/walks/findings.h"
#include "tests/walks/seen.h"
#include "tests/walks/series.h"
#include "tests/walks/step.h"
#include "tests/walks/steps.h"

namespace walks {

// Whose estimates are in force: of the whole sample by all its degrees of freedom, of the whole
// sample by those of the detection range, of the line through the outcomes in range, or typed.
enum class Whose { Whole, ByRange, Line, Typed };
const char* NameOf(Whose whose);

// One step as the oracle sees it.
struct Scene {
  const Step& step;
  const Seen& before;
  const Seen& after;
  Findings& findings;

  bool Arrived(const char* form) const { return after.form == form && before.form != form; }
  // The command acted on that screen.
  bool On(const char* form) const { return before.form == form; }
  // `type` or `enter` into the field; its text in `text`.
  bool Typed(const std::string& field, std::string& text) const;
  // Up or down of the field: 1 or -1, else 0.
  int Stepped(const std::string& field) const;
  bool Clicked(const std::string& name) const;
  bool Chosen(const std::string& menu) const;
  // The user takes a step back, or does it again.
  bool StepsBack() const;
  // An option that has the focus is chosen by the keys that press it, and by no others.
  bool OptionPressed() const;
  // All data are closed: asked about what would be lost, the user let it go.
  bool Closed() const;
};

// The tolerance limit of the last test, and what it rests on.
struct LastLimit {
  std::array<double, 6> basis{};
  double UTL = 0;
};

// What the user has given so far, followed from the commands, and which estimates that puts in
// force. It is told of each step, and finds what the record has that nobody gave it.
class Model {
 public:
  explicit Model(Folder& folder) : folder_(folder) {}

  void Advance(const Scene& scene);

  // Whether there are estimates to show, and to calculate with.
  bool Known() const { return known_; }
  // Why not, for messages.
  const std::string& Why() const { return why_; }
  // Only a whole series without spread, or a range that leaves no degree of freedom, closes the
  // ways to what rests on GM and GSD.
  bool Closed() const { return closed_; }
  // The outcomes 1 to M, in ascending order when all are filled.
  const Outcomes& Series() const { return series_; }
  bool Complete() const { return complete_; }
  // What the user has done and can take back, or do again.
  const StepList& Steps() const { return steps_; }
  const std::set<Whose>& Force() const { return force_; }
  std::optional<LastLimit> lastLimit;

 private:
  // model_series.cpp
  void AdvanceSeries(const Scene& scene);
  void Opened(const Scene& scene);
  void Edited(const Scene& scene);
  void SetCell(int row, const std::string& text, int count);
  void Append(const std::string& text, int count);
  void Delete(const std::vector<int>& rows, int count);
  void Paste(int row, const Outcomes& values, int count);
  double ExpectedSize(const Scene& scene) const;
  void CheckSeries(const Scene& scene);
  void TakeSeries(const Seen& after);
  void CheckDigits(const Scene& scene);

  // model_steps.cpp
  bool FollowSteps(const Scene& scene);

  // model_estimates.cpp
  void AdvanceEstimates(const Scene& scene);
  void FollowModify(const Scene& scene);
  void FollowTyped(const Scene& scene);
  void FollowForce(const Scene& scene);
  void FollowPlot(const Scene& scene);
  bool NoDegrees(const Scene& scene);
  void Recognise(const Scene& scene);
  bool Matches(Whose whose, const Scene& scene) const;
  std::optional<Sample> SampleOf(Whose whose, const Seen& seen) const;
  void CheckTyped(const Scene& scene);
  void Unknown(const std::string& why, bool closed);

  // model_limits.cpp
  void AdvanceRange(const Scene& scene);
  void AdvanceLimits(const Scene& scene);
  void AdvanceReference(const Scene& scene);
  void AdvanceClose(const Scene& scene);

  Folder& folder_;
  StepList steps_;
  Outcomes outcomes_;  // all elements, those beyond M included, in the record's order
  Outcomes series_;
  bool complete_ = false;
  std::set<Whose> force_;
  std::set<Whose> beforeModify_;
  double MBeforeModify_ = 0;
  double typedGM_ = 0;
  double typedGSD_ = 0;
  Sample resetTo_;
  bool known_ = false;
  bool closed_ = false;
  std::string why_;
  bool edited_ = false;         // the step has changed the series on the raw data screen
  bool otherOutcomes_ = false;  // and they are not the same ones in another order
};

}  // namespace walks
