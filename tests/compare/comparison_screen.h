#pragma once

#include <gtest/gtest.h>

#include <string>

#include "compare/two_samp_comp_form.h"
#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The comparison screen of a program in which 10 outcomes with GM 0.3 and GSD 2 were stated.
class ComparisonScreen : public testing::Test {
 protected:
  ComparisonScreen() { p.EnterStatistics("Welders", "10", "0.3", "2"); }

  void Reply(screen::Answer answer) { p.box.answers.push_back(answer); }
  // A visit at which the user says whether there are reference data, where that is asked.
  void Visit(screen::Answer answer) {
    Reply(answer);
    p.program.Open(navigation::ScreenId::TwoSamp);
    p.box.answers.clear();
    p.box.shown.clear();
  }
  // The dialogue as it starts for whoever has reference data.
  void Start() { Visit(screen::Answer::Yes); }
  // Compares by the button, with that answer to the question on the variances.
  void Calculate(screen::Answer answer) {
    Reply(answer);
    p.Click("CalcCmb");
  }
  void Calculate() { p.Click("CalcCmb"); }

  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }
  bool Results() const { return form.DescrInfFrm.visible && form.GMInfTxb.text != kBlanks; }
  void ExpectNoResults(const std::string& after) {
    EXPECT_FALSE(form.DescrInfFrm.visible) << after;
    EXPECT_FALSE(form.PooledFrm.visible) << after;
    EXPECT_FALSE(form.MenuPrint.visible) << after;
  }
  // The one box since the last look.
  screen::Message TakeBox() {
    EXPECT_EQ(p.box.shown.size(), 1u);
    const screen::Message message = p.box.shown.empty() ? screen::Message{} : p.box.shown.back();
    p.box.shown.clear();
    return message;
  }

  static constexpr char kBlanks[] = "      ";
  support::ProgramSession p;
  compare::TwoSampCompForm& form =
      dynamic_cast<compare::TwoSampCompForm&>(*p.program.FormByName("TwoSampCompForm"));
};
