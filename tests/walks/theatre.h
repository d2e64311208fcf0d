#pragma once

#include <functional>
#include <optional>
#include <sstream>
#include <string>

#include "drive/player.h"
#include "tests/walks/step.h"
#include "ui/application.h"

namespace walks {

// What a box is answered.
using Chooser = std::function<screen::Answer(const screen::Message&)>;

// Whether a box with these buttons takes the answer.
bool Offers(screen::Buttons buttons, screen::Answer answer);

// The answer to a question on the way out of the program that keeps it running; none for others.
std::optional<screen::Answer> StayingAnswer(const screen::Message& message);

// Lets somebody choose the answer while the box is there; the driver's own box keeps it.
class ChosenBox final : public screen::MessageBox {
 public:
  explicit ChosenBox(drive::ScriptedMessageBox& kept) : kept_(kept) {}
  screen::Answer Show(const screen::Message& message) override;
  Chooser choose;

 private:
  drive::ScriptedMessageBox& kept_;
};

class ChosenFile final : public screen::FileDialog {
 public:
  std::string Ask(const Request& request) override;
  std::string path;
  bool asked = false;
};

// One run of the program in its real window, played by the driver's commands.
class Theatre {
 public:
  // `painted`: whether the window paints itself, which takes three times as long as all the rest.
  explicit Theatre(bool painted);

  drive::Stage& Stage() { return stage_; }

  // Plays the lines of the step, and notes in it what was asked. True when a user could do all of
  // it; `Trouble` tells why not.
  bool Perform(Step& step, const Chooser& choose);
  const std::string& Trouble() const { return trouble_; }

 private:
  drive::ScriptedMessageBox kept_;
  ChosenBox box_{kept_};
  ChosenFile file_;
  drive::ScriptedFileDialog noFiles_;
  drive::StandingClock clock_;
  drive::ScriptedPrinter printer_;
  drive::ScriptedTableDialog tables_;
  ui::Application application_{{box_, file_, clock_, printer_, tables_}};
  drive::Stage stage_{application_};
  std::ostringstream out_;
  drive::Play play_{stage_, kept_, noFiles_, printer_, tables_, out_};
  std::string trouble_;
};

}  // namespace walks
