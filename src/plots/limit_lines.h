#pragma once

#include "plots/paper.h"
#include "plots/room.h"

// The ends of the detection range as lines in a cumulative plot.
namespace PlotWBas {

struct LimitMark {
  bool shown = false;  // whether its line stands within the outcomes
  // From the low end of its scroll bar, 0 to 1: from the highest outcome down where the outcomes
  // stand upward, from the lowest on where they stand across.
  double fraction = 0;
  double place = 0;  // on the axis of the outcomes; without a line 0
};

// `active`: whether the picker of that limit is open.
LimitMark LOQMark(const Paper& paper, const PlotData& data, bool active);
LimitMark URRMark(const Paper& paper, const PlotData& data, bool active);

// Draws the lines of those marks that are shown, each with its label, LblLnLOQ or LblLnURR, beside
// it where there is room.
void DrawLimits(drawing::DrawSurface& surface, Labels& labels, const Paper& paper,
                const PlotData& data, Room room, const LimitMark& LOQ, const LimitMark& URR);

}  // namespace PlotWBas
