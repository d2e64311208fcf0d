#include <gtest/gtest.h>

#include <vector>

#include "navigation/live_line.h"
#include "tests/navigation/line_states.h"

// Why the tab of a screen leads nowhere.
namespace {

using namespace line_states;
using navigation::WhyClosed;
using workflow::ScreenId;
using enum workflow::ScreenId;

constexpr ScreenId kScreens[] = {Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, UCL, TwoSamp};

// A tab that looks open and does nothing is what the line is there against.
TEST(ClosedTabs, HaveAReasonInEveryStateAndOpenOnesHaveNone) {
  const std::vector<Prepare> states = {
      [](Record& record) {
        Give(record, {1, 0, 3});
      },
      Nine,
      NineByRegression,
      [](Record& record) {
        Give(record, {2, 2, 2});
      },
      [](Record& record) {
        Give(record, {1, 3});
      },
      Then(Nine, [](Record& record) {
        record.Change([](Given& given) { given.original = Original{"series.vkr", 9}; });
        record.StatusFlags();
      })};
  for (const Prepare& prepare : states) {
    for (const int flags : {0, 1, 2, 3}) {
      Record record;
      prepare(record);
      record.Flow().DescOk = record.Now().DescOk && (flags & 1) != 0;
      record.Flow().LimitsOk = (flags & 2) != 0;
      for (const ScreenId from : kScreens) {
        for (const ScreenId target : kScreens) {
          if (from == target) continue;
          const bool open = workflow::GateOpen(record.Now(), from, target);
          EXPECT_EQ(WhyClosed(record.Now(), from, target).empty(), open)
              << workflow::TabOf(from).key << " to " << workflow::TabOf(target).key;
        }
      }
    }
  }
}

TEST(ClosedTabs, TellWhatIsMissing) {
  Record nine;
  Nine(nine);
  nine.Flow().LimitsOk = false;
  EXPECT_EQ(WhyClosed(nine.Now(), Descript, PercEx),
            "There is no valid limit value yet: state it on Limits.");
  Record two;
  Give(two, {1, 3});
  EXPECT_EQ(WhyClosed(two.Now(), Descript, Plot), "A line needs three outcomes.");
  Record typed;
  typed.Change([](Given& given) {
    given.Mode = DataMode::Statistics;
    given.Name = "Welders";
    given.M = 12;
  });
  typed.StatusFlags();
  EXPECT_EQ(WhyClosed(typed.Now(), Basis, Descript),
            "Name, sample size, GM and GSD are not all there yet.");
  Record unsized;
  unsized.Change([](Given& given) {
    given.Mode = DataMode::Raw;
    given.newSeries = true;
  });
  EXPECT_EQ(WhyClosed(unsized.Now(), Basis, Grenzen), "The series has no sample size yet.");
}

TEST(ClosedTabs, TellThatOtherValuesAreTried) {
  Record record;
  Nine(record);
  record.Change([](Given& given) { given.original = Original{"series.vkr", 9}; });
  EXPECT_EQ(WhyClosed(record.Now(), Basis, DataCtrl),
            "Other values are tried on top of the data: Reset on Start brings the data back.");
}

}  // namespace
