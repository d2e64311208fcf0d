#pragma once

#include <string>
#include <vector>

#include "session/exposure_session.h"

// Which tabs a screen shows and which ways between screens are open: tables, and the functions
// that read them.
namespace workflow {

using ::ScreenId;

struct TabText {
  ScreenId screen;
  const char* key;
  int caption;  // catalogue id
  int tip;      // catalogue id
};

// Key, caption and tool tip of a screen's tab.
const TabText& TabOf(ScreenId screen);
const TabText* TabByKey(const std::string& key);

// The tabs that `shown` offers in the present state, in order; empty when it offers none.
std::vector<ScreenId> TabSet(const ExposureSession& s, ScreenId shown);

// Whether the tab strip of the start screen is visible.
bool StripVisible(const ExposureSession& s);
// Whether there is a raw series, if only a name or a size for one: the choice of raw data alone,
// and a file that was refused, begin none.
bool SeriesBegun(const Given& given);

// Whether MenuPlot is visible: exactly when the Check distribution tab exists.
bool PlotMenuVisible(const ExposureSession& s, ScreenId shown);

// Whether a click on the tab of `target` on the screen `from` leads there.
bool GateOpen(const ExposureSession& s, ScreenId from, ScreenId target);

// What keeps a click on the tab of `target` on the screen `from`; None exactly where the gate is
// open.
enum class Obstacle {
  None,
  RowsUnfilled,  // the series is still being typed
  NoEstimates,   // it gives none
  OtherValues,   // other values are tried on top of the data
  NoLimit,
  FewOutcomes,  // a line needs three
  NotDescribed
};
Obstacle ObstacleTo(const ExposureSession& s, ScreenId from, ScreenId target);

// What passing the gate does (TestTag, PlotKind).
void PassGate(Workflow& flow, ScreenId from, ScreenId target);

}  // namespace workflow
