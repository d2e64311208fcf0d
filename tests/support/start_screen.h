#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/support/letters.h"
#include "tests/support/program_session.h"

// What the tests of the start screen do and look at again and again.
namespace support {

// Name of the field that the screen has moved the focus to since the last call.
inline std::string Focus(ProgramSession& user) {
  screen::Control* wanted = std::exchange(user.Shown().focusWanted, nullptr);
  return wanted ? wanted->name : "";
}

// A series of 1, 2, 4 and 8 from a file, seen on the start screen.
inline void OpenAndReturn(ProgramSession& user) {
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
}

// Changes an outcome, counted from 0, in the table of the data screen.
inline void EditOutcome(ProgramSession& user, int row, const std::string& text) {
  auto& grid = static_cast<screen::Grid&>(user.At("DBGridVkr"));
  ASSERT_TRUE(grid.Write(row, 2, text));
}

// A new series whose table is still empty.
inline void NewSeries(ProgramSession& user, const std::string& name, const std::string& size) {
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", name);
  user.Type("SampSizTxB", size);
}

// The kind of data in the record and on the screen, with the window's number and the message.
inline void ExpectKindOfData(ProgramSession& user, const std::string& mode,
                             const std::string& window, const std::string& message) {
  EXPECT_EQ(user.Record().Mode, support::ModeOf(mode));
  EXPECT_EQ(user.At("RawOpt").ticked, mode == "R");
  EXPECT_EQ(user.At("DesOpt").ticked, mode == "D");
  EXPECT_EQ(user.Text("WindnrLbl"), window);
  EXPECT_EQ(user.Text("BoodschLbl"), message);
}

// The series went without a question.
inline void ExpectNoSeries(ProgramSession& user) {
  EXPECT_EQ(user.Record().Name, "");
  EXPECT_EQ(user.Record().M, 0);
  EXPECT_TRUE(user.box.shown.empty());
}

}  // namespace support
