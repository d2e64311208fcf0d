#include <QApplication>
#include <QFont>
#include <QPixmap>

#include "drive/failure.h"
#include "drive/hands.h"
#include "drive/palettes.h"
#include "drive/player.h"
#include "drive/text.h"

namespace drive {
namespace {

void File(Play& play, std::string rest) {
  const std::string path = TextArgument(rest);
  if (path.empty()) throw Failure("file wants a path, or - to cancel the dialog");
  play.files.Queue(path == "-" ? "" : path);
}

void Answer(Play& play, std::string rest) { play.boxes.Queue(AnswerByName(rest)); }

void Choose(Play& play, std::string rest) {
  const int choice = rest == "cancel" ? 0 : IntOf(rest);
  if (rest != "cancel" && choice < 1)
    throw Failure("choose wants the number of a choice, or cancel");
  play.tables.Queue(choice);
}

void FormName(Play& play, std::string) { play.Say("form = " + play.stage.Shown().name); }

void Menu(Play& play, std::string rest) { ChooseMenu(play.stage, play.stage.Find(rest)); }

void Tab(Play& play, std::string rest) { ClickTab(play.stage, rest); }

void Shot(Play& play, std::string rest) {
  const std::string form = rest.starts_with("ReportForm ") ? TakeWord(rest) : std::string();
  const std::string file = TextArgument(rest);
  QWidget* window = &play.stage.Window();
  if (!form.empty()) window = window->findChild<QWidget*>(QString::fromStdString(form));
  if (!window || !window->grab().save(QString::fromStdString(file), "PNG"))
    throw Failure("the picture can't be saved as " + file);
}

void Quit(Play& play, std::string) { play.stage.Close(); }

std::string TitleText(Play& play) {
  QString title = play.stage.Window().windowTitle();
  title.replace("[*]", play.stage.Window().isWindowModified() ? "*" : "");
  return title.toStdString();
}

void Title(Play& play, std::string) { play.Say("title = " + Quoted(TitleText(play))); }

void ExpectTitle(Play& play, std::string rest) {
  const std::string title = TitleText(play);
  if (title != TextArgument(rest)) throw Failure("the title is " + Quoted(title));
}

void Size(Play& play, std::string rest) {
  const std::string width = TakeWord(rest);
  play.stage.Window().resize(IntOf(width), IntOf(rest));
  play.stage.Settle();
}

void Palette(Play& play, std::string rest) {
  const QPalette* palette = PaletteByName(rest);
  if (!palette) throw Failure("no palette " + rest);
  QApplication::setPalette(*palette);
  play.stage.Settle();
}

void Font(Play& play, std::string rest) {
  const int points = IntOf(rest);
  if (points < 1) throw Failure("a font is at least 1 point large");
  QFont font = QApplication::font();
  font.setPointSize(points);
  QApplication::setFont(font);
  play.stage.Settle();
}

}  // namespace

const CommandTable& WindowCommands() {
  static const CommandTable table = {
      {"file", File},     {"answer", Answer},
      {"choose", Choose}, {"form", FormName},
      {"menu", Menu},     {"tab", Tab},
      {"shot", Shot},     {"quit", Quit},
      {"title", Title},   {"expect-title", ExpectTitle},
      {"size", Size},     {"palette", Palette},
      {"font", Font},
  };
  return table;
}

}  // namespace drive
