#include "document/paper_drawing.h"

#include "analysis/rankits.h"
#include "analysis/transformations.h"
#include "plots/limit_lines.h"
#include "plots/paper.h"
#include "plots/paper_labels.h"
#include "plots/regression_line.h"

namespace document {
namespace {

constexpr char kLognormal[] = "Log(x)";

}  // namespace

// The words about the line come from the line drawn here and not from one that a screen has drawn.
PaperDrawing DrawPaper(const ExposureSession& given, const base::DateTime& now) {
  using namespace PlotWBas;
  const int M = SampleCount(given);
  analysis::FitState state;
  state.Transformation = kLognormal;
  state.RankitTable = analysis::RankitsForSampleSize(M);
  state.CTransf = analysis::Transformed(given.C, M, kLognormal).CTransf;
  PaperDrawing paper{analysis::FitLine(given, state), {kPictureWidth, kPictureHeight}};
  ExposureSession s = given;
  s.RegressionLabel = paper.fit.RegressionLabel;
  s.NInRange = paper.fit.NInRange;
  const PlotData data{s, state.CTransf, state.RankitTable, state.Transformation, now};
  Labels labels;
  DrawProbabilityPaper(paper.drawing, labels, data);
  const Paper axes(Axes::OutcomesUp, paper.drawing, data);
  DrawRegression(paper.drawing, labels, axes, data, paper.fit);
  DrawLimits(paper.drawing, labels, axes, data, Room(axes, data, LineOf(axes, paper.fit)),
             LOQMark(axes, data, false), URRMark(axes, data, false));
  ArrangeOutcomeLabels(labels, axes);
  WriteLabels(paper.drawing, labels);
  return paper;
}

}  // namespace document
