#include <gtest/gtest.h>

#include "screen/picture.h"
#include "tests/screen/recording_ports.h"

namespace {

using namespace screen;

TEST(Picture, IsAControlOfItsScreen) {
  recording::Ports ports;
  Form form("PictureForm", ports.ports);
  Picture picture(form, "PicPlot");
  EXPECT_EQ(form.Find("PicPlot"), &picture);
  EXPECT_EQ(picture.kind, Kind::Picture);
  EXPECT_GT(picture.drawing.ScaleWidth(), 0);
}

}  // namespace
