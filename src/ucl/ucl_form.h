#pragma once

#include <string>

#include "navigation/session_form.h"
#include "ucl/land_hulp_form.h"

namespace ucl {

// The screen of the mean: its upper confidence limit, by Jahr or by Land, and the probability that
// it exceeds the limit value. TestTag tells what is shown: "" the introduction, "Ap" Jahr's result,
// "Ex" Land's.
struct UCLForm final : navigation::SessionForm {
  UCLForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control Frame2{*this, screen::Kind::Frame, "Frame2"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control SampSizLbl0{*this, screen::Kind::Label, "SampSizLbl(0)"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control DegreesLbl0{*this, screen::Kind::Label, "DegreesLbl(0)"};
  screen::Control DegreesLbl{*this, screen::Kind::Label, "DegreesLbl"};
  screen::Control GMuLbl0{*this, screen::Kind::Label, "GMuLbl(0)"};
  screen::Control GMuLbl1{*this, screen::Kind::Label, "GMuLbl(1)"};
  screen::Control DimLbl0{*this, screen::Kind::Label, "DimLbl(0)"};
  screen::Control GSDLbl0{*this, screen::Kind::Label, "GSDLbl(0)"};
  screen::Control GSDLbl1{*this, screen::Kind::Label, "GSDLbl(1)"};
  screen::Control AMuLbl{*this, screen::Kind::Label, "AMuLbl"};
  screen::Control AMuTxb{*this, screen::Kind::TextBox, "AMuTxb"};
  screen::Control DimLbl1{*this, screen::Kind::Label, "DimLbl(1)"};
  screen::Control VkrValLbl0{*this, screen::Kind::Label, "VkrValLbl(0)"};
  screen::Control VkrValLbl{*this, screen::Kind::Label, "VkrValLbl"};

  screen::Control JahrCmb{*this, screen::Kind::CommandButton, "JahrCmb"};
  screen::Control LandCmb{*this, screen::Kind::CommandButton, "LandCmb"};
  screen::Control SampSizCmb{*this, screen::Kind::CommandButton, "SampSizCmb"};

  screen::Control UCLmeanFrm{*this, screen::Kind::Frame, "UCLmeanFrm"};
  screen::Control IntroFrm{*this, screen::Kind::Frame, "IntroFrm"};
  screen::Control IntroLbl{*this, screen::Kind::Label, "IntroLbl"};
  screen::Control Methodlbl{*this, screen::Kind::Label, "Methodlbl"};
  screen::Control UCLLbl{*this, screen::Kind::Label, "UCLLbl"};
  screen::Control UCLTxB{*this, screen::Kind::TextBox, "UCLTxB"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl(2)"};
  screen::Control PercExLbl0{*this, screen::Kind::Label, "PercExLbl(0)"};
  screen::Control PercExTxB{*this, screen::Kind::TextBox, "PercExTxB"};
  screen::Control PercExLbl1{*this, screen::Kind::Label, "PercExLbl(1)"};
  screen::Control ConclFrm{*this, screen::Kind::Frame, "ConclFrm"};

  // The window of Land's progress.
  LandHulpForm landHulp;

  void Load() override;
  void Activate() override;

  // The strip and the menus.
  void BasisStatus();
  // The layout for the present TestTag, with the result that the record holds for it.
  void UCLResults();
  void JahrCmb_Click();
  void LandCmb_Click();

 private:
  void ShowIdentification();
  void ShowStatistics();
  void ShowWording();
  void ShowGate();
  void ShowResultControls(bool result);
  void ShowResult(const MeanResult& result);
  void BeginMethod(Extrapolation method, int methodName, const char* window);
  void SearchLand();
  void TellLimitBeyondNumbers(double UCL);
};

}  // namespace ucl
