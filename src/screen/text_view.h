#pragma once

#include <cstddef>

#include "screen/form.h"

namespace screen {

// A long text to read, to search and to copy from. Its lines end in line feeds.
struct TextView : Control {
  TextView(Form& form, std::string viewName) : Control(form, Kind::TextView, std::move(viewName)) {}

  // What is selected and in sight: bytes of the text.
  std::size_t from = 0;
  std::size_t length = 0;
  // Raised when that, or the end, is to be brought into sight.
  int revision = 0;

  void Select(std::size_t begin, std::size_t bytes) {
    from = begin;
    length = bytes;
    ++revision;
  }
  void ShowEnd() { Select(text.size(), 0); }
};

// A window beside the main one in which a text file is read while the work goes on. It stands there
// while `shown`.
struct ReadingWindow : Form {
  using Form::Form;
  bool shown = false;
  std::string file;  // whose growth is watched
  Handler Closed;    // by the user
  Handler FileGrown;
  Control* search = nullptr;  // the field for what is looked for
  Control* next = nullptr;    // the buttons that look for it
  Control* previous = nullptr;
};

}  // namespace screen
