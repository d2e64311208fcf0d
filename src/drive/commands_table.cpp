#include "drive/failure.h"
#include "drive/grid_hands.h"
#include "drive/player.h"
#include "drive/text.h"

// The table's cursor and selection.
namespace drive {
namespace {

void SelectThem(Play& play, std::string rest) {
  const int first = IntOf(TakeWord(rest));
  SelectRows(play.stage, first, IntOf(rest));
}

void Cursor(Play& play, std::string) { play.Say("cursor = " + CursorRow(play.stage)); }

void Selection(Play& play, std::string) { play.Say("selection = " + SelectedRows(play.stage)); }

void ExpectCursor(Play& play, std::string rest) {
  const std::string row = CursorRow(play.stage);
  if (row != rest) throw Failure("the cursor is in row " + row + ", expected " + rest);
}

void ExpectSelection(Play& play, std::string rest) {
  const std::string rows = SelectedRows(play.stage);
  if (rows != rest) throw Failure("selected are " + rows + ", expected " + rest);
}

}  // namespace

const CommandTable& TableCommands() {
  static const CommandTable table = {
      {"select", SelectThem},
      {"cursor", Cursor},
      {"selection", Selection},
      {"expect-cursor", ExpectCursor},
      {"expect-selection", ExpectSelection},
  };
  return table;
}

}  // namespace drive
