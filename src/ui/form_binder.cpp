#include "ui/form_binder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVariant>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "screen/text_view.h"
#include "ui/live_label.h"
#include "ui/tab_order.h"
#include "ui/text.h"
#include "ui/up_down_pair.h"
#include "ui/vkr_grid_view.h"

namespace ui {

using screen::Control;
using screen::Kind;

namespace {

// The window has one strip for all screens; a picture carries the texts drawn in it.
bool HasOwnWidget(const Control& control) {
  return control.kind != Kind::TabStrip && control.kind != Kind::CommonDialog &&
         control.kind != Kind::PictureLabel;
}

}  // namespace

FormBinder::FormBinder(screen::Form& form, QMenuBar& menuBar, EventGate& gate)
    : form_(form), page_(LoadPage(form.name, menuBar)), gate_(gate) {
  form_.captionTag = page_.captionTag;
  for (Control* control : form_.controls)
    if (HasOwnWidget(*control)) Add(*control);
  for (const QLabel* label : page_.content->findChildren<QLabel*>())
    if (label->buddy()) labels_[label->buddy()] = label;
  page_.sizes->Fit(QFontMetricsF(QApplication::font()));
}

void FormBinder::Add(Control& control) {
  const QString name = DesignName(control.name);
  const bool isMenu = control.kind == Kind::Menu;
  QWidget* widget = isMenu ? nullptr : page_.FindWidget(name);
  QAction* action = isMenu ? page_.FindAction(name) : nullptr;
  const bool added = !widget && !action && !control.home.empty();
  if (added && isMenu) action = AddItem(control);
  if (added && !isMenu) widget = AddWidget(control);
  if (!widget && !action)
    throw std::logic_error(form_.name + " lays out no control " + control.name);
  ControlView& view = views_.emplace_back(control, widget, action);
  if (widget) byWidget_[widget] = &view;
  if (!added) view.ReadDesign();
  Group(view);
}

QWidget* FormBinder::TakeContent() {
  page_.area->takeWidget();
  delete std::exchange(page_.frame, nullptr);
  page_.area = nullptr;
  return page_.content;
}

QList<const QWidget*> FormBinder::PaperParts() const {
  QList<const QWidget*> parts{page_.content};
  if (page_.frame)
    for (const auto* line : page_.frame->findChildren<LiveLabel*>()) parts += line;
  return parts;
}

void FormBinder::Connect(FocusWatch& focus) {
  focus_ = &focus;
  OrderTabs(*page_.content);
  for (ControlView& view : views_) Connect(view);
}

void FormBinder::Connect(ControlView& view) {
  if (view.Widget()) view.Widget()->installEventFilter(this);
  switch (view.Control().kind) {
    case Kind::Menu:
      return ConnectAction(view);
    case Kind::TextBox:
      return ConnectText(view);
    case Kind::ComboBox:
      return ConnectList(view);
    case Kind::CommandButton:
    case Kind::OptionButton:
    case Kind::CheckBox:
      return ConnectButton(view);
    case Kind::UpDown:
      return ConnectSteps(view);
    case Kind::ScrollBar:
      return ConnectBar(view);
    case Kind::Picture:
      return ConnectPicture(view);
    case Kind::Grid:
      return ConnectGrid(view);
    default:
      return;
  }
}

void FormBinder::ConnectAction(ControlView& view) {
  QAction* action = view.Action();
  if (action->menu()) return;
  // The designer knows one key to an item.
  if (view.Control().name == "MenuRedo")
    action->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  connect(action, &QAction::triggered, this, [this, &view] { TriggerMenu(view.Control()); });
}

void FormBinder::ConnectText(ControlView& view) {
  auto* edit = qobject_cast<QLineEdit*>(view.Widget());
  connect(edit, &QLineEdit::textEdited, this, [this, &view](const QString& t) {
    view.Typed(t);
    if (view.Control().Change) gate_.Run(view.Control().Change);
  });
  connect(edit, &QLineEdit::returnPressed, this, [this, &view] { Enter(view); });
}

// Free text: nothing is completed or added to the list behind the user's back.
void FormBinder::ConnectList(ControlView& view) {
  auto* box = qobject_cast<QComboBox*>(view.Widget());
  box->setCompleter(nullptr);
  box->setFocusPolicy(Qt::StrongFocus);
  box->lineEdit()->installEventFilter(this);
  connect(box->lineEdit(), &QLineEdit::textEdited, this,
          [&view](const QString& t) { view.Typed(t); });
  connect(box->lineEdit(), &QLineEdit::returnPressed, this, [this, &view] { Enter(view); });
  connect(box, &QComboBox::activated, this, [this, &view, box](int row) {
    view.Typed(box->itemText(row));
    Act(view.Control().Click);
  });
}

void FormBinder::ConnectSteps(ControlView& view) {
  auto* pair = qobject_cast<UpDownPair*>(view.Widget());
  Control& control = view.Control();
  connect(pair, &UpDownPair::SteppedUp, this, [this, &control] { Step(control.StepUp); });
  connect(pair, &UpDownPair::SteppedDown, this, [this, &control] { Step(control.StepDown); });
}

void FormBinder::Act(const screen::Handler& handler) {
  gate_.RunLate();
  focus_->Follow();
  gate_.Run(handler);
}

// A field that gives the Enter key no meaning of its own takes its text as when it is left.
void FormBinder::Enter(ControlView& view) {
  Control& control = view.Control();
  Act([&control] {
    const screen::Handler& handler = control.EnterKey ? control.EnterKey : control.LostFocus;
    if (handler) handler();
    control.touched = false;
  });
}

// True when the handler has said where the focus goes, or that it stays.
bool FormBinder::TabOut(Control& control, const QKeyEvent& event) {
  if (event.key() != Qt::Key_Tab || event.modifiers() != Qt::NoModifier || !control.TabKey)
    return false;
  bool decided = false;
  Act([this, &control, &decided] {
    control.TabKey();
    control.touched = false;
    decided = form_.focusWanted != nullptr;
  });
  return decided;
}

void FormBinder::Step(const screen::Handler& handler) {
  gate_.RunLate();
  focus_->Follow();
  focus_->Commit();
  gate_.Run(handler);
}

void FormBinder::TriggerMenu(const Control& menu) {
  for (ControlView& view : views_)
    if (auto* table = qobject_cast<VkrGridView*>(view.Widget())) table->CommitEditor();
  Step(menu.Click);
}

// Wherever the screen would go on to, the next press of the key is for the same field.
void FormBinder::StepField(Control& field, const screen::Handler& step) {
  Act([this, &field, &step] {
    if (field.touched && field.LostFocus) field.LostFocus();
    field.touched = false;
    step();
    form_.focusWanted = nullptr;
  });
}

// The arrow keys in a field press the up-down pair that names the field as its own.
bool FormBinder::StepKey(Control& field, int key) {
  if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
  const QString name = DesignName(field.name);
  for (ControlView& view : views_) {
    const bool owns =
        view.Control().kind == Kind::UpDown && view.Widget()->property("Field").toString() == name;
    if (!owns || !view.Widget()->isEnabled() || !view.Widget()->isVisible()) continue;
    StepField(field, key == Qt::Key_Up ? view.Control().StepUp : view.Control().StepDown);
    return true;
  }
  return false;
}

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  // The wheel turns the page, not the list that happens to lie under the pointer.
  if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(widget)) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::ShortcutOverride && LeavesStepsToMenu(widget, *event)) {
    event->ignore();
    return true;
  }
  const auto view = byWidget_.find(widget);
  // A press on a bar begins another movement.
  if (event->type() == QEvent::MouseButtonPress && view != byWidget_.end())
    view->second->Control().held = false;
  if (event->type() == QEvent::Resize && view != byWidget_.end()) view->second->PushTip();
  if (event->type() == QEvent::KeyPress) {
    gate_.RunLate();
    focus_->Follow();
  }
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) return ButtonEvent(*button, *event);
  if (event->type() != QEvent::KeyPress) return false;
  const QKeyEvent& press = *static_cast<QKeyEvent*>(event);
  if (view == byWidget_.end() || view->second->Control().kind != Kind::TextBox) return false;
  Control& field = view->second->Control();
  return TabOut(field, press) || StepKey(field, press.key());
}

const ControlView* FormBinder::ViewOf(const Control& control) const {
  for (const ControlView& view : views_)
    if (&view.Control() == &control) return &view;
  return nullptr;
}

QWidget* FormBinder::WidgetOf(const Control& control) const {
  const ControlView* view = ViewOf(control);
  return view ? view->Widget() : nullptr;
}

QAction* FormBinder::ActionOf(const Control& control) const {
  const ControlView* view = ViewOf(control);
  return view ? view->Action() : nullptr;
}

Control* FormBinder::ControlOf(const QWidget* widget) const {
  for (; widget; widget = widget->parentWidget()) {
    const auto found = byWidget_.find(widget);
    // A frame around a widget is not the widget.
    if (found != byWidget_.end() && found->second->Control().kind != Kind::Frame)
      return &found->second->Control();
  }
  return nullptr;
}

void FormBinder::Push(bool onPage) {
  for (ControlView& view : views_) view.Push(onPage);
  const auto* reading = dynamic_cast<const screen::ReadingWindow*>(&form_);
  if (!onPage && !(reading && reading->shown)) return;
  GiveAccessKeys();
  NameFields();
}

void FormBinder::PaletteChanged() {
  for (ControlView& view : views_) view.PaletteChanged();
}

void FormBinder::FontChanged() {
  page_.sizes->Fit(QFontMetricsF(QApplication::font()));
  for (ControlView& view : views_) view.FontChanged();
  if (page_.area) page_.area->Fit();
}

void FormBinder::Repaint(const Control& control) {
  for (ControlView& view : views_) {
    if (&view.Control() != &control || !view.Widget()) continue;
    view.Push(true);
    view.Widget()->repaint();
  }
}

}  // namespace ui
