#include <gmock/gmock.h>

#include "tests/support/data_table.h"
#include "tests/support/start_screen.h"

// Where the table's cursor and selection are behind what the user does.
namespace {

using support::GridOf;
using support::ProgramSession;
using testing::ElementsAre;

TEST(Cursor, OnArrivalStandsWhereToGoOn) {
  ProgramSession user;
  support::NewSeries(user, "Solvent", "3");
  user.Click("CmdContinu");
  EXPECT_EQ(GridOf(user).currentRow, 0);
  EXPECT_EQ(support::Focus(user), "DBGridVkr");
  GridOf(user).Write(0, 2, "4");
  user.Tab("basis");
  user.Click("CmdContinu");
  EXPECT_EQ(GridOf(user).currentRow, 1) << "the first row that is not filled";
  for (int row : {1, 2}) GridOf(user).Write(row, 2, "5");
  user.Tab("basis");
  user.Tab("raw");
  EXPECT_EQ(GridOf(user).currentRow, 0);
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(0));
}

// The outcome that the user has clicked moves up when a lower one goes to the end.
TEST(Cursor, StaysOnItsOutcomeThroughASort) {
  ProgramSession user;
  user.OpenSeries({1, 2, 3, 4, 5});
  GridOf(user).GoTo(3);
  GridOf(user).Write(0, 2, "9");
  EXPECT_EQ(GridOf(user).currentRow, 2);
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(2));
  EXPECT_EQ(user.Record().C[3], 4);
}

TEST(Cursor, OnTheCellThatWasTypedInGoesWithItsValue) {
  ProgramSession user;
  user.OpenSeries({1, 2, 3, 4, 5});
  GridOf(user).GoTo(0);
  GridOf(user).Write(0, 2, "9");
  EXPECT_EQ(GridOf(user).currentRow, 4);
}

TEST(Selection, BehindAPasteIsWhatWasPasted) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4});
  GridOf(user).Paste(3, "0.5\n8\n3");
  EXPECT_EQ(user.Record().C, (std::vector<double>{2.5, 0.5, 1, 2, 3, 4, 8}));
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(0, 3, 5));
}

TEST(Selection, BehindADeletionIsWhatHasMovedUp) {
  ProgramSession user;
  user.OpenSeries({1, 2, 3, 4, 5});
  GridOf(user).DeleteRows({1, 2});
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(1));
  EXPECT_EQ(user.Record().C[2], 4);
  GridOf(user).DeleteRows({2});
  EXPECT_THAT(GridOf(user).selectedRows, ElementsAre(1)) << "of the last row, the one before it";
}

TEST(Selection, OfSeveralRowsIsWhatTheMenuDeletes) {
  ProgramSession user;
  user.OpenSeries({1, 2, 3, 4, 5});
  GridOf(user).SelectRows(3, 2);
  user.Click("MenuDeleteRow");
  EXPECT_EQ(user.Record().C, (std::vector<double>{2, 1, 2, 3}));
}

}  // namespace
