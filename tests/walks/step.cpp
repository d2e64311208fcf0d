#include "tests/walks/step.h"

#include <algorithm>

#include "drive/text.h"

namespace walks {
namespace {

const char* NameOf(screen::Answer answer) {
  switch (answer) {
    case screen::Answer::Ok:
      return "ok";
    case screen::Answer::Cancel:
      return "cancel";
    case screen::Answer::Yes:
      return "yes";
    case screen::Answer::Save:
      return "save";
    case screen::Answer::Discard:
      return "discard";
    default:
      return "no";
  }
}

// Answers that the boxes get anyhow need no line.
std::size_t NeededAnswers(const Step& step) {
  std::size_t needed = 0;
  for (std::size_t i = 0; i < step.answers.size(); ++i)
    if (step.answers[i] != step.boxes[i].defaultAnswer) needed = i + 1;
  return needed;
}

}  // namespace

std::string Step::Command() const {
  std::string rest = meant.empty() ? lines.back() : meant;
  return drive::TakeWord(rest);
}

std::string Step::Rest() const {
  std::string rest = meant.empty() ? lines.back() : meant;
  drive::TakeWord(rest);
  return rest;
}

std::string LineWith(const std::string& command, const std::string& text) {
  const bool plain = !text.empty() && text.find_first_of(" #\"\r\n\t") == std::string::npos;
  return command + " " + (plain ? text : drive::Quoted(text));
}

std::string ScriptOf(const std::vector<Step>& steps) {
  std::string script;
  for (const Step& step : steps) {
    for (std::size_t i = 0; i < NeededAnswers(step); ++i)
      script += std::string("answer ") + NameOf(step.answers[i]) + "\n";
    if (step.asked && !step.file.empty()) script += LineWith("file", step.file) + "\n";
    for (const std::string& line : step.lines) script += line + "\n";
  }
  return script;
}

}  // namespace walks
