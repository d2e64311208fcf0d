#pragma once

#include <gtest/gtest.h>

#include <string>

#include "compliance/perc_ex_form.h"
#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The compliance screen of a sample with known statistics, inside the whole program.
class ComplianceScreen : public testing::Test {
 protected:
  ComplianceScreen() {
    p.EnterStatistics("Welders", "10", "0.3", "2");
    p.Record().OELV = 1;
    p.Record().limitStated = true;
    p.Record().Unit = "ppm";
    p.Record().RefPeriod = "8 hours";
  }

  void Open() { p.program.Open(navigation::ScreenId::PercEx); }
  // Another sample, shown on the screen.
  void Open(double M, double GM, double GSD, double OELV, double U = 95, double D = 70) {
    ExposureSession& s = p.Record();
    s.M = M;
    s.df = M - 1;
    s.NInRange = static_cast<std::int16_t>(M);
    s.GM = GM;
    s.GSD = GSD;
    s.OELV = OELV;
    s.U = U;
    s.D = D;
    s.TestTag = Extrapolation::None;
    s.UTL = s.PercEx = 0;
    Open();
  }
  std::string Line() { return p.Text("StatusLbl"); }
  void Tick() { p.Click("SampSizeCkb"); }

  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }
  static bool Green(const screen::Control& label) {
    return label.colour == screen::Colour{0, 128, 0};
  }
  static bool Red(const screen::Control& label) {
    return label.colour == screen::Colour{192, 0, 0};
  }

  support::ProgramSession p;
  compliance::PercExForm& form =
      dynamic_cast<compliance::PercExForm&>(*p.program.FormByName("PercExForm"));
};
