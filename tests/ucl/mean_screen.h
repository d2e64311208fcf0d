#pragma once

#include <gmock/gmock.h>

#include <string>

#include "session/global_bas.h"
#include "tests/support/program_session.h"
#include "ucl/ucl_form.h"

// The screen of the mean in the whole program, with a sample of which it can calculate.
class MeanScreen : public testing::Test {
 protected:
  MeanScreen() { Take("10", "1", "2.7", 5, 95); }
  void Take(const std::string& M, const std::string& GM, const std::string& GSD, double OELV,
            double D) {
    p.EnterStatistics("Welders", M, GM, GSD);
    p.Record().OELV = OELV;
    p.Record().D = D;
    p.Record().Unit = "ppm";
    p.Record().RefPeriod = "1 year";
    p.Record().Duration = "15 minutes";
    GlobalBAS::StatusFlags(p.Record());
  }
  void Open() { p.program.Open(navigation::ScreenId::UCL); }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }
  screen::Control& At(const char* name) { return *form.Find(name); }

  void ExpectResultLayout(bool result) {
    for (const char* name : {"MenuVerd", "MenuPrint", "DimLbl(2)", "UCLLbl", "UCLTxB", "Methodlbl",
                             "PercExLbl(0)", "PercExLbl(1)", "PercExTxB", "ConclFrm"})
      EXPECT_EQ(At(name).visible, result) << name;
    EXPECT_EQ(form.IntroFrm.visible, !result);
  }
  // No pointer, window or tag of a calculation is left behind.
  void ExpectAtRest() {
    EXPECT_FALSE(form.busyPointer);
    EXPECT_FALSE(form.landHulp.shown);
  }
  void ExpectOffer(bool land) {
    constexpr screen::Colour green{0, 128, 0};
    EXPECT_EQ(form.LandCmb.visible, land);
    EXPECT_EQ(form.JahrCmb.colour.has_value(), !land);
    if (land) {
      EXPECT_EQ(form.LandCmb.colour, green);
    } else {
      EXPECT_EQ(form.JahrCmb.colour, green);
    }
    const auto last = testing::EndsWith("\rPress <Land> to perform an exact, unbiased estimation");
    EXPECT_EQ(testing::Matches(last)(form.IntroLbl.text), land) << form.IntroLbl.text;
  }

  support::ProgramSession p;
  ucl::UCLForm& form = dynamic_cast<ucl::UCLForm&>(*p.program.FormByName("UCLForm"));
};
