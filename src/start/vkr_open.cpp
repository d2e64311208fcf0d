#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "start/basis_form.h"

namespace start {
namespace {

// The text for a file that the reader refused, with the line that it stopped at.
std::string RefusalText(const rawdata::FileCheck& check, const std::string& cr) {
  std::string text = LoadResString(check.messageId);
  if (check.refusedLine > 0) {
    const std::string line = GlobalBAS::GeneralText(check.refusedLine);
    text +=
        cr + OwnText(Own::LineRefused, {line, check.refusedText}) + cr + OwnText(Own::BelowALimit);
  }
  return text;
}

}  // namespace

// A file that is refused leaves a series that is there alone; without one its name and the number
// of its lines stay, and nothing can be done with them.
void BasisForm::VkrOpen() {
  flow.MsgText = LoadResString(902);
  flow.MsgTitle = LoadResString(904);
  const std::string path = GlobalBAS::Trim(ports.fileDialog.Ask(
      {false, LoadResString(900), OwnText(Own::SeriesFiles), "", "Valkowin.chm", 100170}));
  if (path.empty()) {
    ports.messageBox.Show({session.MsgText, session.MsgTitle});
    return;
  }
  rawdata::FileCheck check;
  rawdata::FileValues file;
  {
    const screen::Busy busy(*this);
    Refresh();
    flow.MsgTitle = LoadResString(910) + path;
    check = rawdata::CheckFile(path);
    if (check.readable && check.messageId == 0) file = rawdata::ReadFile(path, check.count);
  }
  if (file.ok) {
    TakeSeries(path, file);
    return;
  }
  // A file that can't be read ends without a box; a refused one says why.
  if (check.readable && check.messageId != 0) {
    flow.MsgText = LoadResString(check.messageId);
    Complain(session.MsgText, session.MsgTitle);
  }
  if (session.C.size() > 2)
    BasisStatus();
  else
    record.Change([&](Given& given) {
      given.Mode = DataMode::Raw;
      given.Name = path;
      given.M = check.count;
      given.refusedFile = true;
    });
  TellRefusal(path, check);
}

void BasisForm::TellRefusal(const std::string& path, const rawdata::FileCheck& check) {
  if (!check.readable || check.messageId == 0)
    ShowMessage(OwnText(check.tooLarge ? Own::FileTooLarge : Own::FileNotReadable) + session.CR +
                path);
  else
    ShowMessage(RefusalText(check, session.CR));
}

// Another series: nothing of the one before but what documents it.
void BasisForm::TakeSeries(const std::string& path, const rawdata::FileValues& file) {
  OfferModify();
  record.Change([&](Given& given) {
    Given fresh;
    fresh.Mode = DataMode::Raw;
    fresh.Name = path;
    fresh.M = static_cast<double>(file.values.size());
    fresh.C.assign(1, 0.0);
    fresh.C.insert(fresh.C.end(), file.values.begin(), file.values.end());
    fresh.Unit = given.Unit;
    fresh.RefPeriod = given.RefPeriod;
    fresh.Duration = given.Duration;
    fresh.OELV = given.OELV;
    fresh.limitStated = given.limitStated;
    fresh.U = given.U;
    fresh.D = given.D;
    given = fresh;
  });
  record.AcceptSeries();
  flow.GridData.assign(file.values.size(), {});
  if (tellReading) tellReading(&file.notes);
  desk.MarkSaved(path);
  desk.ForgetSteps();
  desk.Open(navigation::ScreenId::DataCtrl);
}

}  // namespace start
