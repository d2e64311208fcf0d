#include "tests/plots/plot_data.h"
#include "session/moments.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "plots/limit_lines.h"
#include "plots/paper_labels.h"
#include "plots/regression_line.h"
#include "session/limit_checks.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"

namespace plot_data {

ExposureSession Series(int M) {
  std::vector<double> outcomes;
  for (int i = 0; i < M; ++i) {
    const double even = std::pow(36.0 / 1.5, static_cast<double>(i) / (M - 1));
    outcomes.push_back(1.5 * even * (1 + 0.02 * (i * 7 % 5)));
  }
  std::ranges::sort(outcomes);
  outcomes.insert(outcomes.begin(), 0);
  ExposureSession s = fit_data::Opened(outcomes);
  StoreMedian(s);
  s.LnC[0] = std::log(s.C[0]);
  s.Name = "series.vkr";
  s.Unit = "mg/m3";
  return s;
}

void Restrict(ExposureSession& s) {
  const auto M = static_cast<std::size_t>(s.M);
  const auto between = [&](std::size_t i) { return (s.C[i] + s.C[i + 1]) / 2; };
  s.DetecOn = true;
  if (M == 4) ControleOndergrens(s, between(1));
  if (M <= 4) return;
  ControleOndergrens(s, between(std::max<std::size_t>(M / 10, 1)));
  ControleBovengrens(s, between(M - std::max<std::size_t>(M / 10, 1)));
}

Plot::Plot(ExposureSession record, std::string transformation, double width, double height)
    : s(std::move(record)), drawing(width, height) {
  table::LoadDelivered();
  state = fit_data::Activated(s, transformation);
  if (state.Transformation.empty()) throw std::logic_error("no such scale for the series");
  fit = analysis::ProbabilityRegression(s, state);
}

PlotWBas::PlotData Plot::Data() const {
  return {s, state.CTransf, state.RankitTable, state.Transformation, {2024, 3, 7, 9, 5, 30}};
}

PlotWBas::Paper Plot::Paper(PlotWBas::Axes axes) const { return {axes, drawing, Data()}; }

void Plot::Draw(PlotWBas::Axes axes) {
  using namespace PlotWBas;
  const PlotData data = Data();
  labels.clear();
  if (axes == Axes::OutcomesUp)
    DrawProbabilityPaper(drawing, labels, data);
  else
    DrawInverseCumulative(drawing, labels, data);
  const PlotWBas::Paper paper(axes, drawing, data);
  DrawRegression(drawing, labels, paper, data, fit);
  const Room room(paper, data, LineOf(paper, fit));
  DrawLimits(drawing, labels, paper, data, room, LOQMark(paper, data, false),
             URRMark(paper, data, false));
  ArrangeOutcomeLabels(labels, paper);
  WriteLabels(drawing, labels);
}

const std::string& Plot::Text(const std::string& label) const {
  const PlotWBas::Label* found = PlotWBas::FindLabel(labels, label);
  if (!found) throw std::logic_error("no label " + label);
  return found->text;
}

}  // namespace plot_data
