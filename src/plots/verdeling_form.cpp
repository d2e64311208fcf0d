#include "plots/verdeling_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "navigation/session_form.h"
#include "plots/density_view.h"
#include "plots/labels.h"
#include "plots/picture_words.h"
#include "session/derivation.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace plots {

VerdelingForm::VerdelingForm(Record& sessionRecord, navigation::Desk& programDesk,
                             screen::Ports& formPorts)
    : Form("VerdelingForm", formPorts), record(sessionRecord), desk(programDesk) {
  MenuSave.Click = [this] { desk.SaveSeries(); };
  menuSavePicture.Click = [this] { SavePicture(); };
  Menuclose.Click = [this] { desk.ClosePicture(); };
  MenuExit.Click = [this] { desk.Exit(); };
  VerdelingPict.Resized = [this] {
    if (desk.ShowsPicture()) Draw();
  };
}

void VerdelingForm::Activate() {
  MenuSave.enabled = CompleteSeries(record.Now());
  Draw();
}

// Where the numbers can't be drawn the way here is closed, and a resize draws nothing.
void VerdelingForm::Draw() {
  VerdelingPict.drawing.Clear();
  HideLabels();
  const std::optional<PlotWBas::PictureNumbers> numbers = PlotWBas::NumbersOf(record);
  if (!numbers || !PlotWBas::Drawable(*numbers)) return;
  WindnrLbl.text = numbers->window;
  const ExposureSession& s = record.Now();
  Computed& kept = record.Numbers();
  kept.AMu = StatFWinBAS::FinneyMeanMVU(s.df, s.GM, s.GSD);
  kept.LnGSD = Log(s.GSD);
  const PlotWBas::DensityData data = PlotWBas::DensityOf(*numbers, ports.clock.Now());
  PlotWBas::DrawDensity(VerdelingPict.drawing, data);
  // The headline may have had to shorten it.
  const std::string series = GlobalBAS::Trim(s.Name);
  VerdelingPict.tip = PlotWBas::Shows(VerdelingPict.drawing, "LblKoptekst", series) ? "" : series;
  VerdelingPict.text = PlotWBas::PictureWords(s, data.headline, data.explanation);
  for (const PlotWBas::DensityMark& mark : data.marks) ShowLabel(mark.name, mark.text);
  ShowLabel("XasLbl(0)", data.endText);
  ShowLabel("XasLbl", data.endValue);
  ShowLabel("LblKoptekst", data.headline);
  if (!data.explanation.empty()) ShowLabel("LblToets", data.explanation);
  ShowLabel("LblRightTxt", data.header);
}

ScreenId VerdelingForm::From() const { return record.Now().CurrentTab.value_or(ScreenId::Basis); }

void VerdelingForm::TellState() {
  printMenus.Offer();
  navigation::ShowLine(StatusLbl, record, From());
}

void VerdelingForm::HideLabels() {
  for (screen::Control* control : controls)
    if (control->kind == screen::Kind::PictureLabel) control->Hide();
}

void VerdelingForm::ShowLabel(const std::string& label, const std::string& text) {
  screen::Control& control = *Find(label);
  control.text = text;
  control.Show();
}

void VerdelingForm::SavePicture() {
  record.Flow().MsgTitle = LoadResString(902);
  record.Flow().MsgText = LoadResString(904);
  const std::string path =
      ports.fileDialog.Ask({true, LoadResString(5200), OwnText(Own::PictureFiles), "", "", 0});
  if (path.empty()) return;
  record.Flow().MsgTitle = LoadResString(910) + path;
  record.Flow().MsgText.clear();
  if (ports.pictureFile.Write(path, VerdelingPict.drawing))
    record.Report(From(), {.did = Did::PictureSaved, .what = path});
  else
    Complain(OwnText(Own::PictureNotWritten), record.Flow().MsgTitle);
}

}  // namespace plots
