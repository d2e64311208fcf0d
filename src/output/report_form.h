#pragma once

#include <string>

#include "navigation/desk.h"
#include "screen/text_view.h"
#include "session/record.h"

namespace output {

// The window in which the log of the session is read.
struct ReportForm final : screen::ReadingWindow {
  ReportForm(const Record& sessionRecord, screen::Ports& formPorts);

  const ExposureSession& session;

  screen::TextView ReportTxb{*this, "ReportTxb"};
  screen::Control FindLbl{*this, screen::Kind::Label, "FindLbl"};
  screen::Control FindTxB{*this, screen::Kind::TextBox, "FindTxB"};
  screen::Control FindNextCmd{*this, screen::Kind::CommandButton, "FindNextCmd"};
  screen::Control FindBackCmd{*this, screen::Kind::CommandButton, "FindBackCmd"};
  screen::Control FoundLbl{*this, screen::Kind::Label, "FoundLbl"};

  void Load() override;

  // Shows the log, at its end, or closes the window; without a log nothing happens. A log that
  // can't be read is a fault, which names it.
  void MenuReportOpen_Click();
  // The log may have grown, or be another one.
  void Renew();
  void Close();
  // The window goes with the data whose log it shows. Whoever runs handlers calls this behind each
  // of them.
  void FollowSession();
  // How the menu item that opens and closes the window stands.
  navigation::OutputOffer Offer() const;

 private:
  // False when there is no log to be read; what is shown stays.
  bool Read();
  void Find(bool back);
};

}  // namespace output
