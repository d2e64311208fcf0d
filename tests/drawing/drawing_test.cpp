#include <gtest/gtest.h>

#include "drawing/drawing.h"

namespace {

using namespace drawing;

constexpr Colour kBlue{0, 0, 255};

void DrawALittle(DrawSurface& surface) {
  surface.Line({10, 20}, {30, 40}, {}, 15);
  surface.Dot({1.5, 2.5}, kBlue);
  surface.Text({100, 200}, "GM=1\r50%", {Across::Centre, Down::Bottom, 8, true, kBlue}, "GMLbl");
}

TEST(Drawing, KeepsEveryLinePointAndTextInOrder) {
  DrawingRecord record(1000, 500);
  DrawALittle(record);
  const std::vector<DrawingRecord::Item> items = {
      DrawnLine{{10, 20}, {30, 40}, {}, 15}, DrawnDot{{1.5, 2.5}, kBlue},
      DrawnText{{100, 200}, "GM=1\r50%", {Across::Centre, Down::Bottom, 8, true, kBlue}, "GMLbl"}};
  EXPECT_EQ(record.Items(), items);
}

// What the screen, a file and a printer show of it is the same.
TEST(Drawing, IsDrawnAgainOnAnotherSurfaceAsItWas) {
  DrawingRecord record(1000, 500);
  DrawALittle(record);
  DrawingRecord other(1000, 500);
  record.ReplayOn(other);
  EXPECT_EQ(other.Items(), record.Items());
}

TEST(Drawing, TellsEveryChange) {
  DrawingRecord record(1000, 500);
  std::vector<int> revisions = {record.Revision()};
  auto changed = [&] {
    const bool isNew = record.Revision() != revisions.back();
    revisions.push_back(record.Revision());
    return isNew;
  };
  record.Line({}, {1, 1}, {}, 15);
  EXPECT_TRUE(changed());
  record.Dot({}, {});
  EXPECT_TRUE(changed());
  record.Text({}, "a", {}, "");
  EXPECT_TRUE(changed());
  record.SetScale(2000, 700);
  EXPECT_TRUE(changed());
  record.Clear();
  EXPECT_TRUE(changed());
  EXPECT_TRUE(record.Items().empty());
  EXPECT_EQ(record.ScaleWidth(), 2000);
  EXPECT_EQ(record.ScaleHeight(), 700);
}

}  // namespace
