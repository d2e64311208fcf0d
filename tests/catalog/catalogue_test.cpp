#include <gtest/gtest.h>

#include <set>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "tests/support/csv.h"

namespace {

std::string ListedText(const support::Row& row) {
  return row.Text("text") + (row.Text("line_end") == "CRLF" ? "\r\n" : "");
}

// A text that is one blank off moves what stands beside it on a screen or in a log.
TEST(TextCatalogue, EveryTextIsTheListedOneToTheBlank) {
  for (const support::Row& row : support::ReadTable("catalogue.csv")) {
    const int id = static_cast<int>(row.Number("id"));
    EXPECT_EQ(LoadResString(id), ListedText(row)) << row.Where() << ", id " << id;
  }
}

TEST(TextCatalogue, HasTheListed498RowsAndNoOther) {
  std::set<int> listed;
  for (const support::Row& row : support::ReadTable("catalogue.csv"))
    listed.insert(static_cast<int>(row.Number("id")));
  std::set<int> held;
  for (const catalog::Row* row = catalog::begin(); row != catalog::end(); ++row)
    held.insert(row->id);
  EXPECT_EQ(held, listed);
  EXPECT_EQ(held.size(), 498u);
}

// Lookup is by halving the table.
TEST(TextCatalogue, RowsStandInAscendingOrderOfTheirIds) {
  const catalog::Row* before = catalog::begin();
  for (const catalog::Row* row = before + 1; row != catalog::end(); before = row++)
    EXPECT_LT(before->id, row->id);
}

TEST(TextCatalogue, AnIdWithoutTextIsAFaultAndNotAnEmptyText) {
  for (const int id : {-32768, -1, 0, 10, 18, 35, 5199, 5201, 32767}) {
    try {
      const std::string& text = LoadResString(id);
      ADD_FAILURE() << "id " << id << " gave \"" << text << "\"";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Kind(), FaultKind::MissingText) << "id " << id;
    }
  }
}

// Controls may keep the text by reference for the life of the program.
TEST(TextCatalogue, TheSameIdGivesTheSameTextObject) {
  EXPECT_EQ(&LoadResString(5200), &LoadResString(5200));
}

TEST(TextCatalogue, TheMakersLinesUseAReservedExampleDomain) {
  for (const int id : {6, 7, 8})
    EXPECT_NE(LoadResString(id).find("example.org"), std::string::npos) << LoadResString(id);
}

}  // namespace
