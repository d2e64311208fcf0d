#include <gmock/gmock.h>

#include <set>

#include "tests/support/program_session.h"

// The submenu that prints and keeps what a screen shows.
namespace {

using support::ProgramSession;

std::vector<std::string> ItemsIn(const screen::Form& form, const std::string& menu) {
  std::vector<std::string> items;
  for (const screen::Control* control : form.controls)
    if (control->home == menu) items.push_back(control->name);
  return items;
}

TEST(PrintMenus, OfferTheLogOnEveryScreenThatHasARecord) {
  ProgramSession user;
  for (const screen::Form* form : user.program.Forms()) {
    static const std::set<std::string> without = {"BasisForm", "VerdelingForm", "LandHulpForm",
                                                  "ReportForm", "frmPrintkeu"};
    const bool record = !without.contains(form->name);
    const char* item = form->name == "PlotForm" ? "MenuLogFile" : "MenuLog";
    const std::vector<std::string> items = ItemsIn(*form, "MenuPrint");
    EXPECT_EQ(std::ranges::count(items, item), record ? 1 : 0) << form->name;
  }
}

TEST(PrintMenus, OfTheResultsAreHiddenUntilThereIsOne) {
  for (const auto& [tab, button] :
       {std::pair("extrapolation", "LeidelCmb"), std::pair("mean", "JahrCmb"),
        std::pair("Compare", "CalcCmb")}) {
    ProgramSession user;
    user.OpenSeries({1, 2, 4, 8});
    user.Tab("basis");
    user.Tab("raw");
    ASSERT_TRUE(user.Tab(tab));
    EXPECT_FALSE(user.At("MenuPrint").visible) << tab;
    user.Click(button);
    EXPECT_TRUE(user.At("MenuPrint").visible) << tab;
    EXPECT_TRUE(user.At("MenuPrint").enabled) << tab;
  }
}

}  // namespace
