#include "drive/stage.h"

#include <QApplication>
#include <QTabBar>
#include <QtTest/QTest>

#include "drive/failure.h"
#include "ui/vector_registers.h"

namespace drive {

void Stage::Open() {
  Window().show();
  Window().activateWindow();
  // Without a window manager nobody else makes the window the active one.
  if (!QTest::qWaitForWindowActive(&Window(), 1000)) QApplication::setActiveWindow(&Window());
  Settle();
}

void Stage::Close() {
  closed_ = Window().close();
  Settle();
}

void Stage::Settle() {
  // What one round has posted, the next handles; a handler posts a few rounds deep at most.
  for (int round = 0; round < 4; ++round) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // A routine that a script calls runs as it does in a handler.
  ui::ClearVectorRegisters();
}

bool Stage::Ended() { return closed_ || Program().EndRequested(); }

Target Stage::Find(const std::string& name) {
  screen::Form* form = &Shown();
  std::string control = name;
  if (const std::size_t point = name.find('.'); point != std::string::npos) {
    form = Program().FormByName(name.substr(0, point));
    if (!form) throw Failure("no screen " + name.substr(0, point));
    control = name.substr(point + 1);
  }
  screen::Control* found = form->Find(control);
  if (!found) throw Failure(form->name + " has no control " + control);
  return {form, found};
}

QWidget& Stage::WidgetOf(const Target& target) {
  QWidget* widget = Window().WidgetOf(*target.form, *target.control);
  if (!widget) throw Failure(target.control->name + " has no widget");
  return *widget;
}

QAction& Stage::ActionOf(const Target& target) {
  QAction* action = Window().ActionOf(*target.form, *target.control);
  if (!action) throw Failure(target.control->name + " has no menu item");
  return *action;
}

QTabBar& Stage::Strip() {
  QTabBar* strip = Window().Strip();
  if (!strip) throw Failure("the window has no tab strip");
  return *strip;
}

screen::Control* Stage::ControlOf(screen::Form& form, const QWidget* widget) {
  for (screen::Control* control : form.controls)
    if (widget && Window().WidgetOf(form, *control) == widget) return control;
  return nullptr;
}

screen::Control* Stage::ControlOf(screen::Form& form, const QAction* action) {
  for (screen::Control* control : form.controls)
    if (action && control->kind == screen::Kind::Menu &&
        Window().ActionOf(form, *control) == action)
      return control;
  return nullptr;
}

}  // namespace drive
