#include "screen/form.h"

#include <algorithm>
#include <exception>
#include <numeric>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"

namespace screen {

Control::Control(Form& form, Kind controlKind, std::string controlName)
    : kind(controlKind), name(std::move(controlName)), form_(form) {
  form.controls.push_back(this);
}

void Control::Refresh() { form_.ports.surface.RepaintControl(form_, *this); }

void Grid::SelectRows(int first, int count) {
  selectedRows.resize(static_cast<std::size_t>(count));
  std::iota(selectedRows.begin(), selectedRows.end(), first);
  ++revision;
}

void Grid::GoTo(int row) {
  currentRow = row;
  SelectRows(row, 1);
}

Control* Form::Find(const std::string& controlName) const {
  auto found = std::find_if(controls.begin(), controls.end(),
                            [&](const Control* c) { return c->name == controlName; });
  return found == controls.end() ? nullptr : *found;
}

void Form::Refresh() { ports.surface.Repaint(*this); }

void Form::Complain(const std::string& text, const std::string& title, const std::string& advice) {
  ports.messageBox.Show({text, title, Icon::Exclamation, Buttons::Ok, Answer::Ok, advice});
}

void Guarded(Ports& ports, const Handler& handler) {
  constexpr int kTitle = 17;
  try {
    if (handler) handler();
  } catch (const std::exception& error) {
    std::string title = LoadResString(kTitle);
    title.erase(title.find_last_not_of(' ') + 1);
    ports.messageBox.Show({OwnText(Own::StepUnfinished, {error.what()}), title, Icon::Exclamation});
  }
}

}  // namespace screen
