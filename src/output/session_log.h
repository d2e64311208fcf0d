#pragma once

#include <string>

#include "navigation/desk.h"
#include "screen/form.h"
#include "session/record.h"

namespace output {

// The log of the session: what screens showed when the user asked for it, in one growing text file
// beside the series.
class SessionLog {
 public:
  SessionLog(Record& record, screen::Ports& ports) : record_(record), ports_(ports) {}

  // Appends the record of `form`, and tells so. `seriesFile`: the file that holds the series, which
  // is no log; empty where none does. A log that can't be opened is a fault, which names it.
  void Append(const screen::Form& form, const std::string& seriesFile);

  // How the menu item that appends stands: it says whereto.
  navigation::OutputOffer Offer() const;

 private:
  void Tell(const std::string& text, const std::string& title, screen::Icon icon);
  void TellAppended();

  Record& record_;
  screen::Ports& ports_;
};

}  // namespace output
