#pragma once

#include <functional>

#include "session/last_action.h"
#include "session/limit_checks.h"
#include "session/results.h"

// The one record of the running program, and the only door to it. Screens read it through Now();
// what the user gives goes in through Change, from which everything else follows at once; results
// are kept together with what they rest on, so that none is ever shown beside other data.
class Record {
 public:
  Record();

  const ExposureSession& Now() const { return now_; }

  // Applies `change` to what was given. When it changed anything, all that follows is derived anew
  // and whatever rests on something else is gone. A series that has changed under a detection range
  // has its limits checked anew; the complaint of that check comes back.
  // A fault leaves everything as it was.
  LimitComplaint Change(const std::function<void(Given&)>& change);

  // Puts a series and its range back as they stood; nothing is checked anew.
  void Restore(const GivenSeries& series);

  // Puts these estimates in force and derives everything anew. Where the outcomes have no spread,
  // or too much, InputState says so.
  void Evaluate(Estimates estimates);

  // Where the user is, and scratch: every screen writes it.
  Workflow& Flow() { return now_; }

  // Derives IdentOk, DescOk and LimitsOk and applies the defaults of the limits.
  void StatusFlags();
  // A complete series with estimates that hold may be evaluated, also where they lie beyond what
  // could be typed.
  void AcceptSeries();

  // Ends the session: a fresh record, with OELV, U and D and what is the program's own.
  void Close();

  void Keep(const TestResult& result);
  void Keep(const MeanResult& result);
  void Keep(const ComparisonResult& result);
  // The result of that extrapolation is no longer on show.
  void Drop(Extrapolation tag);
  // Numbers for who asks by name; they go with the next change of what they rest on.
  Computed& Numbers() { return now_; }

  // What the user's last action on `screen` did (last_action.h).
  void Report(ScreenId screen, LastAction action);
  // The last report of that screen, as long as what it tells of stands; null otherwise.
  const LastAction* Reported(ScreenId screen) const;
  // What was refused is told until the user goes on to another screen.
  void ForgetRefusals();

  // The result for the present state; null when there is none.
  const TestResult* Test() const;
  // A test is on show whose data or limits have changed since.
  bool TestIsStale() const;
  const MeanResult* Mean() const;
  const ComparisonResult* Comparison() const;
  // The tolerance limit of the last test, whichever it was, if it is of the same data and limits.
  std::optional<double> StandingUTL() const;

  // For session scripts: every field by hand. A derived value set here holds until what was given
  // changes.
  ExposureSession& Script() { return now_; }

 private:
  void Take(Given given, Derived derived);

  ExposureSession now_;
  LastAction lastAction_;
  ScreenId actedOn_ = ScreenId::Basis;
  Given toldOf_;  // what the last action tells of
  Kept<TestBasis, TestResult> test_;
  Kept<TestBasis, double> UTL_;
  Kept<TestBasis, MeanResult> mean_;
  Kept<ComparisonBasis, ComparisonResult> comparison_;
};
