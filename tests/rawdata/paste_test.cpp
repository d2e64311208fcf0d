#include <gmock/gmock.h>

#include "rawdata/data_ctrl_form.h"
#include "tests/support/data_table.h"

// Pasting into the grid, and copying from it.
namespace {

using support::GridOf;
using support::OpenTable;
using support::ProgramSession;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST(Paste, FillsTheRowsFromTheCurrentOneOnAndAddsWhatIsMissing) {
  ProgramSession user;
  OpenTable(user, "3");
  GridOf(user).Paste(1, "2,5\r\n1.5\n12.5 mg/m3\r\n");
  EXPECT_EQ(user.Record().M, 4);
  EXPECT_TRUE(user.Record().RawIncomplete);
  EXPECT_THAT(user.Record().C, ElementsAre(testing::_, 0, 2.5, 1.5, 12.5));
  GridOf(user).Paste(0, "4");
  EXPECT_FALSE(user.Record().RawIncomplete);
  EXPECT_EQ(user.Record().C, (std::vector<double>{3.25, 1.5, 2.5, 4, 12.5}));
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(Paste, ThatIsRefusedNamesEveryLineAndTellsOfTheDetectionRange) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Paste(0, "5\r\n<0.5\r\nn.d.\r\n7 or 8\r\n9\r\n");
  const std::string& text = user.LastBox().text;
  EXPECT_THAT(text, HasSubstr("Line 2: \"<0.5\" says only that the outcome lies below a limit."));
  EXPECT_THAT(text, HasSubstr("Line 3: \"n.d.\" is no number."));
  EXPECT_THAT(text, HasSubstr("Line 4: \"7 or 8\" has something behind its number"));
  EXPECT_THAT(text, HasSubstr("Detection range"));
  EXPECT_THAT(text, Not(HasSubstr("File")));
  EXPECT_EQ(user.LastBox().title, "Concentration");
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4}));
  EXPECT_FALSE(user.program.Unsaved());
  EXPECT_EQ(user.Text("StatusLbl"), "Nothing was pasted.");
}

TEST(Paste, ThatIsRefusedSaysOfEachLineWhatIsWrong) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Paste(0, "1\n12-03-2024\n1,2,3\n> 9\n\n\"5 x\n6\"\n7");
  EXPECT_EQ(user.LastBox().text,
            "Nothing was pasted. Not understood:\r"
            "Line 2: \"12-03-2024\" is a date or a time, no outcome.\r"
            "Line 3: \"1,2,3\" has points or commas that part neither thousands nor decimals.\r"
            "Line 4: \"> 9\" says only that the outcome lies above a limit.\r"
            "Line 5 is empty.\r"
            "Line 6: \"5 x 6\" is one cell of several lines.\r"
            "For an outcome above what can be measured, paste that limit itself as a number, tick "
            "Detection range and state it as the upper limit: outcomes from it on count as above "
            "it.");
  GridOf(user).Paste(0, "12.5 mg/m3\n800 ug/m3");
  EXPECT_EQ(user.LastBox().text,
            "Nothing was pasted. Not understood:\r"
            "Line 2: \"800 ug/m3\" has another unit than the lines above it.");
}

TEST(Paste, WithoutALimitSaysNothingOfTheDetectionRange) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Paste(0, "5\n0\n");
  EXPECT_EQ(user.LastBox().text,
            "Nothing was pasted. Not understood:\rLine 2: \"0\" does not lie between 1E-10 and "
            "1E+10.");
}

TEST(Paste, OfALimitAsANumberServesTheDetectionRange) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  GridOf(user).Paste(4, "0.5\n0.5\n");
  user.Click("DetecChB");
  user.Type("DetecLTxb", "0.5");
  EXPECT_EQ(user.Record().FirstInRange, 3) << "what equals the limit lies below the range";
}

TEST(Paste, BeyondTwoThousandRowsIsRefusedWhole) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  std::string text;
  for (int i = 0; i < 1999; ++i) text += "3\n";
  GridOf(user).Paste(2, text);
  EXPECT_EQ(user.LastBox().text, "A Sample size M of more than two thousand  is too large");
  EXPECT_EQ(user.Record().M, 3);
  GridOf(user).Paste(0, text + "3\n3\n");
  EXPECT_EQ(user.LastBox().text,
            "Nothing was pasted: that is more than the two thousand outcomes of a series.");
}

TEST(Paste, OfNoTextSaysSoAndDoesNothing) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  for (const char* text : {"", "\r\n\r\n"}) {
    GridOf(user).Paste(0, text);
    EXPECT_EQ(user.Text("StatusLbl"), "Nothing was pasted: what was copied holds no plain text.");
  }
  EXPECT_EQ(user.Record().M, 3);
  EXPECT_TRUE(user.box.shown.empty());
}

TEST(Paste, AtTheEmptyLineAppendsAndTheNextOneAppendsToo) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  for (const int rows : {3, 5, 7}) {
    EXPECT_EQ(GridOf(user).rowCount, rows);
    GridOf(user).Paste(GridOf(user).currentRow == 0 ? rows : GridOf(user).currentRow, "3\n5\n");
    EXPECT_EQ(GridOf(user).currentRow, rows + 2) << "the line at the end again";
  }
  EXPECT_EQ(user.Record().C, (std::vector<double>{3, 1, 2, 3, 3, 3, 4, 5, 5, 5}));
}

TEST(Paste, GoesOnToTheNextUnfilledRow) {
  ProgramSession user;
  OpenTable(user, "6");
  GridOf(user).Paste(3, "5\n7");
  EXPECT_EQ(GridOf(user).currentRow, 5);
  GridOf(user).Paste(5, "9");
  EXPECT_EQ(GridOf(user).currentRow, 0) << "the rows above are still to be filled";
}

TEST(Paste, SelectsItsRows) {
  ProgramSession user;
  OpenTable(user, "4");
  GridOf(user).Paste(1, "5\n2");
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(1, 2));
}

TEST(Paste, SelectsItsRowsWhereTheyWereSorted) {
  ProgramSession user;
  user.OpenSeries({1, 3, 6});
  GridOf(user).Paste(3, "5\n2\n6");
  EXPECT_EQ(user.Record().C, (std::vector<double>{4, 1, 2, 3, 5, 6, 6}));
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(1, 3, 5)) << "behind its like";
}

TEST(Paste, TellsHowManyAndOfWhat) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  const auto told = [&](const std::string& text) {
    GridOf(user).Paste(0, text);
    return user.Text("StatusLbl");
  };
  EXPECT_EQ(told("3"), "1 outcome pasted.");
  EXPECT_EQ(told("3\n5"), "2 outcomes pasted.");
  EXPECT_EQ(told("Benzene\n3\n5"), "2 outcomes pasted. The header \"Benzene\" was passed over.");
  EXPECT_EQ(told("Anna\t3 ppm\nBob\t5 ppm"),
            "2 outcomes pasted. They are those of column 2. They are in ppm there, and the unit "
            "here is mg/m3.");
  EXPECT_EQ(told("Who\tResult\nAnna\t3\nBob\t5"),
            "2 outcomes pasted. They are those of column 2, \"Result\".");
}

TEST(Paste, AsksWhichColumnHoldsTheOutcomes) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  const std::string table = "Nr\tResult\n1\t0.591\n2\t0.84\n3\t0.9\n";
  GridOf(user).Paste(0, table);
  ASSERT_EQ(user.tables.asked.size(), 1u);
  EXPECT_EQ(user.tables.asked[0].text, "Which column holds the outcomes?");
  EXPECT_THAT(user.tables.asked[0].choices, ElementsAre("Column 1: Nr", "Column 2: Result"));
  EXPECT_THAT(user.tables.asked[0].columns, ElementsAre(0u, 1u));
  EXPECT_THAT(user.tables.asked[0].lines.front(), ElementsAre("Nr", "Result"));
  EXPECT_EQ(user.Text("StatusLbl"), "Nothing was pasted.") << "the question was cancelled";
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 4}));
  user.tables.answers = {1};
  GridOf(user).Paste(0, table);
  EXPECT_EQ(user.Record().C, (std::vector<double>{0.84, 0.591, 0.84, 0.9}));
}

TEST(Paste, AsksWhatACommaMeansThatMayPartThousands) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  user.tables.answers = {1};
  GridOf(user).Paste(0, "2.7 ppm\n1.234,5\n1,234");
  EXPECT_EQ(user.tables.asked[0].text, "What does \"1,234\" mean in this column?");
  EXPECT_THAT(user.tables.asked[0].choices,
              ElementsAre("The comma is the decimal sign: \"1,234\" is 1.234",
                          "The point is the decimal sign: \"1,234\" is 1234"));
  EXPECT_EQ(user.Record().C, (std::vector<double>{1234, 2.7, 1234, 1234.5}));
}

TEST(Copy, SaysHowMany) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Copy({0, 1});
  EXPECT_EQ(user.Text("StatusLbl"), "2 outcomes copied.");
  GridOf(user).Copy({2});
  EXPECT_EQ(user.Text("StatusLbl"), "1 outcome copied.");
}

TEST(Copy, GivesTheConcentrationsOnlyAndTheyComeBackAsTheyWere) {
  ProgramSession user;
  user.OpenSeries({0.591, 1234.5, 0.001, 2.0 / 3});
  const std::string copied = GridOf(user).Copy({0, 1, 2, 3, 4});
  EXPECT_EQ(copied, "0.001\n0.591\n0.666666666666667\n1234.5\n");
  const std::vector<double> before = user.Record().C;
  GridOf(user).Paste(0, copied);
  EXPECT_THAT(user.Record().C, testing::Pointwise(testing::DoubleNear(1E-12), before));
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_TRUE(user.tables.asked.empty());
}

}  // namespace
