#pragma once

#include "screen/form.h"
#include "session/exposure_session.h"
#include "ucl/land_watch.h"

namespace ucl {

// The progress of Land's search, in a small window beside the screen of the mean.
struct LandHulpForm final : screen::SideWindow {
  LandHulpForm(const ExposureSession& record, screen::Ports& formPorts);

  const ExposureSession& session;

  screen::Control InitLbl{*this, screen::Kind::Label, "InitLbl"};
  screen::Control InitTxb0{*this, screen::Kind::TextBox, "InitTxb(0)"};
  screen::Control StreepjeLbl0{*this, screen::Kind::Label, "StreepjeLbl(0)"};
  screen::Control InitTxb1{*this, screen::Kind::TextBox, "InitTxb(1)"};
  screen::Control Secant{*this, screen::Kind::Label, "Secant"};
  screen::Control SecantTxb0{*this, screen::Kind::TextBox, "SecantTxb(0)"};
  screen::Control StreepjeLbl1{*this, screen::Kind::Label, "StreepjeLbl(1)"};
  screen::Control SecantTxb1{*this, screen::Kind::TextBox, "SecantTxb(1)"};
  screen::Control ConFactLbl{*this, screen::Kind::Label, "ConFactLbl"};
  screen::Control ConFactTxb{*this, screen::Kind::TextBox, "ConFactTxb"};

  void Load() override;

  // Empties what an earlier search has left, and shows the window.
  void Begin();
  // Takes the search's present state over and repaints what `sign` names; not for LandSign::Limit.
  void Follow(const UCLBAS::LandWatch& watch, UCLBAS::LandSign sign);
};

}  // namespace ucl
