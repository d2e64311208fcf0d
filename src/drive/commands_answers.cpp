#include <QClipboard>
#include <QGuiApplication>
#include <QTabBar>

#include <optional>
#include <string_view>

#include "drive/failure.h"
#include "drive/grid_hands.h"
#include "drive/hands.h"
#include "drive/legible.h"
#include "drive/look.h"
#include "drive/player.h"
#include "drive/record_fields.h"
#include "drive/text.h"
#include "screen/picture.h"

namespace drive {
namespace {

constexpr std::string_view kRecord = "session.";

// NAME(ROW,COL) of a table; nullopt for any other name.
struct CellName {
  Target grid;
  int row = 0;
  int column = 0;
};
std::optional<CellName> CellOf(Play& play, const std::string& name) {
  const std::size_t open = name.find('(');
  const std::size_t comma = name.find(',', open == std::string::npos ? name.size() : open);
  if (comma == std::string::npos || name.back() != ')') return std::nullopt;
  CellName cell{play.stage.Find(name.substr(0, open))};
  cell.row = IntOf(name.substr(open + 1, comma - open - 1));
  cell.column = IntOf(name.substr(comma + 1, name.size() - comma - 2));
  return cell;
}

Look LookByName(Play& play, const std::string& name) {
  if (const auto cell = CellOf(play, name))
    return TextLook(CellText(play.stage, cell->grid, cell->row, cell->column));
  return LookOf(play.stage, play.stage.Find(name));
}

// How much a drawing holds.
std::string PictureMarks(const drawing::DrawingRecord& drawing) {
  int lines = 0;
  int dots = 0;
  int texts = 0;
  for (const auto& item : drawing.Items()) {
    lines += std::holds_alternative<drawing::DrawnLine>(item);
    dots += std::holds_alternative<drawing::DrawnDot>(item);
    texts += std::holds_alternative<drawing::DrawnText>(item);
  }
  return " lines(" + IntText(lines) + ") dots(" + IntText(dots) + ") texts(" + IntText(texts) + ")";
}

std::string LineByName(Play& play, const std::string& name) {
  std::string line = Line(name, LookByName(play, name));
  if (CellOf(play, name)) return line;
  const screen::Control& control = *play.stage.Find(name).control;
  if (control.kind == screen::Kind::Grid)
    line += " rows(" + IntText(static_cast<const screen::Grid&>(control).rowCount) + ")";
  if (control.kind == screen::Kind::ScrollBar) line += " value(" + IntText(control.value) + ")";
  if (control.kind == screen::Kind::Picture)
    line += PictureMarks(static_cast<const screen::Picture&>(control).drawing);
  return line;
}

void Get(Play& play, std::string rest) {
  const std::string name = TakeWord(rest);
  if (name.starts_with(kRecord)) {
    const std::string field = name.substr(kRecord.size());
    play.Say(name + " = " + FieldText(play.stage.Session(), field));
  } else {
    play.Say(LineByName(play, name));
  }
}

void Expect(Play& play, std::string rest) {
  const std::string name = TakeWord(rest);
  if (name.starts_with(kRecord)) {
    ExpectField(play.stage.Session(), name.substr(kRecord.size()), rest);
    return;
  }
  const std::string shown = LookByName(play, name).text;
  if (rest.empty() || rest[0] != '"') throw Failure("expect wants a text in quotes");
  if (shown != TextArgument(rest) && Quoted(shown) != rest)
    throw Failure(name + " is " + Quoted(shown) + ", expected " + rest);
}

void ExpectHidden(Play& play, std::string rest) {
  if (!LookByName(play, rest).hidden) throw Failure(rest + " is visible");
}

void ExpectVisible(Play& play, std::string rest) {
  if (LookByName(play, rest).hidden) throw Failure(rest + " is hidden");
}

// The whole line of `get`, so that every mark of a control can be checked.
void ExpectLine(Play& play, std::string rest) {
  std::string name = rest;
  name = TakeWord(name);
  const std::string line = LineByName(play, name);
  if (line != rest) throw Failure(line + ", expected " + rest);
}

// The live line, as its widget shows it.
Look LiveLine(Play& play) { return LookByName(play, "StatusLbl"); }

void TellLine(Play& play, std::string rest) {
  const Look line = LiveLine(play);
  if (rest.empty())
    play.Say("line = " + Quoted(line.text) + (line.colour ? " band" : ""));
  else if (line.text != TextArgument(rest))
    throw Failure("the line is " + Quoted(line.text) + ", expected " + rest);
}

void LineHolds(Play& play, std::string rest) {
  const std::string line = LiveLine(play).text;
  if (line.find(TextArgument(rest)) == std::string::npos)
    throw Failure("the line is " + Quoted(line) + ", expected " + rest + " in it");
}

void LineLacks(Play& play, std::string rest) {
  const std::string line = LiveLine(play).text;
  if (line.find(TextArgument(rest)) != std::string::npos)
    throw Failure("the line is " + Quoted(line) + ", not expected " + rest + " in it");
}

void ExpectBand(Play& play, std::string rest) {
  const bool band = LiveLine(play).colour.has_value();
  if (band != (rest != "none")) throw Failure(band ? "the line is a band" : "the line is no band");
}

// Which tabs are closed, by their keys.
void ExpectClosed(Play& play, std::string rest) {
  std::string closed;
  screen::TabStrip* strip = play.stage.Shown().strip;
  if (strip) LookOf(play.stage, {&play.stage.Shown(), strip});  // the strip shows what it is to
  for (const screen::Tab& tab : strip ? strip->tabs : std::vector<screen::Tab>())
    if (!tab.closed.empty()) closed += (closed.empty() ? "" : " ") + tab.key;
  if (closed != rest) throw Failure("closed are: " + closed + ", expected " + rest);
}

void ExpectForm(Play& play, std::string rest) {
  const std::string& shown = play.stage.Shown().name;
  if (shown != rest) throw Failure("the screen is " + shown + ", expected " + rest);
}

void ExpectEnded(Play& play, std::string) {
  if (!play.stage.Ended()) throw Failure("the program is still there");
}

void Legible(Play& play, std::string) {
  for (const QString& trouble : Illegible(play.stage.Window()))
    play.Say("illegible " + trouble.toStdString());
}

// All that can't be read, in one failure.
void ExpectLegible(Play& play, std::string) {
  QString troubles;
  for (const QString& trouble : Illegible(play.stage.Window())) troubles += "\n  " + trouble;
  if (!troubles.isEmpty())
    throw Failure(play.stage.Shown().name + " can't be read:" + troubles.toStdString());
}

void Focus(Play& play, std::string) { play.Say("focus = " + Focused(play.stage)); }

void ExpectFocus(Play& play, std::string rest) {
  const std::string focused = Focused(play.stage);
  if (focused != rest) throw Failure("the focus is on " + focused + ", expected " + rest);
}

void Box(Play& play, std::string) {
  for (const auto& box : play.boxes.Take()) play.Say(Line(box));
}

// The one box since the last, as `box` prints it behind its first word.
void ExpectBox(Play& play, std::string rest) {
  std::string boxes;
  for (const auto& box : play.boxes.Take()) boxes += (boxes.empty() ? "" : "; ") + Line(box);
  if (boxes != "box " + rest) throw Failure("met " + boxes + ", expected box " + rest);
}

void ExpectNoBox(Play& play, std::string) {
  const auto boxes = play.boxes.Take();
  if (!boxes.empty()) throw Failure("met " + Line(boxes.front()));
}

void Advice(Play& play, std::string) { play.Say("advice = " + Quoted(play.boxes.Advice())); }

void ExpectAdvice(Play& play, std::string rest) {
  const std::string& advice = play.boxes.Advice();
  if (advice != TextArgument(rest)) throw Failure("the last box advised " + Quoted(advice));
}

void Question(Play& play, std::string) {
  for (const auto& asked : play.tables.Take()) play.Say(Line(asked));
}

void ExpectQuestion(Play& play, std::string rest) {
  std::string asked;
  for (const auto& one : play.tables.Take()) asked += (asked.empty() ? "" : "; ") + Line(one);
  if (asked != "question " + rest) throw Failure("met " + asked + ", expected question " + rest);
}

void ExpectClipboard(Play&, std::string rest) {
  const std::string text = QGuiApplication::clipboard()->text().toStdString();
  if (text != TextArgument(rest) && Quoted(text) != rest)
    throw Failure("the clipboard holds " + Quoted(text) + ", expected " + rest);
}

void DumpTabs(Play& play, const screen::TabStrip& strip) {
  const QTabBar& shown = play.stage.Strip();
  for (std::size_t i = 0; i < strip.tabs.size(); ++i) {
    const screen::Tab& tab = strip.tabs[i];
    std::string line = "tab " + tab.key + " = " + Quoted(tab.caption);
    if (shown.currentIndex() == static_cast<int>(i)) line += " selected";
    if (!tab.closed.empty()) line += " closed";
    play.Say(line);
  }
}

void Dump(Play& play, std::string) {
  screen::Form& form = play.stage.Shown();
  for (screen::Control* control : form.controls) {
    if (control->kind == screen::Kind::CommonDialog) continue;
    const Look look = LookOf(play.stage, {&form, control});
    if (look.hidden) continue;
    if (control->kind == screen::Kind::Menu) {
      if (!look.disabled) play.Say("menu " + Line(control->name, look));
    } else if (control == form.strip) {
      DumpTabs(play, *form.strip);
    } else {
      play.Say(LineByName(play, control->name));
    }
  }
}

}  // namespace

const CommandTable& AnswerCommands() {
  static const CommandTable table = {
      {"get", Get},
      {"expect", Expect},
      {"expect-hidden", ExpectHidden},
      {"expect-visible", ExpectVisible},
      {"expect-line", ExpectLine},
      {"line", TellLine},
      {"line-holds", LineHolds},
      {"line-lacks", LineLacks},
      {"expect-band", ExpectBand},
      {"expect-closed", ExpectClosed},
      {"expect-form", ExpectForm},
      {"expect-ended", ExpectEnded},
      {"legible", Legible},
      {"expect-legible", ExpectLegible},
      {"focus", Focus},
      {"expect-focus", ExpectFocus},
      {"box", Box},
      {"expect-box", ExpectBox},
      {"expect-no-box", ExpectNoBox},
      {"advice", Advice},
      {"expect-advice", ExpectAdvice},
      {"question", Question},
      {"expect-question", ExpectQuestion},
      {"expect-clipboard", ExpectClipboard},
      {"dump", Dump},
  };
  return table;
}

}  // namespace drive
