#include "output/form_record.h"

#include <stdexcept>

namespace output {

const screen::Control& FormRecord::Of(std::string_view control) const {
  const screen::Control* found = form_.Find(std::string(control));
  if (!found) throw std::logic_error(form_.name + " has no control " + std::string(control));
  return *found;
}

std::string FormRecord::Caption(std::string_view control) const {
  return PlainCaption(Of(control).text);
}

std::string FormRecord::Value(std::string_view control) const { return Of(control).text; }

bool FormRecord::Shown(std::string_view control) const { return Of(control).visible; }

void FormRecord::Line(std::string_view text) {
  lines_.Add(text);
  lines_.EndLine();
}

void FormRecord::Heading(std::string_view frame) {
  frame_ = &Of(frame);
  Line(Caption(frame));
}

void FormRecord::Heading(std::string_view frame, const base::DateTime& date) {
  frame_ = &Of(frame);
  lines_.Add(Caption(frame)).At(columns_.value, DateWords(date));
  lines_.EndLine();
}

void FormRecord::Row(std::string_view caption, std::string_view value, std::string_view unit) {
  RowWithText(caption, value, columns_.unit, unit.empty() ? std::string() : Value(unit));
}

void FormRecord::RowWithText(std::string_view caption, std::string_view value, int column,
                             std::string_view text) {
  if (!Shown(value) || (frame_ && !frame_->visible)) return;
  lines_.Add(Caption(caption)).At(columns_.value, Value(value));
  if (!text.empty()) lines_.At(column, text);
  lines_.EndLine();
}

std::string DateWords(const base::DateTime& date) { return "date: " + base::DateText(date); }

}  // namespace output
