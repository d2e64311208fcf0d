#pragma once

#include <functional>

#include "output/printing.h"
#include "screen/form.h"

namespace output {

// The trial of a printer's font: a line of text in a font and a size, and what it takes on the
// paper. It only tries; reports keep their font.
struct PrintkeuForm final : screen::Form {
  PrintkeuForm(Printing& printing, screen::Ports& formPorts);

  screen::Control MenuFile{*this, screen::Kind::Menu, "MenuFile"};
  screen::Control Menuclose{*this, screen::Kind::Menu, "Menuclose"};
  screen::Control LblFonts{*this, screen::Kind::Label, "LblFonts"};
  screen::Control CmbFonts{*this, screen::Kind::ComboBox, "CmbFonts"};
  screen::Control LblCorps{*this, screen::Kind::Label, "LblCorps"};
  screen::Control TxbCorps{*this, screen::Kind::TextBox, "TxbCorps"};
  screen::Control LblBrief{*this, screen::Kind::Label, "LblBrief"};
  screen::Control TxbBrief{*this, screen::Kind::TextBox, "TxbBrief"};
  screen::Control LblInfo{*this, screen::Kind::Label, "LblInfo"};
  screen::Control CmdAfdrukken{*this, screen::Kind::CommandButton, "CmdAfdrukken"};
  // Empty: a trial tells nothing of the record.
  screen::Control StatusLbl{*this, screen::Kind::StatusLine, "StatusLbl"};

  // What leads back to the screen before.
  std::function<void()> close;

  void Load() override;
  // The fonts are asked for when they are wanted: a system may have thousands.
  void Activate() override;

  // Measures the text anew, in the font and the size that it is shown in.
  void BerekenOpnieuw();
  void CmdAfdrukken_Click();

 private:
  void TakeFont();
  drawing::TextStyle Style() const;

  Printing& printing_;
};

}  // namespace output
