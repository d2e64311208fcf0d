#include <string_view>

#include "drive/failure.h"
#include "drive/player.h"
#include "drive/record_fields.h"
#include "drive/routines.h"
#include "drive/text.h"

namespace drive {
namespace {

constexpr std::string_view kRecord = "session.";

void Set(Play& play, std::string rest) {
  const std::string name = TakeWord(rest);
  if (!name.starts_with(kRecord)) throw Failure("only session.FIELD can be set, not " + name);
  SetField(play.stage.Session(), name.substr(kRecord.size()), rest);
}

void Eval(Play& play, std::string rest) {
  const std::string routine = TakeWord(rest);
  play.Say(Evaluate(play.stage.Session(), play.boxes, routine, Words(rest)));
}

void Mask(Play& play, std::string rest) {
  const auto words = Words(rest);
  if (words.size() != 2) throw Failure("mask wants a value and a number of digits");
  play.Say(MaskLine(words[0], words[1]));
}

}  // namespace

const CommandTable& RecordCommands() {
  static const CommandTable table = {{"set", Set}, {"eval", Eval}, {"mask", Mask}};
  return table;
}

}  // namespace drive
