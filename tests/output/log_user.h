#pragma once

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/support/program_session.h"
#include "tests/support/temp_folder.h"

// A user whose files lie in the current directory, a folder of the test's own.
class LogUser : public testing::Test {
 protected:
  LogUser() { std::filesystem::current_path(folder_.Path(".")); }
  ~LogUser() override { std::filesystem::current_path(before_); }

  void OpenSeries(const std::string& name = "weld.vkr") {
    folder_.Write(name, "1\r\n2\r\n4\r\n8\r\n");
    p.OpenFile(name);
  }
  void AppendWith(const char* item = "MenuLog") {
    p.box.shown.clear();
    p.Click(item);
  }
  void Append() { AppendWith(); }
  std::string Bytes(const std::string& name) const { return TempFolder::Bytes(folder_.Path(name)); }
  // The path by which the program calls a file of the folder.
  std::string Whole(const std::string& name) const {
    return (std::filesystem::current_path() / name).string();
  }
  void ExpectBox(const std::string& title, const std::string& text, screen::Icon icon) const {
    ASSERT_EQ(p.box.shown.size(), 1U);
    EXPECT_EQ(p.LastBox().title, title);
    EXPECT_EQ(p.LastBox().text, text);
    EXPECT_EQ(p.LastBox().icon, icon);
    EXPECT_EQ(p.LastBox().buttons, screen::Buttons::Ok);
  }
  void ExpectRefusal(const std::string& text) const {
    ExpectBox("Print to Log file error", text, screen::Icon::Exclamation);
  }

  const std::filesystem::path before_ = std::filesystem::current_path();
  TempFolder folder_;
  support::ProgramSession p;
};
