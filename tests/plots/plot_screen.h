#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plots/plot_form.h"
#include "tests/support/program_session.h"

// A user in front of the plot screen of the whole program.
namespace plot_screen {

struct User : support::ProgramSession {
  plots::PlotForm& Plot() {
    return dynamic_cast<plots::PlotForm&>(*program.FormByName("PlotForm"));
  }
  // Opens a series with these outcomes and goes to its plot.
  void See(const std::vector<double>& outcomes) {
    OpenSeries(outcomes);
    ASSERT_TRUE(Tab("plot"));
  }
  // Moves the scroll bar of that name.
  void Bar(const std::string& name, int value) {
    screen::Control& bar = At(name);
    ASSERT_TRUE(bar.visible && bar.enabled) << name;
    bar.value = value;
    screen::Guarded(ports, bar.Change);
  }
  // Clicks the plot at fractions of its width and height.
  void PlotClick(double x, double y) {
    const screen::Picture& picture = Plot().PicPlot;
    screen::Guarded(ports, [&] {
      picture.MouseDown(x * picture.drawing.ScaleWidth(), y * picture.drawing.ScaleHeight());
    });
  }
};

inline const std::vector<double> kTen = {0.21, 0.34, 0.45, 0.61, 0.79, 0.94, 1.1, 1.4, 1.9, 3.1};

}  // namespace plot_screen
