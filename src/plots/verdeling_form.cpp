#include "plots/verdeling_form.h"

#include "base/fault.h"
#include "catalog/catalog.h"
#include "plots/density_view.h"
#include "plots/labels.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace plots {

VerdelingForm::VerdelingForm(ExposureSession& record, navigation::Desk& programDesk,
                             screen::Ports& formPorts)
    : Form("VerdelingForm", formPorts), session(record), desk(programDesk) {
  menuSavePicture.Click = [this] { SavePicture(); };
  Menuclose.Click = [this] { desk.ClosePicture(); };
  MenuExit.Click = [this] { desk.Exit(); };
  VerdelingPict.Resized = [this] {
    if (desk.ShowsPicture()) Draw();
  };
}

void VerdelingForm::Activate() {
  WindnrLbl.text = PlotWBas::DensityWindow(PlotWBas::NumbersOf(session).of);
  Draw();
}

// Should a calculation fault, no earlier picture stands there.
void VerdelingForm::Draw() {
  VerdelingPict.drawing.Clear();
  HideLabels();
  if (session.AMu == 0)
    session.AMu = StatFWinBAS::FinneyMeanMVU(session.df, session.GM, session.GSD);
  session.LnGSD = Log(session.GSD);
  const PlotWBas::DensityData data =
      PlotWBas::DensityOf(PlotWBas::NumbersOf(session), ports.clock.Now());
  PlotWBas::DrawDensity(VerdelingPict.drawing, data);
  // The headline may have had to shorten it.
  VerdelingPict.tip =
      PlotWBas::Shows(VerdelingPict.drawing, "LblKoptekst", GlobalBAS::Trim(session.Name))
          ? ""
          : GlobalBAS::Trim(session.Name);
  for (const PlotWBas::DensityMark& mark : data.marks) ShowLabel(mark.name, mark.text);
  ShowLabel("XasLbl(0)", data.endText);
  ShowLabel("XasLbl", data.endValue);
  ShowLabel("LblKoptekst", data.headline);
  if (!data.explanation.empty()) ShowLabel("LblToets", data.explanation);
  ShowLabel("LblRightTxt", data.header);
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
  session.MsgTitle = LoadResString(902);
  session.MsgText = LoadResString(904);
  const std::string path =
      ports.fileDialog.Ask({true, LoadResString(5200), "Valkorin Files (*.bmp)|*.bmp", "", "", 0});
  if (path.empty()) return;
  session.MsgTitle = LoadResString(910) + path;
  session.MsgText.clear();
  if (!ports.pictureFile.Write(path, VerdelingPict.drawing))
    Complain("The picture could not be written.", session.MsgTitle);
}

}  // namespace plots
