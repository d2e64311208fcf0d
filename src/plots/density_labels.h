#pragma once

#include "plots/density.h"

// The texts of the density picture: the marks have their labels below the axis, the headlines take
// the room beside the curve.
namespace PlotWBas {

void WriteDensityLabels(drawing::DrawSurface& surface, const DensityScale& scale,
                        const DensityData& data);

}  // namespace PlotWBas
