#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "drawing/drawing.h"

// The vocabulary of screens: controls as plain state plus handlers. Rules read and write the
// state; a binder shows it with some toolkit and calls the handlers.
namespace screen {

struct Form;

enum class Kind {
  Label,
  TextBox,
  ComboBox,
  CommandButton,
  OptionButton,
  CheckBox,
  Frame,
  Menu,
  TabStrip,
  Grid,
  UpDown,
  ScrollBar,
  Picture,
  PictureLabel,  // a text that its screen draws in a picture; it has no widget
  TextView,      // a long text to read, to search and to copy from
  StatusLine,    // the live line below the screen; its colour is that of a band
  CommonDialog
};

using drawing::Colour;

// What a verdict's words say, for who does not see its colour.
enum class Sign { None, Tick, Cross };

using Handler = std::function<void()>;

// Where a control stands within its parent, in twips.
struct Place {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  bool operator==(const Place&) const = default;
};

// In which a text box shows its text.
struct Font {
  std::string family;
  double points = 0;
  bool operator==(const Font&) const = default;
};

// What of a control can be seen. A control's handlers never run because of a change made here.
struct ControlState {
  std::string text;  // caption, or the text of a text or combo box
  std::string tip;
  bool visible = true;
  bool enabled = true;
  bool locked = false;
  bool ticked = false;
  int value = 0;                 // of a scroll bar, 0 to 100
  std::optional<Colour> colour;  // of the text, a button's face; the system's when absent
  Sign sign = Sign::None;        // before the words of a label that shows a verdict
  std::vector<std::string> items;
  std::optional<Font> font;    // the page's when absent
  std::optional<Place> place;  // of a control that its screen places; the layout's when absent
  bool operator==(const ControlState&) const = default;
};

struct Control : ControlState {
  Control(Form& form, Kind kind, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const Kind kind;
  const std::string name;  // DimLbl(0) carries its index

  // The design-time name of the menu or frame that takes a menu item or button in which the layout
  // does not know.
  std::string home;
  // The keys of a menu item that the layout does not know, such as "Ctrl+Shift+P".
  std::string keys;

  // Design-time ids of caption and tip, filled by whoever lays the screen out.
  std::string tag;
  std::string toolTipText;

  // The user changed the text since the field got the focus or was last committed.
  bool touched = false;
  // Select the whole text at the next showing of the state.
  bool selectAll = false;
  // The scroll bar is still held since the place before: one movement goes on.
  bool held = false;
  // Page of the manual that explains the control.
  int helpContext = 0;

  Handler Click;  // button, option, check box, menu; a choice from a combo box's list
  Handler GotFocus;
  Handler LostFocus;  // also by the Tab key
  Handler EnterKey;
  Handler TabKey;  // of a field, before the focus leaves it; the handler may say where it goes
  Handler StepUp;  // of an UpDown, or of a field that has one
  Handler StepDown;
  Handler Refused;  // the shortcut of a menu item that is disabled
  Handler Change;   // the user moved the scroll bar, whose place is `value`, or typed in the field

  void Hide() { visible = false; }
  void Show() { visible = true; }
  // Repaints the control now, in the middle of a handler.
  void Refresh();

 private:
  Form& form_;
};

struct Tab {
  std::string key;
  std::string caption;
  std::string tip;
  std::string closed = {};  // why a click leads nowhere; empty where it leads to the screen
  bool operator==(const Tab&) const = default;
};

struct TabStrip : Control {
  TabStrip(Form& form, std::string stripName)
      : Control(form, Kind::TabStrip, std::move(stripName)) {}
  std::vector<Tab> tabs;
  std::string selected;                            // key
  std::function<void(const std::string&)> Choose;  // a click on the tab with that key
};

// A table that keeps no data of its own: every cell is asked for when it is shown.
struct Grid : Control {
  struct Column {
    std::string caption;
    int widthTwips = 0;
    bool editable = false;
  };
  Grid(Form& form, std::string gridName) : Control(form, Kind::Grid, std::move(gridName)) {}
  std::vector<Column> columns;
  int rowCount = 0;
  int currentRow = 0;             // that of the cursor; rowCount is the empty line behind the last
  std::vector<int> selectedRows;  // ascending; what a command for several rows acts on
  // Raised whenever rows or cells may have changed, so that a view asks again.
  int revision = 0;
  std::function<std::string(int row, int column)> Cell;
  std::function<bool(int row, int column, const std::string& text)> Write;
  std::function<bool(const std::string& text)> AddRow;
  std::function<void(const std::vector<int>& rows)> DeleteRows;
  // Fills rows from `row` on with what was copied elsewhere; the empty text where that is no text.
  std::function<void(int row, const std::string& text)> Paste;
  // The text by which other programs take these rows over.
  std::function<std::string(const std::vector<int>& rows)> Copy;

  // Selects `count` rows from `first` on; the cursor stays where it is.
  void SelectRows(int first, int count);
  // Puts the cursor into the row, which alone is selected then.
  void GoTo(int row);
};

}  // namespace screen
