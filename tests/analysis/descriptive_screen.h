#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/program_session.h"

// The descriptive statistics screen with the whole program around it.
namespace descriptive {

inline const std::vector<double> kFive = {0.4, 0.9, 1.3, 2.2, 5.1};

class Screen : public testing::Test {
 protected:
  // With entered statistics of a sample of that size.
  void Enter(const std::string& m) {
    p.EnterStatistics("Welders", m, "0.3", "2");
    ASSERT_TRUE(p.Tab("descript"));
  }
  void OpenSeries(const std::vector<double>& outcomes) {
    p.OpenSeries(outcomes);
    ASSERT_TRUE(p.Tab("descript"));
  }
  // The same by way of the start screen, whose flags take the default limit as set.
  void OpenSeriesWithLimit(const std::vector<double>& outcomes) {
    p.OpenSeries(outcomes);
    p.Tab("basis");
    ASSERT_TRUE(p.Tab("descript"));
  }
  void Reopen() { p.program.Open(navigation::ScreenId::Descript); }

  support::ProgramSession p;
};

}  // namespace descriptive
