#include "drive/scripted_printer.h"

#include <utility>

namespace drive {
namespace {

// On every machine the same.
constexpr screen::Extent kA4{11906, 16838};

}  // namespace

std::optional<std::string> ScriptedChooser::Next(std::optional<std::string> otherwise) {
  if (queue_.empty()) return otherwise;
  std::optional<std::string> answer = std::move(queue_.front());
  queue_.pop_front();
  return answer;
}

std::optional<ui::PrintChoice> ScriptedChooser::Choose() {
  const std::optional<std::string> printer = Next(std::nullopt);
  if (!printer) return std::nullopt;
  return ui::PrintChoice{*printer, {}, kA4};
}

bool ScriptedPrinter::AnyPrinter() { return BySystem() ? system_.AnyPrinter() : there_; }

bool ScriptedPrinter::Choose() {
  return BySystem() ? real_.Choose() : chooser_.Next("printer").has_value();
}

screen::Extent ScriptedPrinter::Paper() { return kA4; }

bool ScriptedPrinter::Print(const screen::PrintJob& job) {
  if (BySystem()) return real_.Print(job);
  if (refusing_) return false;
  Keep(job);
  return where_.empty() || real_.WritePdf(where_, job);
}

bool ScriptedPrinter::WritePdf(const std::string& path, const screen::PrintJob& job) {
  if (!real_.WritePdf(path, job)) return false;
  Keep(job);
  return true;
}

void ScriptedPrinter::Keep(const screen::PrintJob& job) {
  for (const drawing::DrawingRecord& page : job.pages)
    for (const auto& item : page.Items())
      if (const auto* text = std::get_if<drawing::DrawnText>(&item)) lines_.push_back(text->text);
}

std::vector<std::string> ScriptedPrinter::Take() { return std::exchange(lines_, {}); }

}  // namespace drive
