#include "navigation/live_line.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "catalog/own_texts.h"
#include "tests/navigation/line_states.h"

// What the one line below the screens says: a table of a record, a screen and the last action.
namespace {

using namespace line_states;
using navigation::LiveLine;
using navigation::LiveText;
using workflow::ScreenId;
using enum workflow::ScreenId;

const std::string kBand =
    "3 outcomes lie outside the detection range, but GM and GSD are of all of them: open Check "
    "distribution to estimate within the range.";
const std::string kByRange =
    "GM and GSD are of all 9 outcomes, with the 6 degrees of freedom that the detection range "
    "leaves.";
const std::string kOneRange =
    "One detection range serves the whole series; several limits of detection can't be told apart.";
const std::string kHint =
    " Below the limit of detection? Type the limit there and tick Detection range.";

struct Case {
  const char* name;
  Prepare prepare;
  ScreenId screen;
  std::string text;
  bool band = false;
};

std::vector<Case> Actions() {
  const auto on = [](LastAction action) { return Then(Nine, Reports(DataCtrl, action)); };
  return {
      {"nothing was done", Nine, DataCtrl, ""},
      {"a file was read", on({Did::Read, 9}), DataCtrl, "9 outcomes read."},
      {"with a note", on({Did::Read, 9, " Text behind the number on line 2 was passed over."}),
       DataCtrl, "9 outcomes read. Text behind the number on line 2 was passed over."},
      {"pasted", on({Did::Pasted, 4}), DataCtrl, "4 outcomes pasted."},
      {"one pasted", on({Did::Pasted, 1}), DataCtrl, "1 outcome pasted."},
      {"copied", on({Did::Copied, 9}), DataCtrl, "9 outcomes copied."},
      {"deleted", on({Did::Deleted, 2}), DataCtrl, "2 rows deleted."},
      {"one deleted", on({Did::Deleted, 1}), DataCtrl, "1 row deleted."},
      {"sorted", on({Did::Sorted, 3, "3"}), DataCtrl, "Sorted: 3 is now in row 3."},
      {"saved", on({Did::Saved, 9}), DataCtrl, "9 outcomes saved."},
      {"not saved", on({Did::NotSaved, 0, "a.vkr"}), DataCtrl,
       "The file could not be written: a.vkr. The series is not saved."},
      {"one read", on({Did::Read, 1}), DataCtrl, "1 outcome read."},
      {"one copied", on({Did::Copied, 1}), DataCtrl, "1 outcome copied."},
      {"one saved", on({Did::Saved, 1}), DataCtrl, "1 outcome saved."},
      {"another program's changes were kept", on({Did::NotOverwritten}), DataCtrl,
       "The file was left as the other program has made it. The series is not saved."},
      {"a picture was saved", Then(Nine, Reports(Plot, {Did::PictureSaved, 0, "a.bmp"})), Plot,
       "Picture saved to a.bmp."},
      {"a line beyond numbers", Then(Nine, Reports(Plot, {Did::LineBeyondNumbers})), Plot,
       "The estimates of this line are beyond what can be calculated with: GM and GSD stay those "
       "of "
       "all outcomes."},
      {"undone", on({Did::Undone, 0, "9 outcomes pasted"}), DataCtrl, "Undone: 9 outcomes pasted."},
      {"redone", on({Did::Redone, 0, "9 outcomes pasted"}), DataCtrl, "Redone: 9 outcomes pasted."},
      {"a sentence of its own", on({Did::Said, 0, "Something."}), DataCtrl, "Something."},
      {"is not told elsewhere", on({Did::Saved, 9}), Descript, ""},
      {"9 outcomes read, but the sample size is 8 now",
       Then(on({Did::Read, 9}), Changes([](Given& given) { given.M = 8; })), DataCtrl,
       "The highest outcome is left out (9); sample size 9 brings it back."},
      {"saved, but edited since",
       Then(on({Did::Saved, 9}), Changes([](Given& given) { given.C[1] = 0.5; })), DataCtrl, ""},
      {"a limit was refused", Then(Nine, Reports(Grenzen, {Did::LimitRefused, 0, "0"})), Grenzen,
       "The limit value 0 was out of range; 1 now stands."},
  };
}

std::vector<Case> MissingOutcomes() {
  const auto gaps = [](Record& record) { Give(record, {1, 0, 3, 4, 5, 0}); };
  const auto gap = [](Record& record) { Give(record, {1, 0, 3}); };
  const auto empty = [](Record& record) { Give(record, {0, 0, 0}); };
  return {
      {"rows are empty", gaps, DataCtrl, "Rows 2 and 6 are empty." + kHint},
      {"one row is", gap, DataCtrl, "Row 2 is empty." + kHint},
      {"all are", empty, DataCtrl, "All 3 rows are empty: type or paste the outcomes."},
      {"seen from the start screen", gaps, Basis, "Rows 2 and 6 are empty." + kHint},
      {"what was typed is no outcome", Then(gap, Reports(DataCtrl, {Did::NoOutcome, 2, "<0.1"})),
       DataCtrl, "\"<0.1\" in row 2 is no outcome. Row 2 is empty." + kHint},
      {"an incomplete series is not saved", Then(gap, Reports(DataCtrl, {Did::SaveRefused})),
       DataCtrl, "An incomplete series can't be saved. Row 2 is empty." + kHint},
      {"a closed tab was clicked",
       Then(gap, Reports(DataCtrl, {.did = Did::TabClosed, .target = Grenzen})), DataCtrl,
       "Limits is closed. Row 2 is empty." + kHint},
      {"and is open now",
       Then(Then(gap, Reports(DataCtrl, {.did = Did::TabClosed, .target = Grenzen})),
            Changes([](Given& given) { given.C[2] = 2; })),
       DataCtrl, ""},
  };
}

std::vector<Case> EstimatesInForce() {
  const Prepare back = Then(NineByRegression, [](Record& record) {
    record.Evaluate(Estimates::WholeSample);
    record.Report(DataCtrl, {Did::EstimatesPutBack});
  });
  std::vector<Case> cases = {
      {"a range on raw data", NineWithRange, DataCtrl, kByRange + " " + kOneRange},
      {"a range on limits", NineWithRange, Grenzen, kByRange},
      {"a line by the range", NineByRegression, Descript,
       "GM and GSD are estimated by the line through the 6 outcomes within the range."},
      {"raw data put the estimates back", back, DataCtrl,
       "Raw data has put GM and GSD of all outcomes in force again: open Check distribution to "
       "estimate within the range. GM, GSD and df are those of all 9 outcomes. " +
           kOneRange},
      {"and results are read", back, PercEx, kBand + " GM, GSD and df are those of all 9 outcomes.",
       true},
      {"all outcomes are equal",
       [](Record& record) {
         Give(record, {2, 2, 2});
       },
       DataCtrl, "All outcomes are equal: there is no spread to evaluate."},
      {"one outcome lies outside", Then(Nine, Changes([](Given& given) {
                                          given.DetecOn = true;
                                          ControleOndergrens(given, 1.5);
                                          given.inForce = Estimates::RangeDegrees;
                                        })),
       Descript,
       "1 outcome lies outside the detection range, but GM and GSD are of all of them: open Check "
       "distribution to estimate within the range. GM and GSD are of all 9 outcomes, with the 7 "
       "degrees of freedom that the detection range leaves.",
       true},
      {"none does", Then(Nine, Changes([](Given& given) {
                           given.DetecOn = true;
                           given.inForce = Estimates::RangeDegrees;
                         })),
       Descript,
       "GM and GSD are of all 9 outcomes, with the 8 degrees of freedom that the detection range "
       "leaves."},
  };
  for (const ScreenId screen : {Descript, PercEx, UCL, TwoSamp})
    cases.push_back(
        {"a range where results are read", NineWithRange, screen, kBand + " " + kByRange, true});
  return cases;
}

std::vector<Case> LimitsToState() {
  const auto unstated = [](Record& record) { Give(record, {1, 2, 4, 8}); };
  const std::string start = "1 is only the starting value: state your limit.";
  return {
      {"on limits", unstated, Grenzen, start},
      {"on tests", unstated, PercEx, start},
      {"not on the mean", unstated, UCL, ""},
      {"stated", Nine, PercEx, ""},
      {"stated as 1", Then(unstated, Changes([](Given& given) { given.limitStated = true; })),
       Grenzen, ""},
      {"emptied", Then(unstated, Changes([](Given& given) { given.OELV = 5; })), Grenzen,
       "The limit value was left empty and 5 still stands: state your limit."},
      {"a low confidence", Then(Nine, Changes([](Given& given) { given.D = 70; })), UCL,
       "D = 70 % gives the 70 % limit; the usual one is 95 %."},
      {"just below the usual", Then(Nine, Changes([](Given& given) { given.D = 94.99; })), UCL,
       "D = 94.99 % gives the 94.99 % limit; the usual one is 95 %."},
      {"the usual one", Nine, UCL, ""},
      {"not on tests", Then(Nine, Changes([](Given& given) { given.D = 70; })), PercEx, ""},
  };
}

std::vector<Case> TestsOnShow() {
  const auto shows = [](std::string reason) {
    return Then(Nine, [reason](Record& record) {
      TestResult result;
      result.test = record.Flow().TestTag = Extrapolation::Leidel;
      result.reason = reason;
      record.Keep(result);
    });
  };
  return {
      {"a test", shows(""), PercEx, ""},
      {"one with a word of its own", shows("Nothing is decided. "), PercEx, "Nothing is decided."},
      {"not elsewhere", shows(""), UCL, ""},
      {"of other limits", Then(shows(""), Changes([](Given& given) { given.OELV = 2; })), PercEx,
       "Statistics or limits have changed since this test: press its button again."},
      {"that was interrupted by a fault",
       Then(Nine, [](Record& record) { record.Flow().TestTag = Extrapolation::Wilks; }), PercEx,
       ""},
  };
}

class TheLiveLine : public testing::TestWithParam<Case> {};

TEST_P(TheLiveLine, TellsWhatIsSo) {
  const Case& c = GetParam();
  Record record;
  c.prepare(record);
  const LiveText line = LiveLine(record, c.screen);
  EXPECT_EQ(line.text, c.text) << c.name;
  EXPECT_EQ(line.band, c.band) << c.name;
}

INSTANTIATE_TEST_SUITE_P(OfActions, TheLiveLine, testing::ValuesIn(Actions()));
INSTANTIATE_TEST_SUITE_P(OfMissingOutcomes, TheLiveLine, testing::ValuesIn(MissingOutcomes()));
INSTANTIATE_TEST_SUITE_P(OfEstimates, TheLiveLine, testing::ValuesIn(EstimatesInForce()));
INSTANTIATE_TEST_SUITE_P(OfLimits, TheLiveLine, testing::ValuesIn(LimitsToState()));
INSTANTIATE_TEST_SUITE_P(OfTests, TheLiveLine, testing::ValuesIn(TestsOnShow()));

TEST(TheLiveLineOfALongList, NamesTwelveRowsAndCountsTheOthers) {
  Record record;
  std::vector<double> outcomes(20, 0.0);
  outcomes[0] = 1;
  Give(record, outcomes);
  EXPECT_EQ(LiveLine(record, DataCtrl).text,
            "Rows 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13 and 7 more are empty." + kHint);
}

TEST(TheStartScreen, TellsWhyItHasNoTabs) {
  Record record;
  Give(record, {1, 1000, 1E7});
  record.StatusFlags();
  EXPECT_THAT(LiveLine(record, Basis).text, testing::HasSubstr("There are no tabs here: GSD 3250"));
  EXPECT_EQ(LiveLine(record, Plot).text, "");
}

}  // namespace
