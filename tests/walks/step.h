#pragma once

#include <string>
#include <vector>

#include "screen/ports.h"

namespace walks {

// One thing that a user does: a line or two of a session script, and what is answered on the way.
struct Step {
  std::vector<std::string> lines;
  std::string file = {};                    // what a file dialog is answered; empty cancels it
  bool asked = false;                       // whether one has come
  std::vector<screen::Message> boxes = {};  // that came, in their order
  std::vector<screen::Answer> answers = {};
  std::vector<std::string> printed = {};  // the texts on the pages that went to the printer
  // By keys: the line that does the same by mouse.
  std::string meant = {};

  // The command, and what stands behind it, of what was meant or else of the last line.
  std::string Command() const;
  std::string Rest() const;
};

// A line for the driver; the text is quoted where it would not be read as it stands.
std::string LineWith(const std::string& command, const std::string& text);

// A script that valkorin-drive plays the same way.
std::string ScriptOf(const std::vector<Step>& steps);

}  // namespace walks
