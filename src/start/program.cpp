#include "start/program.h"

#include <algorithm>
#include <exception>

#include "analysis/descript_form.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "compare/two_samp_comp_form.h"
#include "compliance/compliance_tests.h"
#include "compliance/perc_ex_form.h"
#include "limits/grenzen_form.h"
#include "navigation/series_step.h"
#include "plots/density_view.h"
#include "plots/plot_form.h"
#include "plots/verdeling_form.h"
#include "rawdata/data_ctrl_form.h"
#include "session/derivation.h"
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
        basis(record, program, formPorts),
        dataCtrl(record, program, formPorts),
        grenzen(record, program, formPorts),
        descript(record, program, formPorts),
        plot(record, program, formPorts),
        percEx(record, program, formPorts),
        mean(record, program, formPorts),
        compare(record, program, formPorts),
        verdeling(record, program, formPorts),
        forms{&basis, &dataCtrl, &grenzen, &descript, &plot, &percEx, &mean, &compare} {
    allForms.push_back(&mean.landHulp);
    allForms.push_back(&verdeling);
    basis.tellReading = [this](const rawdata::ReadingNotes* notes) { dataCtrl.TellReading(notes); };
  }

  screen::Ports& ports;
  const std::vector<std::string> coefficientFolders;
  Record record;
  const ExposureSession& session = record.Now();
  navigation::Steps steps{record, ports.history};
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

  // The outcomes 1 to M as they would be written.
  std::vector<double> Series() const {
    if (session.C.size() < 2) return {};
    const auto count =
        std::min(static_cast<std::size_t>(SeriesCount(session)), session.C.size() - 1);
    return {session.C.begin() + 1, session.C.begin() + 1 + static_cast<std::ptrdiff_t>(count)};
  }

  // A series without a file in which no row is filled yet holds nothing to lose.
  bool NothingTyped() const {
    const std::vector<double> series = Series();
    return std::none_of(series.begin(), series.end(), [](double c) { return c > 0; });
  }

  void OfferSteps() const {
    for (navigation::SessionForm* form : forms) form->OfferSteps();
  }

  // Where the series can be looked at on this screen.
  bool Stands(const navigation::SessionForm& form) const {
    return form.id == ScreenId::Basis || form.id == ScreenId::DataCtrl ||
           workflow::GateOpen(session, ScreenId::DataCtrl, form.id);
  }

  void StartExtrapolation(Extrapolation tag) {
    if (tag == Extrapolation::Jahr)
      mean.JahrCmb_Click();
    else if (tag == Extrapolation::Land)
      mean.LandCmb_Click();
    else
      percEx.Run(tag);
  }

  // What to ask before the program ends; the words follow the kind of data.
  std::string ExitQuestion() const {
    const std::string start = LoadResString(215);
    if (session.Mode == DataMode::Raw)
      return start + LoadResString(220) + session.Name + LoadResString(225);
    if (session.Mode == DataMode::Statistics)
      return start + LoadResString(230) + session.Name + LoadResString(225);
    return start + LoadResString(220) + LoadResString(235);
  }
};

Program::Program(screen::Ports& ports, std::vector<std::string> coefficientFolders)
    : parts_(std::make_unique<Parts>(*this, ports, std::move(coefficientFolders))) {}

Program::~Program() = default;

ExposureSession& Program::Session() { return parts_->record.Script(); }

const Record& Program::SessionRecord() const { return parts_->record; }

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
  p.record.Flow().CR = "\r";
  step([&] { p.record.Flow().VersionText = LoadResString(2) + kVersion + "  "; });
  step([&] { p.basis.caption = p.session.VersionText + LoadResString(3); });
  for (screen::Form* form : p.allForms) step([&] { screen::ApplyCatalogue(*form); });
  for (screen::Form* form : p.allForms)
    if (form != &p.basis && form != &p.percEx && form != &p.compare) step([&] { form->Load(); });
  step([&] { StatFWinBAS::LoadCoefficients(p.coefficientFolders); });
  step([&] { p.basis.Load(); });
  step([&] { p.basis.EnterOwnTab(); });
  step([&] { p.OfferSteps(); });
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
  return p.session.Mode == DataMode::Raw && p.Series() != p.savedSeries &&
         !(p.savedSeries.empty() && p.NothingTyped());
}

void Program::MarkSaved() { parts_->savedSeries = parts_->Series(); }

void Program::Done(const std::string& words, const GivenSeries& before, bool goesOn) {
  parts_->steps.Done(words, before, goesOn);
  parts_->OfferSteps();
}

void Program::Undo() {
  if (parts_->steps.Undo()) ShowRestored();
}

void Program::Redo() {
  if (parts_->steps.Redo()) ShowRestored();
}

// A screen to which the series has closed the way gives way to the table, where it can be mended.
// Nothing is checked there as on an arrival: the series has stood before.
void Program::ShowRestored() {
  Parts& p = *parts_;
  auto* form = static_cast<navigation::SessionForm*>(p.shown);
  if (!p.Stands(*form)) {
    p.shown = form = &p.dataCtrl;
    if (onShow) onShow(*form);
    form->SetFocus(p.dataCtrl.DBGridVkr);
  }
  form->Restored();
  if (form != &p.dataCtrl) p.dataCtrl.Rebind();
  p.OfferSteps();
}

std::string Program::ToUndo() const { return parts_->steps.ToUndo(); }

std::string Program::ToRedo() const { return parts_->steps.ToRedo(); }

void Program::ForgetSteps() {
  parts_->steps.Forget();
  parts_->OfferSteps();
}

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
  if (p.shown == &p.mean && form != &p.mean) p.record.Flow().TestTag = Extrapolation::None;
  p.shown = form;
  form->focusWanted = nullptr;
  if (form == &p.percEx && !p.percEx.loaded) p.percEx.Load();
  if (form == &p.compare && !p.compare.loaded) p.compare.Load();
  if (onShow) onShow(*form);
  form->Activate();
}

const std::vector<navigation::ExtrapolationMenu>& Program::Extrapolations() const {
  static const std::vector<navigation::ExtrapolationMenu> menus = [] {
    std::vector<navigation::ExtrapolationMenu> all;
    for (const compliance::ComplianceTest* test : compliance::ComplianceTests())
      all.push_back({test->tag, ScreenId::PercEx, test->menu, "menuExtrPol", test->menuCaption});
    all.push_back({Extrapolation::Jahr, ScreenId::UCL, "MenuJahr", "MenuAM", 54});
    all.push_back({Extrapolation::Land, ScreenId::UCL, "MenuLand", "MenuAM", 56});
    return all;
  }();
  return menus;
}

void Program::RunExtrapolation(Extrapolation tag) {
  Parts& p = *parts_;
  const auto item = std::ranges::find(Extrapolations(), tag, &navigation::ExtrapolationMenu::tag);
  auto& from = *static_cast<navigation::SessionForm*>(p.shown);
  if (from.id != item->screen) {
    from.BeforeTabClick();
    if (!workflow::GateOpen(p.session, from.id, item->screen)) return;
    workflow::PassGate(p.record.Flow(), from.id, item->screen);
    Open(item->screen);
  }
  p.StartExtrapolation(tag);
}

std::string Program::PictureObstacle() const {
  const auto numbers = PlotWBas::NumbersOf(parts_->record);
  const ScreenId from = parts_->session.CurrentTab.value_or(ScreenId::Basis);
  const bool ofTest = from == ScreenId::PercEx || from == ScreenId::UCL;
  if (!numbers) return OwnText(ofTest ? Own::PictureNeedsTest : Own::PictureNeedsEstimates);
  return PlotWBas::Drawable(*numbers) ? "" : OwnText(Own::NoPicture);
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
