#pragma once

#include <optional>
#include <string>

#include "session/choices.h"

// What the user's last action did, for the live line below the screens.
//
// A screen says it once, behind the change that it tells of:
//
//     record.Report(id, {.did = Did::Pasted, .count = 10});
//     record.Report(id, {.did = Did::Undone, .what = "10 outcomes pasted"});
//
// (`Report({...})` on a SessionForm.) The words stand in navigation/live_line.cpp, a new kind of
// action is an enumerator here and its sentence there. Nobody takes a report back: it is gone with
// the next one, and with the next change of what it tells of: the outcomes, their name, unit and
// range; of a refused limit, the limit; of a closed tab, the state that closes it.
enum class Did {
  Nothing,
  Read,               // `count` outcomes of a file; `what`: how its lines were understood
  Pasted,             // `count` outcomes; `what`: further sentences
  Copied,             // `count` outcomes
  Deleted,            // `count` rows
  Sorted,             // the outcome `what` went to row `count`
  Saved,              // `count` outcomes
  NotSaved,           // the file `what` could not be written
  NotOverwritten,     // another program's changes were kept
  SaveRefused,        // the series is incomplete
  NoOutcome,          // `what` was typed in row `count` and is none
  Undone,             // `what`
  Redone,             // `what`
  LimitRefused,       // the limit value `what`; another one now stands
  LineBeyondNumbers,  // the line gives no estimates that can be calculated with
  EstimatesPutBack,   // raw data has put those of all outcomes in force again
  TabClosed,          // a click on the tab of `target` led nowhere
  PictureSaved,       // to the file `what`
  Said                // the whole sentence `what`
};

struct LastAction {
  Did did = Did::Nothing;
  double count = 0;
  std::string what = {};
  std::optional<ScreenId> target = {};
  bool operator==(const LastAction&) const = default;
};
