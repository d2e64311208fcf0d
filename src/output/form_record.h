#pragma once

#include <string>
#include <string_view>

#include "base/date_time.h"
#include "output/record_lines.h"
#include "screen/form.h"

namespace output {

// The record of a screen in the making: captions, values and units as its controls show them.
class FormRecord {
 public:
  struct Columns {
    int value;
    int unit;
  };

  FormRecord(const screen::Form& form, Columns columns) : form_(form), columns_(columns) {}

  const screen::Form& Form() const { return form_; }
  RecordLines& Lines() { return lines_; }

  // The text of a control as a caption. A control that the screen does not have is a logic error.
  std::string Caption(std::string_view control) const;
  std::string Value(std::string_view control) const;
  bool Shown(std::string_view control) const;

  void Line(std::string_view text);
  void Blank() { lines_.EndLine(); }
  // The caption of a frame; the rows behind it are its rows.
  void Heading(std::string_view frame);
  // The same, with the date at the value column.
  void Heading(std::string_view frame, const base::DateTime& date);
  // The rows behind are those of this frame, whose caption is none of the record's.
  void Within(std::string_view frame) { frame_ = &Of(frame); }
  // Left out where the frame or the value is hidden.
  void Row(std::string_view caption, std::string_view value, std::string_view unit = {});
  // The same with a text for a unit, at a column of its own.
  void RowWithText(std::string_view caption, std::string_view value, int column,
                   std::string_view text);

 private:
  const screen::Control& Of(std::string_view control) const;

  const screen::Form& form_;
  Columns columns_;
  RecordLines lines_;
  const screen::Control* frame_ = nullptr;
};

// "date: 7 Mar 2024".
std::string DateWords(const base::DateTime& date);

}  // namespace output
