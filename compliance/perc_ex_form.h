#pragma once

#include <array>
#include <string>

#include "navigation/session_form.h"

namespace compliance {

// The compliance screen: the tests of the population's upper percentile against the limit value.
struct PercExForm final : navigation::SessionForm {
  PercExForm(ExposureSession& record, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control MenuPrint{*this, screen::Kind::Menu, "MenuPrint"};

  screen::Control Frame2{*this, screen::Kind::Frame, "Frame2"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control SampSizLbl0{*this, screen::Kind::Label, "SampSizLbl(0)"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control DegreesLbl0{*this, screen::Kind::Label, "DegreesLbl(0)"};
  screen::Control DegreesLbl{*this, screen::Kind::Label, "DegreesLbl"};
  screen::Control GMLbl0{*this, screen::Kind::Label, "GMLbl(0)"};
  screen::Control GMLbl{*this, screen::Kind::Label, "GMLbl"};
  screen::Control DimLbl0{*this, screen::Kind::Label, "DimLbl(0)"};
  screen::Control GSDLbl0{*this, screen::Kind::Label, "GSDLbl(0)"};
  screen::Control GSDLbl{*this, screen::Kind::Label, "GSDLbl"};
  screen::Control DimLbl1{*this, screen::Kind::Label, "DimLbl(1)"};
  screen::Control VkrValLbl0{*this, screen::Kind::Label, "VkrValLbl(0)"};
  screen::Control VkrValLbl1{*this, screen::Kind::Label, "VkrValLbl(1)"};

  screen::Control LeidelCmb{*this, screen::Kind::CommandButton, "LeidelCmb"};
  screen::Control WilksCmb{*this, screen::Kind::CommandButton, "WilksCmb"};
  screen::Control TuggleCmb{*this, screen::Kind::CommandButton, "TuggleCmb"};

  screen::Control IntroFrm{*this, screen::Kind::Frame, "IntroFrm"};
  screen::Control IntroLbl{*this, screen::Kind::Label, "IntroLbl"};

  screen::Control UTLFrm{*this, screen::Kind::Frame, "UTLFrm"};
  screen::Control PercExLbl0{*this, screen::Kind::Label, "PercExLbl(0)"};
  screen::Control PercExTxB0{*this, screen::Kind::TextBox, "PercExTxB(0)"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl(2)"};
  screen::Control PercExLbl1{*this, screen::Kind::Label, "PercExLbl(1)"};
  screen::Control PercExTxB1{*this, screen::Kind::TextBox, "PercExTxB(1)"};
  screen::Control DimLbl3{*this, screen::Kind::Label, "DimLbl(3)"};
  screen::Control PercExLbl2{*this, screen::Kind::Label, "PercExLbl(2)"};
  screen::Control PercExTxB2{*this, screen::Kind::TextBox, "PercExTxB(2)"};
  screen::Control DimLbl4{*this, screen::Kind::Label, "DimLbl(4)"};
  screen::Control ComplianceLbl{*this, screen::Kind::Label, "ComplianceLbl"};
  screen::Control CommentLbl{*this, screen::Kind::Label, "CommentLbl"};
  screen::Control SampSizeCkb{*this, screen::Kind::CheckBox, "SampSizeCkb"};
  screen::Control SampsizeFrm{*this, screen::Kind::Frame, "SampsizeFrm"};

  double Ur = 0;  // standardised distance of the limit from the mean on the log scale
  bool loaded = false;

  void Load() override;
  void Activate() override;

  void BasisStatus();
  // Sets the layout for the present TestTag and computes Ur.
  void TestLayout();
  void LeidelCmb_Click();

 private:
  // What a verdict rests on.
  using Basis = std::array<double, 6>;
  Basis PresentBasis() const;

  void ShowHeader();
  void ShowIntroduction();
  void ShowWording();
  void DropStaleResults();
  void ShowResultControls(bool shown);
  std::string LimitText(const std::string& separator) const;
  void ShowVerdict(bool compliance, int captionIfSo, int captionIfNot);

  Basis shownBasis_{};
};

}  // namespace compliance
