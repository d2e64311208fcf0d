#include "drive/look.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>

#include "drive/failure.h"
#include "drive/text.h"
#include "screen/picture.h"
#include "screen/text_view.h"
#include "ui/readable_colour.h"
#include "ui/text.h"
#include "ui/verdict_label.h"

namespace drive {
namespace {

using screen::Control;
using screen::Kind;

// What a caption and its state have in common: a toolkit may show the access key's & in its own
// way, and a line end as another one.
std::string Comparable(const std::string& text) {
  std::string plain;
  char before = 0;
  for (const char c : text) {
    if (c != '&' && !(c == '\n' && before == '\r')) plain += c == '\r' ? '\n' : c;
    before = c;
  }
  return plain.substr(0, plain.find_last_not_of('\n') + 1);
}

// The page of the main window on which the widget stands.
QWidget* PageOf(QWidget& widget) {
  QWidget* page = &widget;
  while (page->parentWidget() && !qobject_cast<QStackedWidget*>(page->parentWidget()))
    page = page->parentWidget();
  return page;
}

std::optional<QString> TextOf(const QWidget& widget) {
  if (auto* edit = qobject_cast<const QLineEdit*>(&widget)) return edit->text();
  if (auto* box = qobject_cast<const QComboBox*>(&widget)) return box->currentText();
  if (auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return label->text().remove(ui::kBreak);
  if (auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) return text->toPlainText();
  return std::nullopt;
}

void Same(const Control& control, const char* what, const std::string& shown,
          const std::string& state) {
  if (shown == state) return;
  throw Failure(control.name + ": its widget shows " + what + " " + Quoted(shown) +
                ", its state is " + Quoted(state));
}

void Same(const Control& control, const char* what, bool shown, bool state) {
  Same(control, what, std::string(shown ? "yes" : "no"), std::string(state ? "yes" : "no"));
}

const drawing::DrawnText* DrawnLabel(const screen::Form& form, const std::string& label) {
  for (const Control* control : form.controls) {
    if (control->kind != Kind::Picture) continue;
    for (const auto& item : static_cast<const screen::Picture*>(control)->drawing.Items()) {
      const auto* text = std::get_if<drawing::DrawnText>(&item);
      if (text && text->label == label) return text;
    }
  }
  return nullptr;
}

std::string WithoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\r'; });
  return text;
}

// The state with what the window and the frames around the widget add to it.
Look StateOf(Stage& stage, const Target& target, QWidget& widget) {
  const Control& control = *target.control;
  Look look{control.text,   !control.visible, !control.enabled,
            control.locked, control.ticked,   control.colour};
  if (const auto* side = dynamic_cast<const screen::SideWindow*>(target.form))
    look.hidden |= !side->shown;
  if (const auto* reading = dynamic_cast<const screen::ReadingWindow*>(target.form))
    look.hidden |= !reading->shown;
  for (QWidget* at = widget.parentWidget(); at; at = at->parentWidget()) {
    const Control* around = stage.ControlOf(*target.form, at);
    if (!around) continue;
    look.hidden |= !around->visible;
    look.disabled |= !around->enabled;
  }
  return look;
}

void CompareText(const Control& control, const QWidget& widget, const Look& state) {
  const auto text = TextOf(widget);
  if (!text) return;
  const bool entry = control.kind == Kind::TextBox || control.kind == Kind::ComboBox;
  const std::string shown = text->toStdString();
  Same(control, "the text", entry ? shown : Comparable(shown),
       entry ? state.text : Comparable(state.text));
}

void CompareColour(const Control& control, const QWidget& widget) {
  const bool button = control.kind == Kind::CommandButton;
  if ((control.kind != Kind::Label && !button) || !control.colour) return;
  const QColor shown = widget.palette().color(button ? QPalette::Button : widget.foregroundRole());
  const QColor state(control.colour->red, control.colour->green, control.colour->blue);
  const QColor readable = ui::ReadableOn(QPalette().color(QPalette::Window), state);
  Same(control, "the colour", shown.name().toStdString(), readable.name().toStdString());
}

std::string SignName(screen::Sign sign) {
  return sign == screen::Sign::None ? "none" : sign == screen::Sign::Tick ? "tick" : "cross";
}

void CompareSign(const Control& control, const QWidget& widget) {
  const auto* verdict = qobject_cast<const ui::VerdictLabel*>(&widget);
  const screen::Sign shown = verdict ? verdict->Sign() : screen::Sign::None;
  Same(control, "the sign", SignName(shown), SignName(control.sign));
}

Look WidgetLook(Stage& stage, const Target& target) {
  const Control& control = *target.control;
  QWidget& widget = stage.WidgetOf(target);
  const Look look = StateOf(stage, target, widget);
  CompareText(control, widget, look);
  QWidget* page = PageOf(widget);
  Same(control, "hidden", !widget.isVisibleTo(page), look.hidden);
  Same(control, "disabled", !widget.isEnabledTo(page), look.disabled);
  if (auto* button = qobject_cast<QAbstractButton*>(&widget))
    Same(control, "ticked", button->isChecked(), look.ticked);
  if (auto* bar = qobject_cast<QScrollBar*>(&widget))
    Same(control, "the place", IntText(bar->value()), IntText(control.value));
  if (auto* edit = qobject_cast<QLineEdit*>(&widget))
    Same(control, "locked", edit->isReadOnly(), look.locked);
  CompareColour(control, widget);
  if (control.kind == Kind::StatusLine)
    Same(control, "the band", widget.autoFillBackground(), control.colour.has_value());
  CompareSign(control, widget);
  return look;
}

// The menu that holds the action; null for an action of the menu bar.
QMenu* MenuAround(const QAction& action) {
  for (QObject* object : action.associatedObjects())
    if (auto* menu = qobject_cast<QMenu*>(object)) return menu;
  return nullptr;
}

Look MenuLook(Stage& stage, const Target& target) {
  Look shown;
  Look state;
  QAction& item = stage.ActionOf(target);
  shown.text = item.text().section('\t', 0, 0).toStdString();
  state.text = target.control->text;
  const QAction* at = &item;
  while (at) {
    shown.hidden |= !at->isVisible();
    shown.disabled |= !at->isEnabled();
    if (const Control* control = stage.ControlOf(*target.form, at)) {
      state.hidden |= !control->visible;
      state.disabled |= !control->enabled;
    }
    const QMenu* menu = MenuAround(*at);
    at = menu ? menu->menuAction() : nullptr;
  }
  // Only the shown screen's menus hang in the menu bar.
  if (target.form != &stage.Shown()) return state;
  Same(*target.control, "the text", Comparable(shown.text), Comparable(state.text));
  Same(*target.control, "hidden", shown.hidden, state.hidden);
  // The toolkit counts a hidden item as a disabled one.
  if (!state.hidden) Same(*target.control, "disabled", shown.disabled, state.disabled);
  return state;
}

Look StripLook(Stage& stage, const Target& target) {
  const auto& state = static_cast<const screen::TabStrip&>(*target.control);
  Look look;
  look.hidden = !state.visible;
  for (const screen::Tab& tab : state.tabs)
    look.text += (look.text.empty() ? "" : ", ") + tab.caption;
  if (target.form != &stage.Shown()) return look;
  const QTabBar& strip = stage.Strip();
  Same(state, "hidden", !strip.isVisibleTo(&stage.Window()), look.hidden);
  std::string shown;
  for (int i = 0; i < strip.count(); ++i)
    shown += (shown.empty() ? "" : ", ") + strip.tabText(i).toStdString();
  Same(state, "the tabs", Comparable(shown), Comparable(look.text));
  for (int i = 0; i < strip.count(); ++i) {
    const std::string& closed = state.tabs[static_cast<std::size_t>(i)].closed;
    Same(state, "a tab greyed", strip.tabTextColor(i).isValid(), !closed.empty());
    if (!closed.empty())
      Same(state, "the tip", Comparable(strip.tabToolTip(i).toStdString()), Comparable(closed));
  }
  return look;
}

// A label that is drawn in a picture: its text may stand there in more lines than in its state.
Look PictureLabelLook(const Target& target) {
  const Control& control = *target.control;
  const drawing::DrawnText* drawn = DrawnLabel(*target.form, control.name);
  Same(control, "drawn", drawn != nullptr, control.visible);
  if (drawn) Same(control, "the text", WithoutBlanks(drawn->text), WithoutBlanks(control.text));
  Look look = TextLook(control.text);
  look.hidden = !control.visible;
  return look;
}

}  // namespace

Look TextLook(std::string text) {
  Look look;
  look.text = std::move(text);
  return look;
}

Look LookOf(Stage& stage, const Target& target) {
  switch (target.control->kind) {
    case Kind::Menu:
      return MenuLook(stage, target);
    case Kind::TabStrip:
      return StripLook(stage, target);
    case Kind::PictureLabel:
      return PictureLabelLook(target);
    case Kind::CommonDialog:
      return TextLook(target.control->text);
    default:
      return WidgetLook(stage, target);
  }
}

std::string Line(const std::string& name, const Look& look) {
  std::string line = name + " = " + Quoted(look.text);
  if (look.hidden) line += " hidden";
  if (look.disabled) line += " disabled";
  if (look.locked) line += " locked";
  if (look.ticked) line += " ticked";
  if (look.colour) {
    line += "  rgb(" + IntText(look.colour->red) + "," + IntText(look.colour->green) + "," +
            IntText(look.colour->blue) + ")";
  }
  return line;
}

void NeedUsable(Stage& stage, const Target& target) {
  const Look look = LookOf(stage, target);
  const bool beside = dynamic_cast<const screen::ReadingWindow*>(target.form) != nullptr;
  if (target.form != &stage.Shown() && !beside) throw Failure(target.form->name + " is not shown");
  if (look.hidden) throw Failure(target.control->name + " is hidden");
  if (look.disabled) throw Failure(target.control->name + " is disabled");
}

}  // namespace drive
