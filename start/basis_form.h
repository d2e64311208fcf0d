#pragma once

#include <optional>

#include "navigation/session_form.h"
#include "rawdata/raw_file.h"

namespace start {

// The start screen: choice of the data type, identification of the data, and in mode "D" the
// known geometric mean and standard deviation.
struct BasisForm final : navigation::SessionForm {
  BasisForm(ExposureSession& record, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control menuopen{*this, screen::Kind::Menu, "menuopen"};
  screen::Control MenuNewVkrFil{*this, screen::Kind::Menu, "MenuNewVkrFil"};
  screen::Control MenuOpdatbas{*this, screen::Kind::Menu, "MenuOpdatbas"};
  screen::Control MenuOpSprSht{*this, screen::Kind::Menu, "MenuOpSprSht"};
  screen::Control MenuHelp{*this, screen::Kind::Menu, "MenuHelp"};
  screen::Control MenuWebsite{*this, screen::Kind::Menu, "MenuWebsite"};

  screen::Control DesRawFrame{*this, screen::Kind::Frame, "DesRawFrame"};
  screen::Control RawOpt{*this, screen::Kind::OptionButton, "RawOpt"};
  screen::Control DesOpt{*this, screen::Kind::OptionButton, "DesOpt"};

  screen::Control IdentFrame{*this, screen::Kind::Frame, "IdentFrame"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control NameTxB{*this, screen::Kind::TextBox, "NameTxB"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control SampSizTxB{*this, screen::Kind::TextBox, "SampSizTxB"};
  screen::Control SampSize_UpD{*this, screen::Kind::UpDown, "SampSize_UpD"};
  screen::Control CmdContinu{*this, screen::Kind::CommandButton, "CmdContinu"};

  screen::Control DescriptFrame{*this, screen::Kind::Frame, "DescriptFrame"};
  screen::Control GMLbl{*this, screen::Kind::Label, "GMLbl"};
  screen::Control GMTxB{*this, screen::Kind::TextBox, "GMTxB"};
  screen::Control DimLbl{*this, screen::Kind::Label, "DimLbl"};
  screen::Control GSDLbl{*this, screen::Kind::Label, "GSDLbl"};
  screen::Control GSDTxB{*this, screen::Kind::TextBox, "GSDTxB"};
  screen::Control DfLbl{*this, screen::Kind::Label, "DfLbl"};
  screen::Control DegreesLbl{*this, screen::Kind::Label, "DegreesLbl"};
  screen::Control OriModiCmd{*this, screen::Kind::CommandButton, "OriModiCmd"};

  screen::Control BoodschFrame{*this, screen::Kind::Frame, "BoodschFrame"};
  screen::Control BoodschLbl{*this, screen::Kind::Label, "BoodschLbl"};

  // How the last opened file was understood; empty for a typed series.
  std::optional<rawdata::ReadingNotes> readingNotes;

  void Load() override;
  void Activate() override;

  void BasisStatus();
  void Sluiten();
  void OpeningMessage();
};

}  // namespace start
