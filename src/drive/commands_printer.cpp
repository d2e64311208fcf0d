// What a script says of the printer, and asks of what it has printed.
#include <algorithm>

#include "drive/failure.h"
#include "drive/player.h"
#include "drive/text.h"

namespace drive {
namespace {

void PrintTo(Play& play, std::string rest) {
  play.printer.PrintTo(rest == "-" ? "" : TextArgument(rest));
}

void Printer(Play& play, std::string rest) {
  if (rest.empty()) throw Failure("printer wants a name, cancel, none, there, refuses or works");
  if (rest == "none" || rest == "there")
    play.printer.SetThere(rest == "there");
  else if (rest == "refuses" || rest == "works")
    play.printer.SetRefusing(rest == "refuses");
  else if (rest == "cancel")
    play.printer.Queue(std::nullopt);
  else
    play.printer.Queue(TextArgument(rest));
}

void Printed(Play& play, std::string) {
  for (const std::string& line : play.printer.Take()) play.Say("printed " + Quoted(line));
}

// Of all that was printed since the last such command.
void ExpectPrinted(Play& play, std::string rest) {
  const std::vector<std::string> lines = play.printer.Take();
  if (rest == "nothing") {
    if (!lines.empty()) throw Failure("printed was " + Quoted(lines.front()));
    return;
  }
  const std::string wanted = TextArgument(rest);
  std::string all;
  for (const std::string& line : lines) all += "\n  " + Quoted(line);
  const bool found = std::ranges::any_of(
      lines, [&](const std::string& line) { return line.find(wanted) != std::string::npos; });
  if (!found) throw Failure("not printed: " + rest + "; but" + all);
}

}  // namespace

const CommandTable& PrinterCommands() {
  static const CommandTable table = {
      {"printto", PrintTo},
      {"printer", Printer},
      {"printed", Printed},
      {"expect-printed", ExpectPrinted},
  };
  return table;
}

}  // namespace drive
