#pragma once

#include <string>
#include <vector>

#include "analysis/regression_on_record.h"
#include "plots/paper.h"
#include "session/exposure_session.h"

// Series and drawings for the tests of the plots.
namespace plot_data {

inline constexpr double kWidth = 11400;
inline constexpr double kHeight = 7800;

// A record with M outcomes from 1.5 to 40, on which each transformation works.
ExposureSession Series(int M);
// Leaves the lowest and the highest outcomes out of the range, as many as a sample of that size
// allows: one below with four outcomes, about a tenth at either end with more.
void Restrict(ExposureSession& s);

// A plot of a record: what the plot screen does for it.
struct Plot {
  Plot(ExposureSession record, std::string transformation, double width = kWidth,
       double height = kHeight);

  ExposureSession s;
  analysis::FitState state;
  analysis::Regression fit;
  drawing::DrawingRecord drawing;
  PlotWBas::Labels labels;

  PlotWBas::PlotData Data() const;
  // Everything of one kind: paper, line and limits. The labels are written.
  void Draw(PlotWBas::Axes axes);
  PlotWBas::Paper Paper(PlotWBas::Axes axes) const;
  const std::string& Text(const std::string& label) const;
};

}  // namespace plot_data
