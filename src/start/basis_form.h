#pragma once

#include <functional>
#include <string>

#include "navigation/session_form.h"
#include "rawdata/raw_file.h"

namespace start {

// The start screen: choice of the data type, identification of the data, and in mode "D" the
// known geometric mean and standard deviation.
struct BasisForm final : navigation::SessionForm {
  BasisForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control MenuOptions{*this, screen::Kind::Menu, "MenuOptions"};
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

  // Tells the data control screen how the opened file was understood, or, with null, that its
  // series is gone.
  std::function<void(const rawdata::ReadingNotes*)> tellReading;

  void Load() override;
  void Activate() override;
  void BeforeLeavingFor(navigation::ScreenId target) override;
  void FollowSave(const LastAction* told) override;

  // Shows the present state of the session: fields, messages, menus and tabs.
  void BasisStatus();
  // Ends the session: the record is emptied apart from OELV, U and D.
  void Sluiten();
  // What "close all data" does once the user has agreed.
  void Menuclose_Click();
  // Loads a raw data file into the session and shows the data control screen.
  void VkrOpen();
  // The three lines that ask for the kind of data.
  void OpeningMessage();

 private:
  void WireMenus();
  void WireButtons();
  void WireFields();

  void RawOpt_Click();
  void ChooseRaw();
  void DesOpt_Click();
  void KeepKindOfData();
  void ChooseStatistics();
  void MenuNewVkrFil_Click();
  void CmdContinu_Click();
  void OriModiCmd_Click();
  // The button offers Modify again, and no longer Reset.
  void OfferModify();

  void LeaveName();
  void LeaveSampleSize();
  void StepSampleSize(double step);
  void TakeSampleSize(double M);
  void Modify();
  void Reset();
  void LeaveStatistic(screen::Control& field);
  void TabFrom(screen::Control& field, screen::Control& next);
  void KeepFocus(screen::Control& field, bool refused, bool typed);

  void StatusRaw();
  void StatusRawChosen();
  void StatusKnown();
  void ShowStatistics();
  void ShowDegrees();
  void StatusStrip();
  void ShowMessage(const std::string& text);

  void TellRefusal(const std::string& path, const rawdata::FileCheck& check);
  void TakeSeries(const std::string& path, const rawdata::FileValues& file);

  // The field whose entry the Tab key has taken: leaving it takes it no second time.
  const screen::Control* taken_ = nullptr;
  // The statistic that was refused last, and that nothing was typed for since.
  const screen::Control* told_ = nullptr;
};

}  // namespace start
