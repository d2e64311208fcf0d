#pragma once

#include <map>
#include <ostream>
#include <string>

#include "drive/script.h"
#include "drive/scripted_ports.h"
#include "drive/scripted_printer.h"
#include "drive/stage.h"

namespace drive {

// What the commands of a script act on.
struct Play {
  Stage& stage;
  ScriptedMessageBox& boxes;
  ScriptedFileDialog& files;
  ScriptedPrinter& printer;
  ScriptedTableDialog& tables;
  std::ostream& out;

  void Say(const std::string& line) { out << line << std::endl; }
};

// What a command does with the words behind its name.
using Action = void (*)(Play&, std::string rest);
using CommandTable = std::map<std::string, Action>;

const CommandTable& WindowCommands();   // queued answers, menus, tabs, the window itself
const CommandTable& FieldCommands();    // buttons, fields, the table
const CommandTable& AnswerCommands();   // get, expect, dump, box
const CommandTable& RecordCommands();   // set, eval, mask
const CommandTable& FileCommands();     // what the program has written
const CommandTable& PrinterCommands();  // the printer, and what it has printed
const CommandTable& TableCommands();    // undo, redo, the cursor and the selection of the table

// Plays one command; throws what ends a script.
void PlayCommand(Play& play, const Command& command);

// Plays the whole script. Tells the first failure and returns the exit code.
int PlayScript(Play& play, Script& script);

}  // namespace drive
