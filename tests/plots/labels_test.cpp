#include "plots/labels.h"

#include <gtest/gtest.h>

namespace {

using PlotWBas::Labels;
using PlotWBas::SpreadOut;
using Centres = std::vector<double>;

// Labels that fall on each other can't be read.
TEST(PlotLabels, ThatAreFarEnoughApartStayWhereTheyAre) {
  EXPECT_EQ(SpreadOut({{100, 10}, {300, 10}, {200, 10}}, 0, 400), (Centres{100, 300, 200}));
}

TEST(PlotLabels, ThatOverlapMoveApartInTheirOrder) {
  EXPECT_EQ(SpreadOut({{100, 10}, {105, 10}, {90, 10}}, 0, 400), (Centres{110, 130, 90}));
}

TEST(PlotLabels, StayWithinTheirRoom) {
  EXPECT_EQ(SpreadOut({{395, 10}, {390, 10}}, 0, 400), (Centres{390, 370}));
  EXPECT_EQ(SpreadOut({{2, 10}, {1, 10}}, 0, 400), (Centres{30, 10}));
}

TEST(PlotLabels, AreDrawnWithoutALineEndBehindThem) {
  drawing::DrawingRecord drawing(1000, 1000);
  const Labels labels = {{"One", "a\rb\r", {1, 2}, {}}, {"Two", "", {3, 4}, {}}};
  PlotWBas::WriteLabels(drawing, labels);
  ASSERT_EQ(drawing.Items().size(), 2U);
  const auto& one = std::get<drawing::DrawnText>(drawing.Items()[0]);
  EXPECT_EQ(one.label, "One");
  EXPECT_EQ(one.text, "a\rb");
  EXPECT_EQ(PlotWBas::FindLabel(labels, "Two"), &labels[1]);
  EXPECT_EQ(PlotWBas::FindLabel(labels, "Three"), nullptr);
}

}  // namespace
