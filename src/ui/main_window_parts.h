#pragma once

#include <QPointer>
#include <QStackedWidget>

#include <memory>
#include <vector>

#include "ui/event_gate.h"
#include "ui/focus_watch.h"
#include "ui/form_binder.h"
#include "ui/main_window.h"
#include "ui/reading_view.h"
#include "ui/side_view.h"
#include "ui/strip_view.h"
#include "ui/tab_walk.h"

namespace ui {

// What the window consists of; its own sources share it, nobody else.
class MainWindow::Private {
 public:
  Private(MainWindow& window, start::Program& program, screen::Ports& ports);

  // What is seen of a screen, from top to bottom.
  QList<const QWidget*> PartsOf(const FormBinder& binder) const;
  FormBinder* BinderOf(const screen::Form& form) const;
  screen::Control* ControlOf(QWidget* widget) const;
  void Add(screen::Form& form);
  void FocusNewPage(QWidget* before);
  void ShowPage(FormBinder* binder, QWidget* focus);
  void PushBar();
  void Push();
  bool RepaintSide(const screen::Form& form);
  void Settle();
  void End();
  void Choose(const QString& key);
  void PlaceFocus();
  void PushPointer(bool busy);

  MainWindow& window_;
  start::Program& program_;
  EventGate gate_;
  FocusWatch focus_;
  StripView* strip_;
  TabWalk walk_;
  QStackedWidget* pages_;
  std::vector<std::unique_ptr<FormBinder>> binders_;
  std::vector<SideView*> sides_;  // the window owns them
  std::vector<ReadingView*> readings_;
  const FormBinder* shownPage_ = nullptr;
  QPointer<QWidget> beforeDetour_;
  bool onDetour_ = false;
  bool pointerBusy_ = false;
  bool ending_ = false;
  bool placed_ = false;  // within its frame
  Pace pace_;            // of the steps since the whole window was last brought up to date
};

}  // namespace ui
