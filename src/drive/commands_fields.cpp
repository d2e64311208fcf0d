#include "drive/access_key.h"
#include "drive/failure.h"
#include "drive/grid_hands.h"
#include "drive/hands.h"
#include "drive/player.h"
#include "drive/text.h"

namespace drive {
namespace {

Target TakeTarget(Play& play, std::string& rest) {
  const std::string name = TakeWord(rest);
  if (name.empty()) throw Failure("the command wants the name of a control");
  return play.stage.Find(name);
}

void ClickOn(Play& play, std::string rest) { Click(play.stage, TakeTarget(play, rest)); }

void TypeAndLeave(Play& play, std::string rest) {
  const Target field = TakeTarget(play, rest);
  TypeInto(play.stage, field, TextArgument(rest));
  Press(play.stage, "Tab");
}

void TypeAndEnter(Play& play, std::string rest) {
  const Target field = TakeTarget(play, rest);
  TypeInto(play.stage, field, TextArgument(rest));
  Press(play.stage, "Return");
}

void PickEntry(Play& play, std::string rest) {
  const Target list = TakeTarget(play, rest);
  Pick(play.stage, list, TextArgument(rest));
}

void Up(Play& play, std::string rest) { Step(play.stage, TakeTarget(play, rest), Arrow::Up); }
void Down(Play& play, std::string rest) { Step(play.stage, TakeTarget(play, rest), Arrow::Down); }
void Key(Play& play, std::string rest) { Press(play.stage, rest); }

void Access(Play& play, std::string rest) { PressAccessKey(play.stage, rest); }

void Cell(Play& play, std::string rest) {
  const int row = IntOf(TakeWord(rest));
  TypeIntoCell(play.stage, row, TextArgument(rest));
}

void AddARow(Play& play, std::string rest) { AddRow(play.stage, TextArgument(rest)); }
void DeleteTheRow(Play& play, std::string rest) { DeleteRow(play.stage, IntOf(rest)); }
void Row(Play& play, std::string rest) { GoToRow(play.stage, IntOf(rest)); }
void Edit(Play& play, std::string rest) { OpenEditor(play.stage, IntOf(rest)); }

// Without a text, what the clipboard holds.
void Paste(Play& play, std::string rest) {
  if (!rest.empty()) OfferText(Unescaped(TextArgument(rest)));
  PasteRows(play.stage);
}

// What another program has copied: text, the page that a spreadsheet offers beside it, or both.
void Clipboard(Play&, std::string rest) {
  const std::string kind = TakeWord(rest);
  const std::vector<std::string> words = Words(rest);
  if (kind == "text" && !rest.empty())
    OfferText(Unescaped(TextArgument(rest)));
  else if (kind == "html" && words.size() == 1)
    OfferHtml(words[0], nullptr);
  else if (kind == "both" && words.size() == 2)
    OfferHtml(words[1], &words[0]);
  else
    throw Failure("clipboard wants text TEXT, html HTML or both TEXT HTML");
}

void Bar(Play& play, std::string rest) {
  const Target bar = TakeTarget(play, rest);
  MoveBar(play.stage, bar, IntOf(rest));
}

void PlotClick(Play& play, std::string rest) {
  const double x = NumberOf(TakeWord(rest));
  ClickPicture(play.stage, x, NumberOf(rest));
}

}  // namespace

const CommandTable& FieldCommands() {
  static const CommandTable table = {
      {"click", ClickOn},
      {"type", TypeAndLeave},
      {"enter", TypeAndEnter},
      {"pick", PickEntry},
      {"up", Up},
      {"down", Down},
      {"key", Key},
      {"access", Access},
      {"bar", Bar},
      {"plotclick", PlotClick},
      {"cell", Cell},
      {"addrow", AddARow},
      {"delrow", DeleteTheRow},
      {"row", Row},
      {"edit", Edit},
      {"paste", Paste},
      {"clipboard", Clipboard},
  };
  return table;
}

}  // namespace drive
