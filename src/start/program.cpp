#include "start/program.h"

#include <algorithm>
#include <exception>

#include "analysis/descript_form.h"
#include "catalog/catalog.h"
#include "compare/two_samp_comp_form.h"
#include "compliance/perc_ex_form.h"
#include "limits/grenzen_form.h"
#include "plots/plot_form.h"
#include "plots/verdeling_form.h"
#include "rawdata/data_ctrl_form.h"
#include "start/basis_form.h"
#include "start/version.h"
#include "stats/coefficients.h"
#include "ucl/ucl_form.h"

namespace start {

using navigation::ScreenId;

struct Program::Parts {
  Parts(Program& program, screen::Ports& formPorts, std::vector<std::string> folders)
      : ports(formPorts),
        coefficientFolders(std::move(folders)),
        basis(session, program, formPorts),
        dataCtrl(session, program, formPorts),
        grenzen(session, program, formPorts),
        descript(session, program, formPorts),
        plot(session, program, formPorts),
        percEx(session, program, formPorts),
        mean(session, program, formPorts),
        compare(session, program, formPorts),
        verdeling(session, program, formPorts),
        forms{&basis, &dataCtrl, &grenzen, &descript, &plot, &percEx, &mean, &compare} {
    allForms.push_back(&mean.landHulp);
    allForms.push_back(&verdeling);
    basis.tellReading = [this](const rawdata::ReadingNotes* notes) { dataCtrl.TellReading(notes); };
  }

  screen::Ports& ports;
  const std::vector<std::string> coefficientFolders;
  ExposureSession session;
  BasisForm basis;
  rawdata::DataCtrlForm dataCtrl;
  limits::GrenzenForm grenzen;
  analysis::DescriptForm descript;
  plots::PlotForm plot;
  compliance::PercExForm percEx;
  ucl::UCLForm mean;
  compare::TwoSampCompForm compare;
  plots::VerdelingForm verdeling;
  std::vector<navigation::SessionForm*> forms;
  std::vector<screen::Form*> allForms{forms.begin(), forms.end()};

  screen::Form* shown = &basis;
  screen::Form* behindPicture = nullptr;  // the screen that the picture was called from
  bool endRequested = false;
  std::vector<double> savedSeries;  // C(1) to C(M) as the file holds them

  navigation::SessionForm* ById(ScreenId id) const {
    for (navigation::SessionForm* form : forms)
      if (form->id == id) return form;
    return nullptr;
  }

  // The outcomes 1 to M as they would be written. Under Modify the record's M is another one.
  std::vector<double> Series() const {
    if (session.C.size() < 2) return {};
    auto count = static_cast<std::size_t>(SampleCount(session));
    if (session.ModifyMode || count >= session.C.size()) count = session.C.size() - 1;
    return {session.C.begin() + 1, session.C.begin() + 1 + static_cast<std::ptrdiff_t>(count)};
  }

  // A series without a file in which no row is filled yet holds nothing to lose.
  bool NothingTyped() const {
    const std::vector<double> series = Series();
    return std::none_of(series.begin(), series.end(), [](double c) { return c > 0; });
  }

  void StartExtrapolation(const std::string& tag) {
    if (tag == "Ap")
      mean.JahrCmb_Click();
    else if (tag == "Ex")
      mean.LandCmb_Click();
    else if (tag == "Wi")
      percEx.WilksCmb_Click();
    else if (tag == "Tu")
      percEx.TuggleCmb_Click();
    else
      percEx.LeidelCmb_Click();
  }

  // What to ask before the program ends; the words follow the kind of data.
  std::string ExitQuestion() const {
    const std::string start = LoadResString(215);
    if (session.Mode == "R") return start + LoadResString(220) + session.Name + LoadResString(225);
    if (session.Mode == "D") return start + LoadResString(230) + session.Name + LoadResString(225);
    return start + LoadResString(220) + LoadResString(235);
  }
};

Program::Program(screen::Ports& ports, std::vector<std::string> coefficientFolders)
    : parts_(std::make_unique<Parts>(*this, ports, std::move(coefficientFolders))) {}

Program::~Program() = default;

ExposureSession& Program::Session() { return parts_->session; }

const std::vector<screen::Form*>& Program::Forms() const { return parts_->allForms; }

screen::Form* Program::FormByName(const std::string& name) const {
  for (screen::Form* form : parts_->allForms)
    if (form->name == name) return form;
  return nullptr;
}

// Each step stands on its own: one that fails is passed over without a word.
void Program::Start() {
  auto step = [](const screen::Handler& action) {
    try {
      action();
    } catch (const std::exception&) {
      return;
    }
  };
  Parts& p = *parts_;
  p.session.CR = "\r";
  step([&] { p.session.VersionText = LoadResString(2) + kVersion + "  "; });
  step([&] { p.basis.caption = p.session.VersionText + LoadResString(3); });
  for (screen::Form* form : p.allForms) step([&] { screen::ApplyCatalogue(*form); });
  for (screen::Form* form : p.allForms)
    if (form != &p.basis && form != &p.percEx && form != &p.compare) step([&] { form->Load(); });
  step([&] { StatFWinBAS::LoadCoefficients(p.coefficientFolders); });
  step([&] { p.basis.Load(); });
  step([&] { p.basis.EnterOwnTab(); });
}

screen::Form& Program::Shown() const { return *parts_->shown; }

std::string Program::Title() const {
  const Parts& p = *parts_;
  std::string title = GlobalBAS::Trim(p.shown->caption);
  if (!p.session.Name.empty()) title += " - " + p.session.Name;
  return title;
}

bool Program::Unsaved() const {
  const Parts& p = *parts_;
  return p.session.Mode == "R" && p.Series() != p.savedSeries &&
         !(p.savedSeries.empty() && p.NothingTyped());
}

void Program::MarkSaved() { parts_->savedSeries = parts_->Series(); }

bool Program::MayUnload() {
  using namespace screen;
  Parts& p = *parts_;
  if (p.endRequested) return true;
  const Message question{p.ExitQuestion(), LoadResString(210), Icon::Question, Buttons::OkCancel,
                         Answer::Ok};
  p.endRequested = p.ports.messageBox.Show(question) == Answer::Ok;
  return p.endRequested;
}

bool Program::EndRequested() const { return parts_->endRequested; }

void Program::Open(ScreenId target) {
  Parts& p = *parts_;
  navigation::SessionForm* form = p.ById(target);
  if (!form) return;
  if (ShowsPicture()) p.shown = p.behindPicture;
  // Whichever way the mean is left, what it showed is no test of another screen.
  if (p.shown == &p.mean && form != &p.mean) p.session.TestTag.clear();
  p.shown = form;
  form->focusWanted = nullptr;
  if (form == &p.percEx && !p.percEx.loaded) p.percEx.Load();
  if (form == &p.compare && !p.compare.loaded) p.compare.Load();
  if (onShow) onShow(*form);
  form->Activate();
}

void Program::RunExtrapolation(const std::string& tag) {
  Parts& p = *parts_;
  const bool ofMean = tag == "Ap" || tag == "Ex";
  const ScreenId target = ofMean ? ScreenId::UCL : ScreenId::PercEx;
  auto& from = *static_cast<navigation::SessionForm*>(p.shown);
  if (from.id != target) {
    from.BeforeTabClick();
    if (!workflow::GateOpen(p.session, from.id, target)) return;
    workflow::PassGate(p.session, from.id, target);
    Open(target);
  }
  p.StartExtrapolation(tag);
}

void Program::ShowPicture() {
  Parts& p = *parts_;
  p.behindPicture = p.shown;
  p.shown = &p.verdeling;
  if (onShow) onShow(p.verdeling);
  p.verdeling.Activate();
}

void Program::ClosePicture() {
  Parts& p = *parts_;
  if (!ShowsPicture()) return;
  p.shown = p.behindPicture;
  if (onShow) onShow(*p.shown);
}

bool Program::ShowsPicture() const { return parts_->shown == &parts_->verdeling; }

bool Program::MayDropSeries() {
  using namespace screen;
  Parts& p = *parts_;
  if (!Unsaved()) return true;
  const Message question{LoadResString(215) + LoadResString(220) + p.session.Name + " ?",
                         LoadResString(1324), Icon::Question, Buttons::YesNo, Answer::No};
  return p.ports.messageBox.Show(question) == Answer::Yes;
}

bool Program::CloseAllData() {
  Parts& p = *parts_;
  if (!MayDropSeries()) return false;
  if (p.shown != &p.basis) Open(ScreenId::Basis);
  p.basis.Menuclose_Click();
  return true;
}

void Program::Exit() {
  using namespace screen;
  Parts& p = *parts_;
  const Message question{p.ExitQuestion(), LoadResString(210), Icon::None, Buttons::YesNo,
                         Answer::No};
  if (p.ports.messageBox.Show(question) == Answer::Yes)
    p.endRequested = true;
  else
    Open(ScreenId::Basis);
}

}  // namespace start
