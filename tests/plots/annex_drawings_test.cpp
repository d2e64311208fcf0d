// Whole Annex E plots, kept as text: whoever changes one sees what changes. That the places are
// right is shown by the other tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "stats/normal.h"
#include "tests/plots/annex_plot.h"
#include "tests/plots/drawing_text.h"

namespace {

using annex_plot::Annex;

std::vector<double> Lognormal(int M) {
  StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"});
  std::vector<double> outcomes;
  for (int i = 1; i <= M; ++i)
    outcomes.push_back(1.05 +
                       2 * std::exp(StatFWinBAS::NormalUpperInverse(1 - (i - 0.5) / M) * 0.8));
  return outcomes;
}

// Keeps an outcome in ten at either end, at least one, out of the range.
void Restrict(ExposureSession& s) {
  const auto out = static_cast<std::int16_t>(std::max(1.0, s.M / 10));
  s.DetecOn = true;
  s.FirstInRange = static_cast<std::int16_t>(1 + out);
  s.LastInRange = static_cast<std::int16_t>(s.M - (s.M > 4 ? out : 0));
  s.NInRange = static_cast<std::int16_t>(s.LastInRange - s.FirstInRange + 1);
  s.LOQ = s.C[static_cast<std::size_t>(out)] * 1.001;
}

// The drawing without its grid, which other tests check; of many crosses, some.
std::string Kept(const drawing::DrawingRecord& drawing, int everyCross) {
  const std::string whole = drawing_text::Whole(drawing);
  std::string kept;
  int crosses = 0;
  for (std::size_t at = 0; at < whole.size();) {
    const std::size_t end = whole.find('\n', at) + 1;
    const std::string line = whole.substr(at, end - at);
    at = end;
    const bool text = line.starts_with("Lbl");
    const bool frame = line.find(" rgb(0,0,0) ") != std::string::npos;
    const bool grid = line.find(" 10.0\n") != std::string::npos;
    const bool cross = line.find(" rgb(0,0,170) ") != std::string::npos ||
                       line.find(" rgb(150,150,150) ") != std::string::npos;
    if (text || (!frame && !grid && (!cross || crosses++ / 2 % everyCross == 0))) kept += line;
  }
  return kept;
}

class AnnexEDrawings : public testing::TestWithParam<int> {};

TEST_P(AnnexEDrawings, AreAsTheyWere) {
  std::string text;
  for (const bool range : {false, true})
    for (const analysis::Transformation& scale : analysis::kTransformations) {
      if (scale.name == "Exp(x)" && GetParam() > 100) continue;  // beyond 44
      Annex annex(Lognormal(GetParam()), std::string(scale.name));
      if (range) Restrict(annex.s);
      annex.Draw();
      PlotWBas::WriteLabels(annex.drawing, annex.labels);
      text += "== " + std::string(scale.name) + (range ? " with a range\n" : "\n");
      text += Kept(annex.drawing, GetParam() > 100 ? 250 : 1);
    }
  const std::string name = "annex_" + std::to_string(GetParam()) + ".txt";
  EXPECT_EQ(drawing_text::Difference(name, text), "");
}

INSTANTIATE_TEST_SUITE_P(Sizes, AnnexEDrawings, testing::Values(3, 4, 20, 21, 2000));

}  // namespace
