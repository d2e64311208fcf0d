#pragma once

#include "analysis/regression.h"
#include "plots/limit_lines.h"
#include "plots/paper.h"

namespace PlotWBas {

// The inner values of a cumulative plot for whoever works on the program, a line each.
std::string DevelopmentListing(const Paper& paper, const PlotData& data,
                               const analysis::Regression& fit, const LimitMark& LOQ,
                               const LimitMark& URR);

// Adds the listing as LblOntwikkel, in the upper left of the frame, where there are no points.
void PutListing(Labels& labels, const Paper& paper, const std::string& listing);

}  // namespace PlotWBas
