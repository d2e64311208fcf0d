#pragma once

#include <string>

#include "session/record.h"
#include "session/workflow.h"

// The one line below every screen. It tells what the last action did, what is missing, whose
// estimates are in force, and what is to be known before a result is believed; nothing that is no
// longer true. All its words come from here.
namespace navigation {

struct LiveText {
  std::string text;
  bool band = false;  // it says something that must not be overlooked
  bool operator==(const LiveText&) const = default;
};

LiveText LiveLine(const Record& record, workflow::ScreenId screen);

// Why a click on the tab of `target` leads nowhere from the screen `from`; empty where it leads
// there.
std::string WhyClosed(const ExposureSession& s, workflow::ScreenId from, workflow::ScreenId target);

}  // namespace navigation
