#pragma once

#include <string>
#include <vector>

#include "drive/stage.h"

class QWidget;

namespace drive {

// The mouse and the keyboard. Each ends with all events handled, and throws Failure when the user
// could not have done it.

void Click(Stage& stage, const Target& target);
// Focuses the field by the mouse and replaces its text; it still has the focus then.
void TypeInto(Stage& stage, const Target& target, const std::string& text);
// The keys of `keys`, such as Tab, Return or Ctrl+V, to what has the focus.
void Press(Stage& stage, const std::string& keys);
void Pick(Stage& stage, const Target& list, const std::string& text);
enum class Arrow { Up, Down };
// The field's up-down pair, or the pair itself, may be named.
void Step(Stage& stage, const Target& target, Arrow arrow);
void ChooseMenu(Stage& stage, const Target& item);
// Sets a scroll bar to the place in one move.
void MoveBar(Stage& stage, const Target& bar, int value);
// Drags its slide over those places, and lets it go.
void DragBar(Stage& stage, const Target& bar, const std::vector<int>& places);
// Clicks the picture of the shown screen at these fractions of its width and height.
void ClickPicture(Stage& stage, double x, double y);
void ClickTab(Stage& stage, const std::string& key);

// The name of the control that has the focus; empty when none has.
std::string Focused(Stage& stage);

// Presses at that place of the widget, when the window shows it there.
void ClickAt(Stage& stage, QWidget& widget, int x, int y, const std::string& name);
// The text by the keyboard, to the widget that has the focus.
void TypeKeys(QWidget& widget, const std::string& text);

}  // namespace drive
