#include "drive/player.h"

#include <exception>

#include "drive/failure.h"
#include "drive/text.h"

namespace drive {
namespace {

const Action* Known(const std::string& name) {
  for (const CommandTable* table :
       {&WindowCommands(), &FieldCommands(), &AnswerCommands(), &RecordCommands(), &FileCommands(),
        &PrinterCommands(), &TableCommands()}) {
    const auto found = table->find(name);
    if (found != table->end()) return &found->second;
  }
  return nullptr;
}

// The commands that ask nothing of the window.
bool NeedsNoWindow(const std::string& name) {
  return name == "box" || name == "expect-box" || name == "expect-no-box" ||
         name == "expect-ended" || name == "printed" || name == "expect-printed";
}

}  // namespace

void PlayCommand(Play& play, const Command& command) {
  const Action* action = Known(command.name);
  if (!action) throw Failure("unknown command " + command.name);
  if (play.stage.Ended() && !NeedsNoWindow(command.name)) throw Failure("the program has ended");
  (*action)(play, command.rest);
  for (const std::string& trouble : {play.boxes.TakeTrouble(), play.tables.TakeTrouble()})
    if (!trouble.empty()) throw Failure(trouble);
}

int PlayScript(Play& play, Script& script) {
  while (const auto command = script.Next()) {
    try {
      PlayCommand(play, *command);
    } catch (const std::exception& failure) {
      play.Say("FAIL line " + IntText(command->line) + ": " + failure.what());
      return 1;
    }
  }
  return 0;
}

}  // namespace drive
