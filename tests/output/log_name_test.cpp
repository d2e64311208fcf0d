#include "output/log_name.h"

#include <gtest/gtest.h>

#include "tests/support/csv.h"

namespace {

std::string Unescaped(std::string text) {
  for (std::size_t at = text.find("\\\\"); at != std::string::npos; at = text.find("\\\\", at + 1))
    text.erase(at, 1);
  return text;
}

TEST(LogNames, FollowTheFirstPointOfTheWholePath) {
  for (const support::Row& row : support::ReadTable("log_names.csv"))
    EXPECT_EQ(output::LogNameOf(Unescaped(row.Text("Name"))), Unescaped(row.Text("LogName")))
        << row.Where();
}

TEST(LogNames, InTheMenuLoseTheLastFourCharactersOfTheName) {
  for (const support::Row& row : support::ReadTable("log_names.csv")) {
    if (row.Text("menu_caption") == "own choice, no fault") continue;
    EXPECT_EQ(output::LogCaption(Unescaped(row.Text("Name"))), Unescaped(row.Text("menu_caption")))
        << row.Where();
  }
}

TEST(LogNames, AShortNameIsCutAsFarAsItGoes) {
  EXPECT_EQ(output::LogCaption("Pb"), "To file .LOG");
  EXPECT_EQ(output::LogCaption("lo\xC2\xB5\xC2\xB5"), "To file .LOG") << "whole characters";
}

}  // namespace
