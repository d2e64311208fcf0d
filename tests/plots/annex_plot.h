#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/transformations.h"
#include "plots/annex_e.h"
#include "session/moments.h"
#include "stats/coefficients.h"

// An Annex E plot of a series, and what stands in it.
namespace annex_plot {

inline constexpr double kWidth = 11400;
inline constexpr double kHeight = 8100;

// An Annex E plot of a series.
struct Annex {
  explicit Annex(std::vector<double> outcomes, const std::string& scale = "Log(x)") {
    StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"});
    const std::size_t M = outcomes.size();
    s.CR = "\r";
    s.Mode = DataMode::Raw;
    s.Name = "Wood dust";
    s.Unit = "mg/m3";
    s.SigDigits = 3;
    s.M = static_cast<double>(M);
    s.C = {0};
    s.C.insert(s.C.end(), outcomes.begin(), outcomes.end());
    s.LnC.resize(M + 1);
    StoreMedian(s);
    s.FirstInRange = 1;
    s.LastInRange = s.NInRange = static_cast<std::int16_t>(M);
    DegreesOfFreedom(s);
    s.LOQ = 0.95 * s.C[1];
    s.URR = 1.05 * s.C[M];
    state.RankitTable = analysis::RankitsForSampleSize(static_cast<int>(M));
    state.Transformation = scale;
    EXPECT_TRUE(analysis::FillCTransf(s, scale));
  }
  PlotWBas::PlotData Data() const {
    return {s, s.LnC, state.RankitTable, state.Transformation, {2024, 3, 7, 9, 5, 30}};
  }
  PlotWBas::AnnexPaper Paper() {
    data_.emplace(Data());
    return PlotWBas::AnnexPaper(drawing, *data_);
  }
  void Draw() {
    PlotWBas::DrawAnnexE(drawing, labels, Data());
    fit = analysis::ProbabilityRegression(s, state);
    PlotWBas::DrawAnnexRegression(drawing, labels, Data(), fit);
  }
  const PlotWBas::Label& At(const std::string& name) const {
    const PlotWBas::Label* label = PlotWBas::FindLabel(labels, name);
    if (!label) throw std::out_of_range(name);
    return *label;
  }
  bool Has(const std::string& name) const { return PlotWBas::FindLabel(labels, name) != nullptr; }
  bool HasLine(drawing::Point from, drawing::Point to) const {
    for (const auto& item : drawing.Items()) {
      const auto* line = std::get_if<drawing::DrawnLine>(&item);
      if (line && std::abs(line->from.x - from.x) + std::abs(line->from.y - from.y) +
                          std::abs(line->to.x - to.x) + std::abs(line->to.y - to.y) <
                      1e-6)
        return true;
    }
    return false;
  }
  bool HasCross(drawing::Point at) const {
    return HasLine({at.x - 60, at.y - 60}, {at.x + 60, at.y + 60}) &&
           HasLine({at.x - 60, at.y + 60}, {at.x + 60, at.y - 60});
  }

  ExposureSession s;
  analysis::FitState state;
  analysis::Regression fit;
  drawing::DrawingRecord drawing{kWidth, kHeight};
  PlotWBas::Labels labels;

 private:
  std::optional<PlotWBas::PlotData> data_;
};

}  // namespace annex_plot
