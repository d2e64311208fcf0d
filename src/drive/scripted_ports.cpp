#include "drive/scripted_ports.h"

#include <utility>

#include "drive/failure.h"
#include "drive/text.h"

namespace drive {
namespace {

using screen::Answer;
using screen::Buttons;
using screen::Icon;

const char* Name(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "ok";
    case Answer::Cancel:
      return "cancel";
    case Answer::Yes:
      return "yes";
    case Answer::No:
      return "no";
    case Answer::Save:
      return "save";
    case Answer::Discard:
      return "discard";
    case Answer::Print:
      return "print";
    case Answer::Keep:
      return "keep";
    case Answer::Drop:
      return "drop";
  }
  return "?";
}

const char* Name(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return "ok";
    case Buttons::OkCancel:
      return "ok-cancel";
    case Buttons::YesNo:
      return "yes-no";
    case Buttons::YesNoCancel:
      return "yes-no-cancel";
    case Buttons::SaveDiscardCancel:
      return "save-discard-cancel";
    case Buttons::PrintKeepDropCancel:
      return "print-keep-drop-cancel";
  }
  return "?";
}

const char* Name(Icon icon) {
  switch (icon) {
    case Icon::None:
      return "none";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Question:
      return "question";
    case Icon::Information:
      return "information";
  }
  return "?";
}

bool Offers(Buttons buttons, Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return buttons == Buttons::Ok || buttons == Buttons::OkCancel;
    case Answer::Cancel:
      return buttons == Buttons::OkCancel || buttons == Buttons::YesNoCancel ||
             buttons == Buttons::SaveDiscardCancel || buttons == Buttons::PrintKeepDropCancel;
    case Answer::Yes:
    case Answer::No:
      return buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel;
    case Answer::Save:
    case Answer::Discard:
      return buttons == Buttons::SaveDiscardCancel;
    case Answer::Print:
    case Answer::Keep:
    case Answer::Drop:
      return buttons == Buttons::PrintKeepDropCancel;
  }
  return false;
}

}  // namespace

Answer ScriptedMessageBox::Show(const screen::Message& message) {
  Answer answer = message.defaultAnswer;
  if (!queue_.empty()) {
    const Answer queued = queue_.front();
    queue_.pop_front();
    if (Offers(message.buttons, queued)) {
      answer = queued;
    } else {
      trouble_ = std::string("the answer ") + Name(queued) + " does not fit the box " +
                 Quoted(message.text) + ", which has the buttons " + Name(message.buttons);
    }
  }
  shown_.push_back({message, answer});
  advice_ = message.advice;
  return answer;
}

std::vector<ScriptedMessageBox::Shown> ScriptedMessageBox::Take() {
  return std::exchange(shown_, {});
}

std::string ScriptedMessageBox::TakeTrouble() { return std::exchange(trouble_, {}); }

std::string ScriptedFileDialog::Ask(const Request&) {
  if (queue_.empty()) return {};
  std::string path = std::move(queue_.front());
  queue_.pop_front();
  return path;
}

std::optional<std::size_t> ScriptedTableDialog::Ask(const Question& question) {
  const int choice = queue_.empty() ? 0 : queue_.front();
  if (!queue_.empty()) queue_.pop_front();
  std::optional<std::size_t> answer;
  if (choice > static_cast<int>(question.choices.size()))
    trouble_ = "the choice " + IntText(choice) + " is not among those of " + Quoted(question.text);
  else if (choice > 0)
    answer = static_cast<std::size_t>(choice - 1);
  shown_.push_back({question, answer});
  return answer;
}

std::vector<ScriptedTableDialog::Shown> ScriptedTableDialog::Take() {
  return std::exchange(shown_, {});
}

std::string ScriptedTableDialog::TakeTrouble() { return std::exchange(trouble_, {}); }

Answer AnswerByName(const std::string& name) {
  for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No, Answer::Save,
                              Answer::Discard, Answer::Print, Answer::Keep, Answer::Drop})
    if (name == Name(answer)) return answer;
  throw Failure("no such answer: " + Quoted(name));
}

std::string Line(const ScriptedMessageBox::Shown& box) {
  const screen::Message& message = box.message;
  return "box " + Quoted(message.title) + " " + Quoted(message.text) + " " + Name(message.icon) +
         " " + Name(message.buttons) + " -> " + Name(box.answer);
}

std::string Line(const ScriptedTableDialog::Shown& asked) {
  std::string line = "question " + Quoted(asked.question.text);
  for (const std::string& choice : asked.question.choices) line += " " + Quoted(choice);
  if (asked.question.proposed)
    line += " proposed " + IntText(static_cast<int>(*asked.question.proposed) + 1);
  return line + " -> " +
         (asked.answer ? IntText(static_cast<int>(*asked.answer) + 1) : std::string("cancel"));
}

}  // namespace drive
