#include "tests/support/program_session.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <unistd.h>

#include "session/global_bas.h"

namespace support {
namespace {

template <typename Queue, typename Value>
Value Next(Queue& queue, Value otherwise) {
  if (queue.empty()) return otherwise;
  Value value = queue.front();
  queue.pop_front();
  return value;
}

}  // namespace

screen::Answer RecordingBox::Show(const screen::Message& message) {
  shown.push_back(message);
  if (watch) watch();
  return Next(answers, message.defaultAnswer);
}

std::string RecordingDialog::Ask(const Request& request) {
  asked.push_back(request);
  return Next(answers, std::string());
}

std::optional<std::size_t> RecordingTables::Ask(const Question& question) {
  asked.push_back(question);
  if (answers.empty()) return std::nullopt;
  return Next(answers, std::size_t{0});
}

bool RecordingPictures::Write(const std::string& path, const drawing::DrawingRecord& drawing) {
  if (!fails) written.push_back({path, drawing});
  return !fails;
}

drawing::DrawingRecord CountingSurface::Drawn(screen::Form& form) {
  drawing::DrawingRecord drawing(12000, 9000);
  double top = 0;
  for (const screen::Control* control : form.controls)
    if (control->visible && !control->text.empty())
      drawing.Text({0, top += 180}, control->text, {}, control->name);
  return drawing;
}

ProgramSession::ProgramSession() : program(ports, {VALKORIN_SOURCE_DIR "/data"}) {
  program.Start();
}

screen::Control& ProgramSession::At(const std::string& name) {
  program.TellState();
  const std::size_t dot = name.find('.');
  screen::Form* form =
      dot == std::string::npos ? &Shown() : program.FormByName(name.substr(0, dot));
  screen::Control* control =
      form ? form->Find(dot == std::string::npos ? name : name.substr(dot + 1)) : nullptr;
  if (!control) throw std::invalid_argument("no control " + name);
  return *control;
}

void ProgramSession::Type(const std::string& name, const std::string& text) {
  screen::Control& field = At(name);
  TypeInto(field, text);
  if (TabStays(field)) return;
  screen::Guarded(ports, field.LostFocus);
  field.touched = false;
}

void ProgramSession::TypeAndClickAway(const std::string& name, const std::string& text) {
  screen::Control& field = At(name);
  TypeInto(field, text);
  screen::Guarded(ports, field.LostFocus);
  field.touched = false;
}

void ProgramSession::TypeInto(screen::Control& field, const std::string& text) {
  screen::Guarded(ports, field.GotFocus);
  field.text = text;
  field.touched = true;
  screen::Guarded(ports, field.Change);
}

bool ProgramSession::TabStays(screen::Control& field) {
  if (!field.TabKey) return false;
  Shown().focusWanted = nullptr;
  screen::Guarded(ports, field.TabKey);
  field.touched = false;
  return Shown().focusWanted == &field;
}

void ProgramSession::Enter(const std::string& name, const std::string& text) {
  screen::Control& field = At(name);
  TypeInto(field, text);
  screen::Guarded(ports, field.EnterKey);
  field.touched = false;
}

void ProgramSession::Visit(const std::string& name) {
  screen::Control& field = At(name);
  screen::Guarded(ports, field.GotFocus);
  if (!TabStays(field)) screen::Guarded(ports, field.LostFocus);
}

void ProgramSession::Click(const std::string& name) {
  screen::Control& control = At(name);
  if (control.kind == screen::Kind::CheckBox) control.ticked = !control.ticked;
  screen::Guarded(ports, control.Click);
}

void ProgramSession::Pick(const std::string& name, const std::string& text) {
  screen::Control& combo = At(name);
  combo.text = text;
  screen::Guarded(ports, combo.Click);
}

void ProgramSession::Up(const std::string& name) { screen::Guarded(ports, At(name).StepUp); }

void ProgramSession::Down(const std::string& name) { screen::Guarded(ports, At(name).StepDown); }

bool ProgramSession::Tab(const std::string& key) {
  screen::TabStrip* strip = Shown().strip;
  if (!strip->visible) return false;
  for (const screen::Tab& tab : strip->tabs) {
    if (tab.key != key) continue;
    screen::Guarded(ports, [&] { strip->Choose(key); });
    return true;
  }
  return false;
}

void ProgramSession::OpenFile(const std::string& path) {
  dialog.answers.push_back(path);
  Click("menuopen");
}

void ProgramSession::OpenSeries(const std::vector<double>& outcomes) {
  std::string bytes;
  for (double outcome : outcomes) bytes += GlobalBAS::FileText(outcome) + "\r\n";
  OpenFile(WriteTemporary("series.vkr", bytes));
}

void ProgramSession::EnterStatistics(const std::string& name, const std::string& m,
                                     const std::string& gm, const std::string& gsd) {
  Click("DesOpt");
  Type("NameTxB", name);
  Type("SampSizTxB", m);
  Type("GMTxB", gm);
  Type("GSDTxB", gsd);
}

std::vector<std::string> ProgramSession::TabKeys() {
  std::vector<std::string> keys;
  for (const screen::Tab& tab : Shown().strip->tabs) keys.push_back(tab.key);
  return keys;
}

const screen::Message& ProgramSession::LastBox() const {
  if (box.shown.empty()) throw std::logic_error("no message box was shown");
  return box.shown.back();
}

std::string WriteTemporary(const std::string& name, const std::string& bytes) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("valkorin-tests-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  const std::filesystem::path path = folder / name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path.string();
}

}  // namespace support
