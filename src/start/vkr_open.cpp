#include <algorithm>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "start/basis_form.h"

namespace start {
namespace {

constexpr const char* kNotReadable = "This file could not be read:";
constexpr const char* kTooLarge = "This file is larger than 64 MiB, which no raw data file is:";

// The text for a file that the reader refused, with the line that it stopped at.
std::string RefusalText(const rawdata::FileCheck& check, const std::string& cr) {
  std::string text = LoadResString(check.messageId);
  if (check.refusedLine > 0) {
    text += cr + "Line " + GlobalBAS::GeneralText(check.refusedLine) + " holds \"" +
            check.refusedText + "\", which is no outcome between 1E-10 and 1E+10." + cr +
            "Enter values below a limit as numbers, and state the limit as a detection range.";
  }
  return text;
}

}  // namespace

void BasisForm::VkrOpen() {
  const ExposureSession before = session;
  const bool loaded = session.C.size() > 2;  // closing the data leaves one element
  session.MsgText = LoadResString(902);
  session.MsgTitle = LoadResString(904);
  const std::string path = GlobalBAS::Trim(ports.fileDialog.Ask(
      {false, LoadResString(900), "Valkorin Files (*.vkr)|*.vkr", "", "Valkowin.chm", 100170}));
  if (path.empty()) {
    ports.messageBox.Show({session.MsgText, session.MsgTitle});
    return;
  }
  busyPointer = true;
  Refresh();
  session.Name = path;
  session.MsgTitle = LoadResString(910) + path;
  const rawdata::FileCheck check = rawdata::CheckFile(path);
  session.M = check.count;
  rawdata::FileValues file;
  if (check.readable && check.messageId == 0) file = rawdata::ReadFile(path, check.count);
  busyPointer = false;
  if (file.ok) {
    TakeSeries(file);
    return;
  }
  // A file that can't be read ends without a box; a refused one says why.
  if (check.readable && check.messageId != 0) {
    session.MsgText = LoadResString(check.messageId);
    Complain(session.MsgText, session.MsgTitle);
  }
  if (loaded) {
    session = before;
    BasisStatus();
  }
  TellRefusal(path, check);
}

void BasisForm::TellRefusal(const std::string& path, const rawdata::FileCheck& check) {
  if (!check.readable || check.messageId == 0)
    ShowMessage((check.tooLarge ? kTooLarge : kNotReadable) + session.CR + path);
  else
    ShowMessage(RefusalText(check, session.CR));
}

void BasisForm::TakeSeries(const rawdata::FileValues& file) {
  session.RawIncomplete = false;
  session.DescOk = true;
  session.Mode = "R";
  session.ModifyMode = false;
  OfferModify();
  const int count = SampleCount(session);
  SizeSeries(session);
  std::copy(file.values.begin(), file.values.end(), session.C.begin() + 1);
  session.SortOrder =
      std::is_sorted(session.C.begin() + 1, session.C.end()) ? "Ascending" : "Onbekend";
  rawdata::SortValues(count, session.C, session.SortOrder);
  StoreMedian(session);
  session.LnC[0] = 0;
  for (std::size_t i = 1; i < session.C.size(); ++i) session.LnC[i] = Log(session.C[i]);
  session.DescOk = true;
  session.IdentOk = true;
  session.DetecOn = false;
  session.RegressionOn = false;
  session.LOQ = 0.95 * session.C[1];
  session.URR = 1.05 * session.C[static_cast<std::size_t>(count)];
  session.FirstInRange = 1;
  session.LastInRange = static_cast<std::int16_t>(count);
  session.NInRange = static_cast<std::int16_t>(count);
  DegreesOfFreedom(session);
  session.GridData.assign(static_cast<std::size_t>(count), {});
  if (tellReading) tellReading(&file.notes);
  desk.MarkSaved();
  desk.Open(navigation::ScreenId::DataCtrl);
}

}  // namespace start
