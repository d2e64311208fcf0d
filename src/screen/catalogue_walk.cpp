#include <algorithm>
#include <charconv>
#include <string_view>

#include "catalog/catalog.h"
#include "screen/form.h"

namespace screen {
namespace {

// The whole number at the start of a design-time id; 0 when there is none.
int IdOf(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  int id = 0;
  std::from_chars(text.data(), text.data() + text.size(), id);
  return id;
}

// Only a positive id replaces a text: what the program fills at run time has none.
void ReplaceById(std::string& text, const std::string& design) {
  if (const int id = IdOf(design); id > 0) text = LoadResString(id);
}

// A tip without an id is emptied, so that no screen shows a bare number or a design text.
void ReplaceTip(Control& control) {
  control.tip.clear();
  ReplaceById(control.tip, control.toolTipText);
}

void ApplyTo(Control& control) {
  switch (control.kind) {
    case Kind::Menu:
    case Kind::CommonDialog:
      ReplaceById(control.text, control.tag);
      break;
    case Kind::TextBox:
    case Kind::TextView:
      ReplaceTip(control);
      break;
    case Kind::ComboBox:
    case Kind::Label:
    case Kind::PictureLabel:
    case Kind::StatusLine:
    case Kind::CommandButton:
    case Kind::Frame:
    case Kind::CheckBox:
    case Kind::OptionButton:
      ReplaceById(control.text, control.tag);
      ReplaceTip(control);
      break;
    case Kind::TabStrip:  // its tabs bring their texts when they are built
    case Kind::Grid:
    case Kind::UpDown:
    case Kind::ScrollBar:
    case Kind::Picture:
      break;
  }
}

}  // namespace

void ApplyCatalogue(Form& form) {
  ReplaceById(form.caption, form.captionTag);
  // What the layout does not know brings its texts along.
  for (Control* control : form.controls)
    if (control->home.empty()) ApplyTo(*control);
}

}  // namespace screen
