#pragma once

#include <optional>

#include "analysis/regression.h"
#include "plots/paper.h"

// The regression line in a cumulative plot, and its texts.
namespace PlotWBas {

struct LineEnds {
  drawing::Point lower;
  drawing::Point upper;
};

// Where the line enters and leaves the frame, by the score at which it meets the lowest and the
// highest outcome or, where it lies within these, by its ends at the outermost scores.
LineEnds RegressionEnds(const Paper& paper, const analysis::Regression& fit);

// The same, or none where there is no line.
std::optional<LineEnds> LineOf(const Paper& paper, const analysis::Regression& fit);

// The outcome that stands at `y` of the transformed scale at an end of the line; none where the
// transformation has none to show.
std::optional<double> OutcomeAtEnd(const std::string& Transformation, double y);

// What the line goes through: the series of that name.
std::string RegresText(const ExposureSession& s, const std::string& Transformation,
                       const std::string& name);
// The estimates, and how many outcomes they come from.
std::string DescripText(const ExposureSession& s, const analysis::Regression& fit);

// Draws the line, if there is one, and adds its labels.
void DrawRegression(drawing::DrawSurface& surface, Labels& labels, const Paper& paper,
                    const PlotData& data, const analysis::Regression& fit);

// The three labels about the regression, LblRegres, LblDescrip and LblShapiro. The last stands with
// its foot at `column`.
void PutRegressionTexts(Labels& labels, const drawing::DrawSurface& surface, const PlotData& data,
                        const analysis::Regression& fit, drawing::Point column);

}  // namespace PlotWBas
