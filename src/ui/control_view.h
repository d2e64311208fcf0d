#pragma once

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <optional>

#include "screen/control.h"

namespace ui {

// The widget or action of one control, and the state that it shows.
class ControlView {
 public:
  ControlView(screen::Control& control, QWidget* widget, QAction* action)
      : control_(control), widget_(widget), action_(action) {}

  screen::Control& Control() const { return control_; }
  QWidget* Widget() const { return widget_; }
  QAction* Action() const { return action_; }

  // Gives the control its design-time ids and its design text.
  void ReadDesign();
  // Brings the widget up to date. `onPage`: whether the control's screen is the shown one, which
  // the menus of the shared menu bar follow.
  void Push(bool onPage);
  // The button or item shows this caption, which differs from its state in the access key only.
  void ShowCaption(const std::string& caption);
  // The desktop has other colours now.
  void PaletteChanged();
  // The widget has another width: the tip of a text that it cuts off begins with the whole text.
  void PushTip();
  // The page has the sizes for another font now.
  void FontChanged();
  // The user typed: the widget shows this text already.
  void Typed(const QString& text);
  // The user ticked or unticked the button, or another one of its group.
  void Ticked(bool on);
  // The user moved the scroll bar, which shows this place already.
  void Scrolled(int value);

 private:
  void PushWidget(const screen::ControlState& old, bool first);
  void PushText();
  void ShowWhole(QLineEdit& box);
  void PushItems();
  void PushTicked();
  void PushFont();
  void PushPlace();
  void PushValue();
  void PushLook();
  void PushFace(QPushButton& button);
  void PushAction(bool onPage);
  void SelectAll();
  void NameForReaders();

  screen::Control& control_;
  QWidget* widget_;
  QAction* action_;
  std::optional<screen::ControlState> shown_;
  int gridRevision_ = -1;
  std::optional<int> designWidth_;  // of a box for numbers
};

}  // namespace ui
