#include <vector>

#include "drive/failure.h"
#include "drive/grid_hands.h"
#include "drive/hands.h"
#include "drive/player.h"
#include "drive/text.h"

// What the user takes back, and the table's cursor and selection.
namespace drive {
namespace {

void Undo(Play& play, std::string) { ChooseMenu(play.stage, play.stage.Find("MenuUndo")); }
void Redo(Play& play, std::string) { ChooseMenu(play.stage, play.stage.Find("MenuRedo")); }

void Drag(Play& play, std::string rest) {
  const Target bar = play.stage.Find(TakeWord(rest));
  std::vector<int> places;
  while (!rest.empty()) places.push_back(IntOf(TakeWord(rest)));
  DragBar(play.stage, bar, places);
}

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
      {"undo", Undo},
      {"redo", Redo},
      {"drag", Drag},
      {"select", SelectThem},
      {"cursor", Cursor},
      {"selection", Selection},
      {"expect-cursor", ExpectCursor},
      {"expect-selection", ExpectSelection},
  };
  return table;
}

}  // namespace drive
