#include "rawdata/rows.h"

#include <gmock/gmock.h>

// Which rows of the table a command means, and where a change of the series takes them.
namespace rawdata {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DeletedRows, AreTheSelectedOnes) {
  EXPECT_THAT(RowsToDelete({4, 1, 1}, 6), ElementsAre(1, 4));
  EXPECT_THAT(RowsToDelete({}, 6), IsEmpty());
}

TEST(DeletedRows, TheEmptyLineIsNone) {
  EXPECT_THAT(RowsToDelete({5, 6, 7, -1}, 6), ElementsAre(5));
  EXPECT_THAT(RowsToDelete({6}, 6), IsEmpty());
}

TEST(DeletedRows, OfAllRowsTheFirstTwoStay) {
  EXPECT_THAT(RowsToDelete({0, 1, 2, 3, 4}, 5), ElementsAre(2, 3, 4));
  EXPECT_THAT(RowsToDelete({0, 1, 2, 3}, 5), ElementsAre(1, 2, 3)) << "with the one not selected";
  EXPECT_THAT(RowsToDelete({0, 1, 2}, 5), ElementsAre(0, 1, 2));
  EXPECT_THAT(RowsToDelete({0, 1}, 2), IsEmpty());
  EXPECT_THAT(RowsToDelete({0}, 1), IsEmpty());
}

TEST(PlacesInOrder, TellWhereEachOutcomeGoes) {
  EXPECT_THAT(PlacesInOrder({5, 1, 3}), ElementsAre(2, 0, 1));
  EXPECT_THAT(PlacesInOrder({}), IsEmpty());
}

TEST(PlacesInOrder, EqualOutcomesKeepTheirs) {
  EXPECT_THAT(PlacesInOrder({2, 1, 2, 1}), ElementsAre(2, 0, 3, 1));
}

TEST(FirstToFill, IsTheFirstRowWithoutAnOutcome) {
  EXPECT_EQ(FirstToFill({1, 0, 2, 0}), 1);
  EXPECT_EQ(FirstToFill({1, 2}), 0) << "of a whole series the first row";
  EXPECT_EQ(FirstToFill({}), 0);
}

TEST(RowsThatCame, AreThoseOfOutcomesThatWereNotThere) {
  EXPECT_THAT(RowsThatCame({1, 2, 4}, {1, 1.5, 2, 4}), ElementsAre(1));
  EXPECT_THAT(RowsThatCame({1, 2, 4, 8}, {0.5, 1, 2, 8}), ElementsAre(0));
  EXPECT_THAT(RowsThatCame({1, 2, 4}, {1, 4}), IsEmpty());
  EXPECT_THAT(RowsThatCame({2, 2}, {2, 2, 2}), ElementsAre(2)) << "one more of an outcome";
}

TEST(RowsThatCame, InATableThatIsStillBeingFilledARowIsThatRow) {
  EXPECT_THAT(RowsThatCame({0, 5, 0}, {0, 0, 0}), ElementsAre(1));
}

}  // namespace
}  // namespace rawdata
