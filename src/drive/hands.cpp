#include "drive/hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QVariant>
#include <QtTest/QTest>

#include <algorithm>

#include "drive/failure.h"
#include "drive/look.h"
#include "drive/text.h"

namespace drive {
namespace {

// Where to press a button: on a check or option box the mark stands at the left.
QPoint PlaceToPress(const QWidget& widget) {
  const bool marked = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
  const int x = marked ? std::min(10, widget.width() / 2) : widget.width() / 2;
  return {x, widget.height() / 2};
}

QLineEdit& EditOf(Stage& stage, const Target& target) {
  QWidget& widget = stage.WidgetOf(target);
  auto* edit = qobject_cast<QLineEdit*>(&widget);
  if (auto* box = qobject_cast<QComboBox*>(&widget)) edit = box->lineEdit();
  if (!edit) throw Failure(target.control->name + " is no field to type in");
  return *edit;
}

// The usable bar, if it has that place.
QScrollBar& BarOf(Stage& stage, const Target& bar, int value) {
  NeedUsable(stage, bar);
  auto* widget = qobject_cast<QScrollBar*>(&stage.WidgetOf(bar));
  if (!widget) throw Failure(bar.control->name + " is no scroll bar");
  if (value < widget->minimum() || value > widget->maximum())
    throw Failure(bar.control->name + " has no place " + IntText(value));
  return *widget;
}

// The pair that names the field as its own.
Target PairOf(Stage& stage, const Target& target) {
  if (target.control->kind == screen::Kind::UpDown) return target;
  const QString field = stage.WidgetOf(target).objectName();
  for (screen::Control* control : target.form->controls) {
    const Target pair{target.form, control};
    if (control->kind == screen::Kind::UpDown &&
        stage.WidgetOf(pair).property("Field").toString() == field)
      return pair;
  }
  throw Failure(target.control->name + " has no up-down pair");
}

// Brings a tab that the strip has scrolled out of sight back by the strip's own arrows.
void ScrollTo(Stage& stage, QTabBar& strip, int index) {
  for (int clicks = 0; clicks <= 2 * strip.count(); ++clicks) {
    const QRect tab = strip.tabRect(index);
    QList<QAbstractButton*> arrows;
    for (QAbstractButton* button : strip.findChildren<QAbstractButton*>())
      if (button->isVisible()) arrows.push_back(button);
    if (arrows.size() < 2) return;
    std::sort(arrows.begin(), arrows.end(), [](auto* a, auto* b) { return a->x() < b->x(); });
    const bool tooFarRight = tab.center().x() >= arrows[0]->x();
    if (!tooFarRight && tab.center().x() >= 0) return;
    QTest::mouseClick(arrows[tooFarRight ? 1 : 0], Qt::LeftButton);
    stage.Settle();
  }
}

}  // namespace

void ClickAt(Stage& stage, QWidget& widget, int x, int y, const std::string& name) {
  for (QWidget* at = widget.parentWidget(); at; at = at->parentWidget())
    if (auto* area = qobject_cast<QScrollArea*>(at)) {
      const QPoint place = widget.mapTo(area->widget(), QPoint(x, y));
      area->ensureVisible(place.x(), place.y());
    }
  QWidget* window = widget.window();
  QWidget* there = window->childAt(widget.mapTo(window, QPoint(x, y)));
  if (there != &widget && !widget.isAncestorOf(there))
    throw Failure(name + " is not to be seen in the window");
  QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, y));
  stage.Settle();
}

void Click(Stage& stage, const Target& target) {
  if (target.control->kind == screen::Kind::Label || target.control->kind == screen::Kind::Frame)
    throw Failure(target.control->name + " is nothing to click");
  NeedUsable(stage, target);
  QWidget& widget = stage.WidgetOf(target);
  const QPoint at = PlaceToPress(widget);
  ClickAt(stage, widget, at.x(), at.y(), target.control->name);
}

void TypeKeys(QWidget& widget, const std::string& text) {
  for (const char32_t code : QString::fromStdString(text).toStdU32String()) {
    if (code < 128) {
      QTest::keyClick(&widget, static_cast<char>(code));
    } else {
      const char32_t one[] = {code, 0};
      QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString::fromUcs4(one),
                          Qt::NoModifier);
    }
  }
}

void TypeInto(Stage& stage, const Target& target, const std::string& text) {
  NeedUsable(stage, target);
  QLineEdit& edit = EditOf(stage, target);
  if (edit.isReadOnly()) throw Failure(target.control->name + " is locked");
  ClickAt(stage, edit, edit.width() / 2, edit.height() / 2, target.control->name);
  if (QApplication::focusWidget() != &edit && !edit.hasFocus())
    throw Failure(target.control->name + " does not get the focus, " + Focused(stage) + " has it");
  QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&edit, Qt::Key_Delete);
  TypeKeys(edit, text);
  stage.Settle();
  if (edit.text().toStdString() != text)
    throw Failure(target.control->name + " took " + Quoted(edit.text().toStdString()));
}

void Press(Stage& stage, const std::string& keys) {
  const QKeySequence sequence = QKeySequence::fromString(QString::fromStdString(keys));
  if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown) throw Failure("no key " + keys);
  QWidget* widget = QApplication::activePopupWidget();
  if (!widget) widget = QApplication::focusWidget();
  QTest::keyClick(widget ? widget : &stage.Window(), sequence[0].key(),
                  sequence[0].keyboardModifiers());
  stage.Settle();
}

void Pick(Stage& stage, const Target& list, const std::string& text) {
  NeedUsable(stage, list);
  auto* box = qobject_cast<QComboBox*>(&stage.WidgetOf(list));
  if (!box) throw Failure(list.control->name + " is no list");
  const int row = box->findText(QString::fromStdString(text), Qt::MatchExactly);
  if (row < 0) throw Failure(list.control->name + " has no entry " + Quoted(text));
  QWidget& edit = box->lineEdit() ? static_cast<QWidget&>(*box->lineEdit()) : *box;
  ClickAt(stage, edit, edit.width() / 2, edit.height() / 2, list.control->name);
  QTest::keyClick(box, Qt::Key_F4);
  stage.Settle();
  if (!box->view()->isVisible()) throw Failure(list.control->name + " does not open its list");
  QTest::keyClick(box->view(), Qt::Key_Home);
  for (int i = 0; i < row; ++i) QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Return);
  stage.Settle();
}

void Step(Stage& stage, const Target& target, Arrow arrow) {
  const Target pair = PairOf(stage, target);
  NeedUsable(stage, pair);
  QList<QAbstractButton*> arrows = stage.WidgetOf(pair).findChildren<QAbstractButton*>();
  if (arrows.size() != 2) throw Failure(pair.control->name + " has no two arrows");
  std::sort(arrows.begin(), arrows.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
  QAbstractButton& button = *arrows[arrow == Arrow::Up ? 0 : 1];
  ClickAt(stage, button, button.width() / 2, button.height() / 2, pair.control->name);
}

void ChooseMenu(Stage& stage, const Target& item) {
  if (item.control->kind != screen::Kind::Menu) throw Failure(item.control->name + " is no menu");
  NeedUsable(stage, item);
  QAction& action = stage.ActionOf(item);
  if (action.menu()) throw Failure(item.control->name + " is a menu, not an item of one");
  action.trigger();
  stage.Settle();
}

void MoveBar(Stage& stage, const Target& bar, int value) {
  BarOf(stage, bar, value).setValue(value);
  stage.Settle();
}

void DragBar(Stage& stage, const Target& bar, const std::vector<int>& places) {
  for (const int place : places) {
    QScrollBar& widget = BarOf(stage, bar, place);
    widget.setSliderDown(true);
    widget.setSliderPosition(place);
    stage.Settle();
  }
  if (!places.empty()) BarOf(stage, bar, places.back()).setSliderDown(false);
  stage.Settle();
}

void ClickPicture(Stage& stage, double x, double y) {
  if (!(x >= 0 && x < 1 && y >= 0 && y < 1)) throw Failure("a place in a picture is 0 to below 1");
  for (screen::Control* control : stage.Shown().controls) {
    if (control->kind != screen::Kind::Picture) continue;
    const Target picture{&stage.Shown(), control};
    NeedUsable(stage, picture);
    QWidget& widget = stage.WidgetOf(picture);
    ClickAt(stage, widget, static_cast<int>(x * widget.width()),
            static_cast<int>(y * widget.height()), control->name);
    return;
  }
  throw Failure(stage.Shown().name + " has no picture");
}

void ClickTab(Stage& stage, const std::string& key) {
  screen::TabStrip* state = stage.Shown().strip;
  if (!state) throw Failure(stage.Shown().name + " has no tab strip");
  if (LookOf(stage, {&stage.Shown(), state}).hidden) throw Failure("the tab strip is hidden");
  const auto tab = std::find_if(state->tabs.begin(), state->tabs.end(),
                                [&](const screen::Tab& t) { return t.key == key; });
  if (tab == state->tabs.end()) throw Failure("the strip shows no tab " + key);
  const int index = static_cast<int>(tab - state->tabs.begin());
  QTabBar& strip = stage.Strip();
  ScrollTo(stage, strip, index);
  const QPoint place = strip.tabRect(index).center();
  ClickAt(stage, strip, place.x(), place.y(), "tab " + key);
}

std::string Focused(Stage& stage) {
  for (QWidget* at = QApplication::focusWidget(); at; at = at->parentWidget()) {
    if (at == &stage.Strip()) return stage.Shown().strip ? stage.Shown().strip->name : "";
    if (const screen::Control* control = stage.ControlOf(stage.Shown(), at)) return control->name;
  }
  return {};
}

}  // namespace drive
