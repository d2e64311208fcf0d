#pragma once

#include "navigation/desk.h"
#include "navigation/print_menus.h"
#include "plots/density.h"
#include "screen/picture.h"
#include "session/record.h"

namespace plots {

// The frequency distribution picture: the lognormal density of the present GM and GSD with the
// marks of the screen that it was called from. It changes nothing that a screen shows.
struct VerdelingForm final : screen::Form {
  VerdelingForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  Record& record;
  navigation::Desk& desk;

  screen::Control MenuFile{*this, screen::Kind::Menu, "MenuFile"};
  screen::Control MenuSave{*this, screen::Kind::Menu, "MenuSave"};
  screen::Control menuSavePicture{*this, screen::Kind::Menu, "menuSavePicture"};
  navigation::PrintMenus printMenus{*this, desk};
  screen::Control Menuclose{*this, screen::Kind::Menu, "Menuclose"};
  screen::Control MenuExit{*this, screen::Kind::Menu, "MenuExit"};

  screen::Picture VerdelingPict{*this, "VerdelingPict"};
  screen::Control WindnrLbl{*this, screen::Kind::Label, "WindnrLbl"};

  // What the live line says on the screen that the picture was called from.
  screen::Control StatusLbl{*this, screen::Kind::StatusLine, "StatusLbl"};

  screen::Control LblKoptekst{*this, screen::Kind::PictureLabel, "LblKoptekst"};
  screen::Control LblToets{*this, screen::Kind::PictureLabel, "LblToets"};
  screen::Control LblRightTxt{*this, screen::Kind::PictureLabel, "LblRightTxt"};
  screen::Control GMLbl{*this, screen::Kind::PictureLabel, "GMLbl"};
  screen::Control GSDPercLbl{*this, screen::Kind::PictureLabel, "GSDPercLbl"};
  screen::Control AMuLbl{*this, screen::Kind::PictureLabel, "AMuLbl"};
  screen::Control UTLLbl{*this, screen::Kind::PictureLabel, "UTLLbl"};
  screen::Control UCLLbl{*this, screen::Kind::PictureLabel, "UCLLbl"};
  screen::Control VkrValLbl{*this, screen::Kind::PictureLabel, "VkrValLbl"};
  screen::Control XasLbl0{*this, screen::Kind::PictureLabel, "XasLbl(0)"};
  screen::Control XasLbl{*this, screen::Kind::PictureLabel, "XasLbl"};

  void Activate() override;
  // Brings the live line up to date.
  void TellState();

 private:
  void Draw();
  void HideLabels();
  void ShowLabel(const std::string& label, const std::string& text);
  void SavePicture();
  ScreenId From() const;
};

}  // namespace plots
