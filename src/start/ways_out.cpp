#include <algorithm>
#include <filesystem>
#include <iterator>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "output/pdf_name.h"
#include "rawdata/raw_file.h"
#include "start/program_parts.h"

// What would be lost, and the questions before it is: another series, the close, the exit.
namespace start {

using navigation::ScreenId;

namespace {

// A series without a file in which no row is filled yet has no outcome to lose.
bool NothingFilled(const std::vector<double>& series) {
  return std::none_of(series.begin(), series.end(), [](double c) { return c > 0; });
}

// Entered by hand, and in no file.
bool OnlyTyped(const ExposureSession& s, bool saved) {
  const bool named = !s.Name.empty() || s.M != 0;
  if (s.Mode == DataMode::Statistics) return named || s.TypedGM != 0 || s.TypedGSD != 0;
  return s.newSeries && !saved && named;
}

// What to ask before the program ends; the words follow the kind of data.
std::string ExitQuestion(const ExposureSession& s) {
  const std::string start = LoadResString(215);
  if (s.Mode == DataMode::Raw && !s.refusedFile)
    return start + LoadResString(220) + s.Name + LoadResString(225);
  if (s.Mode == DataMode::Statistics)
    return start + LoadResString(230) + s.Name + LoadResString(225);
  return start + LoadResString(220) + LoadResString(235);
}

}  // namespace

bool Program::Unsaved() const {
  const Parts& p = *parts_;
  const std::vector<double> series = p.Series();
  return p.session.Mode == DataMode::Raw && series != p.savedSeries &&
         !(p.savedSeries.empty() && NothingFilled(series));
}

void Program::MarkSaved(const std::string& file) {
  parts_->savedSeries = parts_->Series();
  parts_->savedTo = file;
}

bool Program::MayUnload() {
  using namespace screen;
  Parts& p = *parts_;
  if (p.endRequested) return true;
  const Message question{ExitQuestion(p.session), LoadResString(210), Icon::Question,
                         Buttons::OkCancel,       Answer::Ok,         ExitAdvice()};
  p.endRequested =
      p.ports.messageBox.Show(question) == Answer::Ok && SeriesMayGo() && p.printing.MayEnd();
  return p.endRequested;
}

void Program::EndUnasked() {
  KeepSeries();
  parts_->printing.End();
}

// Beside its file, which stays as it is: nobody has said that it may be replaced. Empty rows are
// left out.
void Program::KeepSeries() {
  if (!Unsaved()) return;
  const Parts& p = *parts_;
  std::vector<double> filled;
  std::ranges::copy_if(p.Series(), std::back_inserter(filled), [](double c) { return c > 0; });
  const std::string& named = p.savedTo.empty() ? p.session.Name : p.savedTo;
  const std::string file = std::filesystem::path(named).replace_extension(".vkr").string();
  std::vector<std::string> places{file};
  for (const std::string& folder : output::OtherFolders())
    places.push_back((folder / std::filesystem::path(file).filename()).string());
  for (const std::string& place : places)
    if (rawdata::WriteFile(output::UnusedBeside(place, "unsaved", ".vkr"), filled)) return;
}

std::string Program::ExitAdvice() const { return Unsaved() ? OwnText(Own::ChangesNotSaved) : ""; }

// The program is to end: the last moment to keep what would go with it.
bool Program::SeriesMayGo() {
  using namespace screen;
  if (!Unsaved()) return true;
  const Message question{OwnText(Own::SaveChanges, {SeriesName(parts_->session)}),
                         LoadResString(210), Icon::Question, Buttons::SaveDiscardCancel,
                         Answer::Save};
  const Answer answer = parts_->ports.messageBox.Show(question);
  return answer == Answer::Discard || (answer == Answer::Save && SaveSeries());
}

// Whatever screen is shown, its texts follow.
bool Program::SaveSeries() {
  Parts& p = *parts_;
  if (!CompleteSeries(p.session)) {
    p.shown->Complain(OwnText(Own::IncompleteNotSaved), LoadResString(1324));
    Open(ScreenId::DataCtrl);
    return false;
  }
  const auto told = [&p] {
    const LastAction* action = p.record.Reported(ScreenId::DataCtrl);
    return action ? std::optional(*action) : std::nullopt;
  };
  const std::optional<LastAction> before = told();
  const bool saved = p.dataCtrl.VkrSave();
  const std::optional<LastAction> now = told();
  if (ShowsPicture())
    p.verdeling.Activate();
  else if (p.shown != &p.dataCtrl)
    static_cast<navigation::SessionForm*>(p.shown)->FollowSave(
        now && (saved || now != before) ? &*now : nullptr);
  return saved;
}

bool Program::MayDropSeries() {
  using namespace screen;
  Parts& p = *parts_;
  const bool unsaved = Unsaved();
  if (!unsaved && !OnlyTyped(p.session, !p.savedSeries.empty())) return true;
  const bool raw = p.session.Mode == DataMode::Raw;
  const Message question{
      LoadResString(215) + LoadResString(raw ? 220 : 230) + p.session.Name + " ?",
      LoadResString(raw ? 1324 : 84),
      Icon::Question,
      Buttons::YesNo,
      Answer::No,
      unsaved ? "" : OwnText(Own::TypedNotKept)};
  return p.ports.messageBox.Show(question) == Answer::Yes;
}

bool Program::CloseAllData() {
  Parts& p = *parts_;
  if (!MayDropSeries()) return false;
  // What can't be printed now waits on.
  p.printing.PrintGathered();
  if (p.shown != &p.basis) Open(ScreenId::Basis);
  p.basis.Menuclose_Click();
  return true;
}

void Program::Exit() {
  using namespace screen;
  Parts& p = *parts_;
  const Message question{ExitQuestion(p.session), LoadResString(210), Icon::None,
                         Buttons::YesNo,          Answer::No,         ExitAdvice()};
  if (p.ports.messageBox.Show(question) == Answer::Yes)
    p.endRequested = SeriesMayGo() && p.printing.MayEnd();
  else
    Open(ScreenId::Basis);
}

}  // namespace start
