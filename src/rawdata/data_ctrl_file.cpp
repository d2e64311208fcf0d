#include <filesystem>

#include "catalog/catalog.h"
#include "rawdata/data_ctrl_form.h"

// The file of the data control screen's series, and other programs that write to it.
namespace rawdata {
namespace {

constexpr const char* kChangedQuestion = "Another program has changed this file since it was read:";
constexpr const char* kOverwriteQuestion = "Overwrite those changes?";
constexpr const char* kNotOverwritten =
    "The file was left as the other program has made it. The series is not saved.";

bool AreTheSameFile(const std::string& one, const std::string& other) {
  std::error_code ignored;
  return one == other || std::filesystem::equivalent(one, other, ignored);
}

}  // namespace

// A file that is gone holds nothing that could be lost.
bool DataCtrlForm::MayOverwrite(const std::string& path) {
  if (!mark_ || !AreTheSameFile(path, markedPath_)) return true;
  const std::optional<files::FileMark> present = files::MarkOf(path);
  if (!present || *present == *mark_) return true;
  const screen::Message question{
      kChangedQuestion + session.CR + path + session.CR + kOverwriteQuestion, LoadResString(94),
      screen::Icon::Question, screen::Buttons::YesNo, screen::Answer::No};
  if (ports.messageBox.Show(question) == screen::Answer::Yes) return true;
  ReadingLbl.text = kNotOverwritten;
  return false;
}

}  // namespace rawdata
