#include "catalog/own_texts.h"
#include "navigation/session_form.h"

// What the screens have in common of the steps that a user can take back.
namespace navigation {
namespace {

// An & in the user's own text is no access key.
std::string MenuText(Own plain, Own named, const std::string& words) {
  if (words.empty()) return OwnText(plain);
  std::string shown;
  for (const char c : words) shown.append(c == '&' ? 2 : 1, c);
  return OwnText(named, {shown});
}

}  // namespace

StepMenus::StepMenus(SessionForm& form)
    : MenuEdit(form, screen::Kind::Menu, "MenuEdit"),
      MenuUndo(form, screen::Kind::Menu, "MenuUndo"),
      MenuRedo(form, screen::Kind::Menu, "MenuRedo") {
  MenuUndo.Click = [&form] { form.desk.Undo(); };
  MenuRedo.Click = [&form] { form.desk.Redo(); };
}

void SessionForm::Edit(const std::string& words, const screen::Handler& edit, bool goesOn) {
  const GivenSeries before = session;
  try {
    edit();
  } catch (...) {
    // What a fault leaves changed can be taken back, too.
    desk.Done(words, before, goesOn);
    throw;
  }
  desk.Done(words, before, goesOn);
}

void SessionForm::OfferSteps() {
  if (!stepMenus) return;
  const std::string undo = desk.ToUndo();
  const std::string redo = desk.ToRedo();
  stepMenus->MenuUndo.text = MenuText(Own::Undo, Own::UndoStep, undo);
  stepMenus->MenuRedo.text = MenuText(Own::Redo, Own::RedoStep, redo);
  stepMenus->MenuUndo.enabled = !undo.empty();
  stepMenus->MenuRedo.enabled = !redo.empty();
}

}  // namespace navigation
