#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "drawing/drawing.h"
#include "screen/clock.h"
#include "screen/history.h"

// What the screens need of the system around them. The window toolkit has the real ones, tests
// have recording ones.
namespace screen {

struct Control;
struct Form;

enum class Icon { None, Exclamation, Question, Information };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, SaveDiscardCancel, PrintKeepDropCancel };
enum class Answer { Ok, Cancel, Yes, No, Save, Discard, Print, Keep, Drop };

struct Message {
  std::string text;
  std::string title;
  Icon icon = Icon::None;
  Buttons buttons = Buttons::Ok;
  Answer defaultAnswer = Answer::Ok;
  std::string advice = {};  // told below the text: what is at stake, or what can be entered
};

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual Answer Show(const Message& message) = 0;
};

class FileDialog {
 public:
  struct Request {
    bool save = false;
    std::string title;
    std::string filter;
    std::string fileName;
    std::string helpFile;
    int helpContext = 0;
  };
  virtual ~FileDialog() = default;
  // The chosen path, or the empty text when the dialog was cancelled.
  virtual std::string Ask(const Request& request) = 0;
};

// Shows the first lines of a table, and asks which of some choices holds for it.
class TableDialog {
 public:
  struct Question {
    std::string title;
    std::string text;
    std::vector<std::vector<std::string>> lines;
    std::vector<std::string> choices;
    std::vector<std::size_t> columns;     // that the choices stand for; empty when for none
    std::optional<std::size_t> proposed;  // the choice that stands chosen at first
  };
  virtual ~TableDialog() = default;
  // The choice, or nothing when the dialog was cancelled.
  virtual std::optional<std::size_t> Ask(const Question& question) = 0;
};

class Surface {
 public:
  virtual ~Surface() = default;
  // Shows the present state of `form` and repaints it before it returns.
  virtual void Repaint(Form& form) = 0;
  // The same for one control of it, cheap enough for every step of a search.
  virtual void RepaintControl(Form& form, Control&) { Repaint(form); }
  // What of `form` can be seen, whatever the colours of the desktop, as lines and texts on paper.
  virtual drawing::DrawingRecord Drawn(Form& form) = 0;
};

class PictureFile {
 public:
  virtual ~PictureFile() = default;
  // Writes `drawing` as a bitmap beside the file first and then renames it over it, so that the
  // old file survives a failure. Returns false, with nothing changed, on any failure.
  virtual bool Write(const std::string& path, const drawing::DrawingRecord& drawing) = 0;
};

// Of paper, or of a text on it; in twips.
struct Extent {
  double width = 0;
  double height = 0;
};

// A document for the printer.
struct PrintJob {
  std::string title;                          // as the list of the printer's jobs has it
  std::vector<drawing::DrawingRecord> pages;  // each as large as the paper, upright or lying
};

class PrinterSurface {
 public:
  virtual ~PrinterSurface() = default;
  // Whether the system's list of printers has one.
  virtual bool AnyPrinter() = 0;
  // Asks for the printer of all further jobs. False when the user gave none.
  virtual bool Choose() = 0;
  // Upright, that of the chosen printer.
  virtual Extent Paper() = 0;
  // False when the chosen printer does not take the job; then nothing of it is printed.
  virtual bool Print(const PrintJob& job) = 0;
  // Writes the job as a PDF file, beside the file first. False, with nothing changed, on any
  // failure.
  virtual bool WritePdf(const std::string& path, const PrintJob& job) = 0;

  // The document that stays open for one report behind the other. False when a line can't be taken.
  virtual bool TakeLine(const std::string& line) = 0;
  virtual const std::vector<std::string>& OpenDocument() const = 0;
  virtual void CloseDocument() = 0;

  // The families of fonts that a text can be printed in.
  virtual std::vector<std::string> Fonts() = 0;
  // What one line of text takes on the paper.
  virtual Extent TextExtent(const std::string& line, const drawing::TextStyle& style) = 0;
};

struct Ports {
  MessageBox& messageBox;
  FileDialog& fileDialog;
  Surface& surface;
  Clock& clock;
  PictureFile& pictureFile;
  PrinterSurface& printer;
  History& history;
  TableDialog& tableDialog;
};

}  // namespace screen
