#include "start/program.h"

#include <algorithm>
#include <exception>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "compliance/compliance_tests.h"
#include "navigation/series_step.h"
#include "plots/density_view.h"
#include "start/program_parts.h"
#include "start/version.h"
#include "stats/coefficients.h"

namespace start {

using navigation::ScreenId;

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

void Program::TellState() {
  Parts& p = *parts_;
  p.report.FollowSession();
  if (p.shown == &p.printkeu) return;
  if (ShowsPicture())
    p.verdeling.TellState();
  else
    static_cast<navigation::SessionForm&>(*p.shown).TellState();
}

std::string Program::Title() const {
  const Parts& p = *parts_;
  std::string title = GlobalBAS::Trim(p.shown->caption);
  if (!p.session.Name.empty() && !p.session.refusedFile) title += " - " + p.session.Name;
  return title;
}

void Program::Done(const std::string& words, const GivenSeries& before, bool goesOn) {
  parts_->steps.Done(words, before, goesOn);
  parts_->OfferSteps();
}

void Program::Undo() {
  const std::string words = ToUndo();
  if (parts_->steps.Undo()) ShowRestored({.did = Did::Undone, .what = words});
}

void Program::Redo() {
  const std::string words = ToRedo();
  if (parts_->steps.Redo()) ShowRestored({.did = Did::Redone, .what = words});
}

// A screen to which the series has closed the way gives way to the table, where it can be mended.
// Nothing is checked there as on an arrival: the series has stood before.
void Program::ShowRestored(const LastAction& action) {
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
  form->Report(action);
}

std::string Program::ToUndo() const { return parts_->steps.ToUndo(); }

std::string Program::ToRedo() const { return parts_->steps.ToRedo(); }

void Program::ForgetSteps() {
  parts_->steps.Forget();
  parts_->OfferSteps();
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
    if (!workflow::GateOpen(p.session, from.id, item->screen)) {
      from.TellClosed(item->screen);
      return;
    }
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

void Program::ShowPicture() { ShowInstead(parts_->verdeling); }

void Program::ShowInstead(screen::Form& form) {
  Parts& p = *parts_;
  p.behindPicture = p.shown;
  p.shown = &form;
  if (onShow) onShow(form);
  form.Activate();
}

void Program::ClosePicture() {
  Parts& p = *parts_;
  if (!ShowsPicture()) return;
  p.shown = p.behindPicture;
  if (onShow) onShow(*p.shown);
}

bool Program::ShowsPicture() const {
  return parts_->shown == &parts_->verdeling || parts_->shown == &parts_->printkeu;
}

}  // namespace start
