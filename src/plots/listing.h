#pragma once

#include "analysis/regression.h"
#include "plots/limit_lines.h"
#include "plots/paper.h"
#include "plots/regression_line.h"

namespace PlotWBas {

// Where a plot has what the listing tells.
struct ListedPlaces {
  Frame frame;
  double width = 0;  // of the surface
  double height = 0;
  drawing::Point lowest;  // the outermost points
  drawing::Point highest;
  LineEnds line;  // all 0 without one
  LimitMark LOQ;
  LimitMark URR;
};

// Of a cumulative plot, and of the paper of Annex E, which has no limits.
ListedPlaces PlacesOf(const Paper& paper, const PlotData& data, const analysis::Regression& fit,
                      const LimitMark& LOQ, const LimitMark& URR);
ListedPlaces PlacesOf(const drawing::DrawSurface& surface, const PlotData& data,
                      const analysis::Regression& fit);

// The inner values of a plot for whoever works on the program, a line each.
std::string DevelopmentListing(const ListedPlaces& places, const PlotData& data,
                               const analysis::Regression& fit);

// Adds the listing as LblOntwikkel, in the upper left of the frame, where there are no points.
void PutListing(Labels& labels, const ListedPlaces& places, const std::string& listing);

}  // namespace PlotWBas
