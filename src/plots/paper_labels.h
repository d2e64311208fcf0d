#pragma once

#include "plots/paper.h"

// The labels that a cumulative plot has whatever its line: headline, axis titles, ends of the
// scales, the median.
namespace PlotWBas {

// "A cumulative frequency distribution", of what, on which paper.
std::string HeadlineText(const ExposureSession& s, const std::string& Transformation,
                         const std::string& name);
// Product, date and time of the drawing, number of the window.
std::string HeaderText(const ExposureSession& s, const base::DateTime& time);
std::string OutcomesTitle(const ExposureSession& s, const std::string& Transformation);
std::string ScoresTitle(const ExposureSession& s);

// The headline above the plot and the header beside it.
void PutHeadlines(Labels& labels, double width, double height, const PlotData& data);

// A label on the axis of the outcomes, in the room that the axis has.
Label OutcomeLabel(const Paper& paper, const char* name, const std::string& text, double CTransf);

// From the frame to what stands beside its ticks, and how wide what stands to the right may be.
inline constexpr double kBeside = 150;
double RightRoom(double width);

void PutPaperLabels(Labels& labels, const Paper& paper, const PlotData& data);

// Moves the labels of outcomes on their axis apart. Once no label will be added any more.
void ArrangeOutcomeLabels(Labels& labels, const Paper& paper);

// The foot of what stands to the right of the plot above the title of an axis of outcomes.
drawing::Point AboveAxisTitle(const Frame& frame, double width, double height);

// The foot of what stands to the right of the plot above the title of the horizontal axis, and how
// far right of the frame it stands.
drawing::Point RightColumn(const Paper& paper);

}  // namespace PlotWBas
