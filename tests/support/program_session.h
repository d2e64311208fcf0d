#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "drawing/drawing.h"
#include "screen/ports.h"
#include "start/program.h"
#include "tests/support/plain_history.h"
#include "tests/support/recording_printer.h"

namespace support {

// A message box that answers from a queue, with the default button when that is empty, and keeps
// what it showed.
class RecordingBox final : public screen::MessageBox {
 public:
  screen::Answer Show(const screen::Message& message) override;
  std::deque<screen::Answer> answers;
  std::vector<screen::Message> shown;
  // Looks at the screen while a box stands over it.
  std::function<void()> watch;
};

// A file dialog that answers from a queue; empty means cancelled.
class RecordingDialog final : public screen::FileDialog {
 public:
  std::string Ask(const Request& request) override;
  std::deque<std::string> answers;
  std::vector<Request> asked;
};

// Answers questions about a table from a queue; empty means cancelled.
class RecordingTables final : public screen::TableDialog {
 public:
  std::optional<std::size_t> Ask(const Question& question) override;
  std::deque<std::size_t> answers;
  std::vector<Question> asked;
};

// A surface that counts its repaints, and lets a test look at the state that each of them shows.
class CountingSurface final : public screen::Surface {
 public:
  void Repaint(screen::Form&) override {
    ++repaints;
    if (onRepaint) onRepaint();
  }
  void RepaintControl(screen::Form&, screen::Control& control) override {
    if (onControl) onControl(control);
  }
  // The texts of its controls, one below the other.
  drawing::DrawingRecord Drawn(screen::Form& form) override;
  int repaints = 0;
  std::function<void()> onRepaint;
  std::function<void(const screen::Control&)> onControl;
};

// A clock that stands still.
class FixedClock final : public screen::Clock {
 public:
  base::DateTime Now() const override { return {2024, 3, 7, 9, 5, 30}; }
};

// Keeps the pictures that were to be written, or refuses them all.
class RecordingPictures final : public screen::PictureFile {
 public:
  struct Written {
    std::string path;
    drawing::DrawingRecord drawing;
  };
  bool Write(const std::string& path, const drawing::DrawingRecord& drawing) override;
  std::vector<Written> written;
  bool fails = false;
};

// The ports of a program without a window.
struct RecordingPorts {
  RecordingBox box;
  RecordingDialog dialog;
  CountingSurface surface;
  FixedClock clock;
  RecordingPictures pictures;
  RecordingPrinter printer;
  PlainHistory history;
  RecordingTables tables;
  screen::Ports ports{box, dialog, surface, clock, pictures, printer, history, tables};
};

// The whole program without a window, and the user's hands: what a binder does with the events of
// a toolkit, done by name.
class ProgramSession : public RecordingPorts {
 public:
  // Starts with the delivered coefficient files.
  ProgramSession();

  screen::Form& Shown() { return program.Shown(); }
  // The control of that name on the shown screen, or "Form.Name"; throws when there is none.
  screen::Control& At(const std::string& name);
  const std::string& Text(const std::string& name) { return At(name).text; }
  ExposureSession& Record() { return program.Session(); }

  // Focuses the field, replaces its text, and leaves it by the Tab key.
  void Type(const std::string& name, const std::string& text);
  // The same, left by the mouse.
  void TypeAndClickAway(const std::string& name, const std::string& text);
  // The same, ended by the Enter key inside the field.
  void Enter(const std::string& name, const std::string& text);
  // Focuses the field and leaves it untouched by the Tab key.
  void Visit(const std::string& name);
  void Click(const std::string& name);
  void Pick(const std::string& name, const std::string& text);
  void Up(const std::string& name);
  void Down(const std::string& name);
  // A click on the tab with that key; false when the strip does not show it.
  bool Tab(const std::string& key);
  // Answers the file dialog with `path` and opens it from the start screen.
  void OpenFile(const std::string& path);
  // A series opened from a file with these outcomes.
  void OpenSeries(const std::vector<double>& outcomes);
  // Name, M, GM and GSD typed in mode "D".
  void EnterStatistics(const std::string& name, const std::string& m, const std::string& gm,
                       const std::string& gsd);
  std::vector<std::string> TabKeys();
  // Title and text of the last message box; throws when none was shown.
  const screen::Message& LastBox() const;

  start::Program program;

 private:
  void TypeInto(screen::Control& field, const std::string& text);
  // What the Tab key does in a field that gives it a meaning; true when the focus stays.
  bool TabStays(screen::Control& field);
};

// A file in the test's temporary folder with these bytes; its path.
std::string WriteTemporary(const std::string& name, const std::string& bytes);

}  // namespace support
