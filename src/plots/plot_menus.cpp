// The menus of the plot screen but those of the range.
#include "analysis/transformations.h"
#include "catalog/catalog.h"
#include "plots/plot_form.h"

namespace plots {
namespace {

// The hourglass, until the end of the scope however that comes.
class Busy {
 public:
  explicit Busy(screen::Form& form) : form_(form) { form.busyPointer = true; }
  ~Busy() { form_.busyPointer = false; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  screen::Form& form_;
};

}  // namespace

void PlotForm::ConnectMenus() {
  for (std::size_t i = 0; i < scaleMenus_.size(); ++i)
    scaleMenus_[i]->Click = [this, i] {
      Transform(std::string(analysis::kTransformations[i].name));
    };
  MenuRedraw.Click = [this] { PlotStatus(); };
  menuSavePicture.Click = [this] { SavePicture(); };
  MenuPrinterPrint.Click = [this] { Print(); };
  memuVALKOplot.Click = [this] { ShowKind("VALKORIN"); };
  MenuInvPlot.Click = [this] { ShowKind("InvPlot"); };
  MenuAnnexEPlot.Click = [this] { ShowKind("EN689AnnexE"); };
  MenuDevelop.Click = [this] { ShowDevelopment(); };
  MenuDevMode.Click = [this] { ToggleDeveloperMode(); };
}

void PlotForm::Transform(const std::string& scale) {
  const Busy busy(*this);
  if (!analysis::FillCTransf(session, scale)) {
    Complain(session.MsgText, session.MsgTitle);
    return;
  }
  state.Transformation = scale;
  PlotStatus();
}

void PlotForm::TickChoices() {
  for (std::size_t i = 0; i < scaleMenus_.size(); ++i)
    scaleMenus_[i]->ticked = state.Transformation == analysis::kTransformations[i].name;
  memuVALKOplot.ticked = Upright();
  MenuInvPlot.ticked = session.PlotKind == "InvPlot";
  MenuAnnexEPlot.ticked = AnnexE();
}

// A picker belongs to the kind of plot in which it was opened.
void PlotForm::ShowKind(const char* kind) {
  ResetAll();
  session.PlotKind = kind;
  PlotStatus();
}

void PlotForm::ToggleDeveloperMode() {
  session.DeveloperMode = !session.DeveloperMode;
  if (!session.DeveloperMode && session.PlotKind != "VALKORIN") {
    ResetAll();
    session.PlotKind = "VALKORIN";
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
      ports.fileDialog.Ask({true, title, "Valkorin Files (*.bmp)|*.bmp", "", "", 0});
  if (path.empty()) return;
  if (!ports.pictureFile.Write(path, PicPlot.drawing))
    Complain("The picture could not be written to " + path + ".", title);
}

void PlotForm::Print() {
  constexpr int kPrintError = 755;
  constexpr int kNotPrinted = 760;
  if (!ports.printer.PrintPage(PicPlot.drawing))
    Complain(LoadResString(kNotPrinted), LoadResString(kPrintError));
  PlotStatus();
}

}  // namespace plots
