#pragma once

#include <string>

#include "session/workflow.h"

namespace navigation {

using workflow::ScreenId;

// What a screen may ask of the program around it.
class Desk {
 public:
  virtual ~Desk() = default;
  // Hides the present screen, shows `target` and runs its activation.
  virtual void Open(ScreenId target) = 0;
  // Opens the screen of the extrapolation `tag` ("Le", "Wi", "Tu", "Ap", "Ex") and starts it.
  virtual void RunExtrapolation(const std::string& tag) = 0;
  // Shows the frequency distribution picture in place of the present screen; then goes back to
  // that screen, which stands as it was left.
  virtual void ShowPicture() = 0;
  virtual void ClosePicture() = 0;
  virtual bool ShowsPicture() const = 0;
  // Whether the series differs from its file.
  virtual bool Unsaved() const = 0;
  // The series now in the record is what its file holds.
  virtual void MarkSaved() = 0;
  // Asks about unsaved changes; true when the series may go.
  virtual bool MayDropSeries() = 0;
  // "Close all data": asks about unsaved changes, shows the start screen, ends the session. False
  // when the user kept the session; the screen then stays.
  virtual bool CloseAllData() = 0;
  // Asks, and ends the program.
  virtual void Exit() = 0;
};

}  // namespace navigation
