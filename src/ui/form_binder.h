#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QObject>

#include <deque>
#include <map>
#include <unordered_map>
#include <vector>

#include "screen/form.h"
#include "ui/control_view.h"
#include "ui/event_gate.h"
#include "ui/focus_watch.h"
#include "ui/page.h"

class QAbstractButton;
class QShortcutEvent;

namespace ui {

// Ties a screen to the widgets of its page by name: what the user does calls the handlers, and
// what the handlers change goes back to the widgets.
class FormBinder : public QObject {
  Q_OBJECT

 public:
  // Gives the form's controls their design-time ids. Throws std::logic_error when a control has
  // no widget or action of its name.
  FormBinder(screen::Form& form, QMenuBar& menuBar, EventGate& gate);

  // `focus` must know the widgets of all forms by then.
  void Connect(FocusWatch& focus);

  screen::Form& Form() const { return form_; }
  const std::vector<QAction*>& BarItems() const { return page_.barItems; }
  QWidget* Frame() const { return page_.frame; }
  // What of the page goes on paper: all of it, in sight or not, and the live line.
  QList<const QWidget*> PaperParts() const;
  // The laid-out controls for a window of their own; there is no frame any more.
  QWidget* TakeContent();
  QWidget* WidgetOf(const screen::Control& control) const;
  QAction* ActionOf(const screen::Control& control) const;
  // The control that `widget` is, or is a part of.
  screen::Control* ControlOf(const QWidget* widget) const;

  // What a shown item that is disabled does in place of what its shortcut asks for; null when the
  // key is no such shortcut.
  const screen::Handler* RefusedBy(const QKeyEvent& press) const;

  void Push(bool onPage);
  void PaletteChanged();
  void FontChanged();
  // Brings one widget up to date and paints it at once.
  void Repaint(const screen::Control& control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Add(screen::Control& control);
  void Group(ControlView& view);
  void GiveAccessKeys();
  void NameFields();
  QString UnitOf(const QWidget& field) const;
  // What the layout does not know goes where the control says it stands.
  QWidget* AddWidget(const screen::Control& control);
  QAction* AddItem(const screen::Control& control);
  const ControlView* ViewOf(const screen::Control& control) const;
  void Connect(ControlView& view);
  void ConnectAction(ControlView& view);
  void ConnectText(ControlView& view);
  void ConnectList(ControlView& view);
  void ConnectButton(ControlView& view);
  void ConnectSteps(ControlView& view);
  void ConnectBar(ControlView& view);
  void ConnectPicture(ControlView& view);
  void ConnectGrid(ControlView& view);
  void Enter(ControlView& view);
  bool TabOut(screen::Control& control, const QKeyEvent& event);
  void Tick(const screen::Control& ticked, bool on);
  void Step(const screen::Handler& handler);
  bool LeavesStepsToMenu(const QWidget* widget, const QEvent& event) const;
  QList<QKeySequence> StepKeys(const QString& item) const;
  void TriggerMenu(const screen::Control& menu);
  bool ButtonEvent(QAbstractButton& button, QEvent& event);
  bool AccessKey(QAbstractButton& button, const QShortcutEvent& event);
  static bool LookAtOption(const QWidget& option, int key);
  bool StepKey(screen::Control& field, int key);
  void StepField(screen::Control& field, const screen::Handler& step);
  // Runs `handler` after everything that the user did before.
  void Act(const screen::Handler& handler);

  screen::Form& form_;
  Page page_;
  EventGate& gate_;
  FocusWatch* focus_ = nullptr;
  std::deque<ControlView> views_;  // views keep their place
  std::unordered_map<const QWidget*, ControlView*> byWidget_;
  // What can be seen together and so needs different access keys: the page with the menu bar, and
  // the items of each menu.
  std::map<const QMenu*, std::vector<ControlView*>> seenTogether_;
  std::unordered_map<const QWidget*, const QLabel*> labels_;  // of the fields
};

}  // namespace ui
