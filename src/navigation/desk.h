#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalog/text_id.h"
#include "session/workflow.h"

namespace screen {
struct Form;
}

namespace navigation {

using workflow::ScreenId;

// A menu item that leads straight to an extrapolation, on every working screen.
struct ExtrapolationMenu {
  Extrapolation tag;
  ScreenId screen;
  std::string_view name;
  std::string_view home;  // the menu that it stands in
  TextId caption;
};

// What leaves the program, on paper or in a file beside that of the series.
enum class OutputAction {
  Form,        // the shown screen, to the printer
  Grid,        // the table, to the printer
  Report,      // the screen's record, to the document that gathers reports
  Log,         // the screen's record, to the log
  ShowLog,     // the window with the log, or its end
  Document,    // one document of all results
  Gathered,    // the document that has gathered reports, to the printer
  Printer,     // the choice of the printer
  PrinterFont  // the trial of a printer's font
};

// How the menu item of such an action stands.
struct OutputOffer {
  bool enabled = true;
  std::string caption = {};  // in place of the item's own
  std::string tip = {};
};

// What a screen may ask of the program around it.
class Desk {
 public:
  virtual ~Desk() = default;
  // Hides the present screen, shows `target` and runs its activation.
  virtual void Open(ScreenId target) = 0;
  // The extrapolations that there are, in the order of their menus.
  virtual const std::vector<ExtrapolationMenu>& Extrapolations() const = 0;
  // Opens the screen of an extrapolation and starts it.
  virtual void RunExtrapolation(Extrapolation tag) = 0;
  // Why the frequency distribution picture of the shown screen can't be drawn; empty when it can.
  virtual std::string PictureObstacle() const = 0;
  // Shows the frequency distribution picture in place of the present screen; then goes back to
  // that screen, which stands as it was left.
  virtual void ShowPicture() = 0;
  virtual void ClosePicture() = 0;
  virtual bool ShowsPicture() const = 0;
  // Whether the series differs from its file.
  virtual bool Unsaved() const = 0;
  // The series now in the record is what `file` holds; there is none where that is empty.
  virtual void MarkSaved(const std::string& file) = 0;
  // The user has done something, which `words` name in a menu; `before` is the series in front of
  // it. `goesOn`: with the movement of the step before.
  virtual void Done(const std::string& words, const GivenSeries& before, bool goesOn) = 0;
  // Takes the last step back, or does it again, and shows what has become of it.
  virtual void Undo() = 0;
  virtual void Redo() = 0;
  // The words of those steps; empty when there is none, or not now.
  virtual std::string ToUndo() const = 0;
  virtual std::string ToRedo() const = 0;
  // Another series: nothing of the one before can be taken back.
  virtual void ForgetSteps() = 0;
  // Asks about what is typed or unsaved and would be lost; true when it may go.
  virtual bool MayDropSeries() = 0;
  // Asks for a file and writes the series to it; true when that is done.
  virtual bool SaveSeries() = 0;
  // Lets what `form` shows, or what the action names, leave the program.
  virtual void Output(screen::Form& form, OutputAction action) = 0;
  // How the item of that action now stands.
  virtual OutputOffer Offered(OutputAction action) const = 0;
  // "Close all data": asks about unsaved changes, shows the start screen, ends the session. False
  // when the user kept the session; the screen then stays.
  virtual bool CloseAllData() = 0;
  // Asks, and ends the program.
  virtual void Exit() = 0;
};

}  // namespace navigation
