#pragma once

#include <string>
#include <vector>

#include "analysis/regression.h"
#include "plots/annex_paper.h"

// The plot in the manner of EN 689, Annex E.
namespace PlotWBas {

// The names of the labels of its axes, LblYas_1_procent and the like, and of its read-off marks.
std::vector<std::string> AnnexLabelNames();

// Clears the surface and draws grid, axes and points, and adds the fixed labels, which are left to
// the caller to write. The lowest outcome stands at the foot.
void DrawAnnexE(drawing::DrawSurface& surface, Labels& labels, const PlotData& data);

// The ends of the line: an end beyond the bounds of the exposures stands at the bound, at the
// height of the outermost plotting position.
struct AnnexLine {
  drawing::Point lower;
  drawing::Point upper;
};
AnnexLine AnnexLineOf(const AnnexPaper& paper, const PlotData& data,
                      const analysis::Regression& fit);

// Draws the line, if there is one, with the two marks at which it is read off, and adds its texts.
void DrawAnnexRegression(drawing::DrawSurface& surface, Labels& labels, const PlotData& data,
                         const analysis::Regression& fit);

}  // namespace PlotWBas
