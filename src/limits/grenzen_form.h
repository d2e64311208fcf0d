#pragma once

#include "navigation/session_form.h"

namespace limits {

// The limits screen: limit value, reference period, unit, duration, coverage U, confidence D.
struct GrenzenForm final : navigation::SessionForm {
  GrenzenForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control IdentFrame{*this, screen::Kind::Frame, "IdentFrame"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control NameTxB{*this, screen::Kind::TextBox, "NameTxB"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control SampSizTxB{*this, screen::Kind::TextBox, "SampSizTxB"};
  screen::Control DurationLbl{*this, screen::Kind::Label, "DurationLbl"};
  screen::Control DurationCmB{*this, screen::Kind::ComboBox, "DurationCmB"};

  screen::Control EnvirFrame{*this, screen::Kind::Frame, "EnvirFrame"};
  screen::Control VkrValLbl0{*this, screen::Kind::Label, "VkrValLbl(0)"};
  screen::Control VkrValTxB{*this, screen::Kind::TextBox, "VkrValTxB"};
  screen::Control VkrVal_UpD{*this, screen::Kind::UpDown, "VkrVal_UpD"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl(2)"};
  screen::Control VkrValLbl1{*this, screen::Kind::Label, "VkrValLbl(1)"};
  screen::Control RefPerCmb{*this, screen::Kind::ComboBox, "RefPerCmb"};
  screen::Control DimLbl0{*this, screen::Kind::Label, "DimLbl(0)"};
  screen::Control DimCbo{*this, screen::Kind::ComboBox, "DimCbo"};

  screen::Control AlphaFrame{*this, screen::Kind::Frame, "AlphaFrame"};
  screen::Control AlphaLbl0{*this, screen::Kind::Label, "AlphaLbl(0)"};
  screen::Control AlphaTxb{*this, screen::Kind::TextBox, "AlphaTxb"};
  screen::Control Alpha_UpD{*this, screen::Kind::UpDown, "Alpha_UpD"};
  screen::Control AlphaLbl1{*this, screen::Kind::Label, "AlphaLbl(1)"};
  screen::Control DeltaTxb{*this, screen::Kind::TextBox, "DeltaTxb"};
  screen::Control Delta_UpD{*this, screen::Kind::UpDown, "Delta_UpD"};

  screen::Control BoodschFrame{*this, screen::Kind::Frame, "BoodschFrame"};
  screen::Control BoodschLbl{*this, screen::Kind::Label, "BoodschLbl"};

  void Load() override;
  void Activate() override;
  void BeforeTabClick() override;

  // Brings every control into line with the session.
  void BasisStatus();

 private:
  void WireBoxes();
  void WireSteps();
  void WireCombos();
  void FillCombos();

  void ShowState();
  void ShowValues();
  void ShowMissing();
  void StatusStrip();
  void ColourLabels();

  void LeavePercent(screen::Control& box);
  void LeaveLimit();
  void LeaveText(screen::Control& combo, std::string Given::*field);
  void StepPercent(screen::Control& box, int direction);
  void StepLimit(int direction);
  // StatusFlags, and a word about a limit value that did not stand.
  void JudgeLimits();
};

}  // namespace limits
