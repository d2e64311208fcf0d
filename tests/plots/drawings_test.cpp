// Whole drawings, kept as text: whoever changes one sees what changes. That the places are right is
// shown by the other tests.
#include <gtest/gtest.h>

#include "analysis/transformations.h"
#include "tests/plots/drawing_text.h"
#include "tests/plots/plot_data.h"

namespace {

using plot_data::Plot;
using PlotWBas::Axes;

std::string DrawingOf(const ExposureSession& s, const std::string& scale, Axes axes) {
  Plot plot(s, scale);
  plot.Draw(axes);
  return s.M > 100 ? drawing_text::Digest(plot.drawing) : drawing_text::Whole(plot.drawing);
}

// All scales with and without a range.
std::string AllDrawings(int M, Axes axes) {
  std::string text;
  for (const bool range : {false, true})
    for (const analysis::Transformation& scale : analysis::kTransformations) {
      ExposureSession s = plot_data::Series(M);
      if (range) plot_data::Restrict(s);
      text += std::string("== ") + std::string(scale.name) + (range ? " with a range" : "") + "\n" +
              DrawingOf(s, std::string(scale.name), axes);
    }
  return text;
}

class PlotDrawings : public testing::TestWithParam<int> {};

TEST_P(PlotDrawings, OfProbabilityPaperAreAsTheyWere) {
  const std::string name = "paper_" + std::to_string(GetParam()) + ".txt";
  EXPECT_EQ(drawing_text::Difference(name, AllDrawings(GetParam(), Axes::OutcomesUp)), "");
}

TEST_P(PlotDrawings, OfTheInverseCumulativeAreAsTheyWere) {
  const std::string name = "inverse_" + std::to_string(GetParam()) + ".txt";
  EXPECT_EQ(drawing_text::Difference(name, AllDrawings(GetParam(), Axes::OutcomesAcross)), "");
}

INSTANTIATE_TEST_SUITE_P(Sizes, PlotDrawings, testing::Values(3, 4, 20, 21, 2000));

TEST(DrawingText, ShowsEveryChange) {
  Plot plot(plot_data::Series(4), "Log(x)");
  plot.Draw(Axes::OutcomesUp);
  const std::string whole = drawing_text::Whole(plot.drawing);
  const std::string digest = drawing_text::Digest(plot.drawing);
  EXPECT_NE(whole.find("\npoint 2280.0,7020.0 rgb("), std::string::npos) << whole;
  plot.drawing.Dot({1, 2}, {});
  EXPECT_NE(drawing_text::Whole(plot.drawing), whole);
  EXPECT_NE(drawing_text::Digest(plot.drawing), digest);
}

}  // namespace
