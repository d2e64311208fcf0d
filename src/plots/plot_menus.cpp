// The menus of the plot screen but those of the range.
#include "analysis/transformations.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "plots/plot_form.h"

namespace plots {
void PlotForm::ConnectMenus() {
  for (std::size_t i = 0; i < scaleMenus_.size(); ++i)
    scaleMenus_[i]->Click = [this, i] {
      Transform(std::string(analysis::kTransformations[i].name));
    };
  MenuRedraw.Click = [this] { PlotStatus(); };
  menuSavePicture.Click = [this] { SavePicture(); };
  memuVALKOplot.Click = [this] { ShowKind(PlotStyle::Paper); };
  MenuInvPlot.Click = [this] { ShowKind(PlotStyle::Inverse); };
  MenuAnnexEPlot.Click = [this] { ShowKind(PlotStyle::AnnexE); };
  MenuDevelop.Click = [this] { ShowDevelopment(); };
  MenuDevMode.Click = [this] { ToggleDeveloperMode(); };
}

void PlotForm::Transform(const std::string& scale) {
  const screen::Busy busy(*this);
  const analysis::TransformedSeries series =
      analysis::Transformed(session.C, SampleCount(session), scale);
  if (series.refusal[0] != 0) {
    flow.MsgText = LoadResString(series.refusal[0]) + session.CR + LoadResString(series.refusal[1]);
    flow.MsgTitle = LoadResString(analysis::kInvalidTransformation);
    Complain(session.MsgText, session.MsgTitle);
    return;
  }
  state.Transformation = scale;
  state.CTransf = series.CTransf;
  PlotStatus();
}

void PlotForm::TickChoices() {
  for (std::size_t i = 0; i < scaleMenus_.size(); ++i)
    scaleMenus_[i]->ticked = state.Transformation == analysis::kTransformations[i].name;
  memuVALKOplot.ticked = Upright();
  MenuInvPlot.ticked = session.PlotKind == PlotStyle::Inverse;
  MenuAnnexEPlot.ticked = AnnexE();
}

// A picker belongs to the kind of plot in which it was opened.
void PlotForm::ShowKind(PlotStyle kind) {
  ResetAll();
  flow.PlotKind = kind;
  PlotStatus();
}

void PlotForm::ToggleDeveloperMode() {
  flow.DeveloperMode = !session.DeveloperMode;
  if (!session.DeveloperMode && session.PlotKind != PlotStyle::Paper) {
    ResetAll();
    flow.PlotKind = PlotStyle::Paper;
  }
  Activate();
}

void PlotForm::ShowDevelopment() {
  MenuDevelop.ticked = !MenuDevelop.ticked;
  PlotStatus();
}

void PlotForm::SavePicture() {
  const std::string title = LoadResString(5200);
  const std::string path =
      ports.fileDialog.Ask({true, title, OwnText(Own::PictureFiles), "", "", 0});
  if (path.empty()) return;
  if (ports.pictureFile.Write(path, PicPlot.drawing))
    Report({.did = Did::PictureSaved, .what = path});
  else
    Complain(OwnText(Own::PictureNotWrittenTo, {path}), title);
}

}  // namespace plots
