#pragma once

#include "navigation/session_form.h"
#include "stats/estimators.h"

namespace analysis {

// The descriptive statistics screen: the estimators of the lognormal distribution of the sample.
// All its fields are display-only.
struct DescriptForm final : navigation::SessionForm {
  DescriptForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control IdentFrame{*this, screen::Kind::Frame, "IdentFrame"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control NameTxB{*this, screen::Kind::TextBox, "NameTxB"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control SampSizTxB{*this, screen::Kind::TextBox, "SampSizTxB"};
  screen::Control RefDurLbl{*this, screen::Kind::Label, "RefDurLbl"};
  screen::Control DimLbl0{*this, screen::Kind::Label, "DimLbl(0)"};

  screen::Control DescriptFrame{*this, screen::Kind::Frame, "DescriptFrame"};
  screen::Control GMLbl{*this, screen::Kind::Label, "GMLbl"};
  screen::Control GMTxB{*this, screen::Kind::TextBox, "GMTxB"};
  screen::Control DimLbl1{*this, screen::Kind::Label, "DimLbl(1)"};
  screen::Control GSDLbl{*this, screen::Kind::Label, "GSDLbl"};
  screen::Control GSDTxB{*this, screen::Kind::TextBox, "GSDTxB"};
  screen::Control GMuLbl{*this, screen::Kind::Label, "GMuLbl"};
  screen::Control GMuTxB{*this, screen::Kind::TextBox, "GMuTxB"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl(2)"};

  screen::Control ArithmFrm{*this, screen::Kind::Frame, "ArithmFrm"};
  screen::Control AMmlLbl{*this, screen::Kind::Label, "AMmlLbl"};
  screen::Control AMmlTxb{*this, screen::Kind::TextBox, "AMmlTxb"};
  screen::Control DimLbl3{*this, screen::Kind::Label, "DimLbl(3)"};
  screen::Control AMuLbl{*this, screen::Kind::Label, "AMuLbl"};
  screen::Control AMuTxb{*this, screen::Kind::TextBox, "AMuTxb"};
  screen::Control DimLbl4{*this, screen::Kind::Label, "DimLbl(4)"};
  screen::Control AMmvLbl{*this, screen::Kind::Label, "AMmvLbl"};
  screen::Control AMmvTxb{*this, screen::Kind::TextBox, "AMmvTxb"};
  screen::Control DimLbl5{*this, screen::Kind::Label, "DimLbl(5)"};
  screen::Control AMlinLbl{*this, screen::Kind::Label, "AMlinLbl"};
  screen::Control AmlinTxb{*this, screen::Kind::TextBox, "AmlinTxb"};
  screen::Control DimLbl6{*this, screen::Kind::Label, "DimLbl(6)"};

  screen::Control SDFrm{*this, screen::Kind::Frame, "SDFrm"};
  screen::Control SDULbl{*this, screen::Kind::Label, "SDULbl"};
  screen::Control SDUTxb{*this, screen::Kind::TextBox, "SDUTxb"};
  screen::Control DimLbl7{*this, screen::Kind::Label, "DimLbl(7)"};
  screen::Control SDlinLbl{*this, screen::Kind::Label, "SDlinLbl"};
  screen::Control SDlinTxb{*this, screen::Kind::TextBox, "SDlinTxb"};
  screen::Control DimLbl8{*this, screen::Kind::Label, "DimLbl(8)"};

  screen::Control DetecFrame{*this, screen::Kind::Frame, "DetecFrame"};
  screen::Control DetcLbl0{*this, screen::Kind::Label, "DetcLbl(0)"};
  screen::Control DetecLTxb{*this, screen::Kind::TextBox, "DetecLTxb"};
  screen::Control DimLbl9{*this, screen::Kind::Label, "DimLbl(9)"};
  screen::Control DetcLbl1{*this, screen::Kind::Label, "DetcLbl(1)"};
  screen::Control DetecUTxb{*this, screen::Kind::TextBox, "DetecUTxb"};
  screen::Control DegreesLbl7{*this, screen::Kind::Label, "DegreesLbl(7)"};
  screen::Control DegreesTxb{*this, screen::Kind::TextBox, "DegreesTxb"};
  screen::Control DegreesLbl4{*this, screen::Kind::Label, "DegreesLbl(4)"};
  screen::Control DegreesLbl5{*this, screen::Kind::Label, "DegreesLbl(5)"};
  screen::Control DegreesLbl8{*this, screen::Kind::Label, "DegreesLbl(8)"};
  screen::Control DegreesLbl9{*this, screen::Kind::Label, "DegreesLbl(9)"};
  screen::Control DegreesLbl10{*this, screen::Kind::Label, "DegreesLbl(10)"};
  screen::Control DegreesLbl11{*this, screen::Kind::Label, "DegreesLbl(11)"};
  screen::Control DegreesLbl3{*this, screen::Kind::Label, "DegreesLbl(3)"};
  screen::Control DegreesLbl6{*this, screen::Kind::Label, "DegreesLbl(6)"};

  void Load() override;
  void Activate() override;

  // Tabs and menus of the present state.
  void BasisDescStat();

 private:
  void ShowIdentification();
  void ShowEstimators();
  void NoteState(const StatFWinBAS::Estimators& found);
  void ShowNothing();
  void ShowNoRange();
  void ShowRange();
  void ShowSampleWords();
  void ShowRegressionWords();
};

}  // namespace analysis
