#include <filesystem>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "rawdata/data_ctrl_form.h"

// The file of the data control screen's series, and other programs that write to it.
namespace rawdata {
namespace {

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
  const screen::Message question{OwnText(Own::ChangedByAnother) + session.CR + path + session.CR +
                                     OwnText(Own::OverwriteChanges),
                                 LoadResString(94), screen::Icon::Question, screen::Buttons::YesNo,
                                 screen::Answer::No};
  if (ports.messageBox.Show(question) == screen::Answer::Yes) return true;
  Report({.did = Did::NotOverwritten});
  return false;
}

}  // namespace rawdata
