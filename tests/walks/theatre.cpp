#include "tests/walks/theatre.h"

#include <exception>

#include "catalog/catalog.h"
#include "drive/text.h"

namespace walks {

using screen::Answer;
using screen::Buttons;

bool Offers(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::Ok:
      return answer == Answer::Ok;
    case Buttons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    case Buttons::SaveDiscardCancel:
      return answer == Answer::Save || answer == Answer::Discard || answer == Answer::Cancel;
    case Buttons::PrintKeepDropCancel:
      return answer == Answer::Print || answer == Answer::Keep || answer == Answer::Drop ||
             answer == Answer::Cancel;
    default:
      return answer == Answer::Yes || answer == Answer::No || answer == Answer::Cancel;
  }
}

std::optional<Answer> StayingAnswer(const screen::Message& message) {
  constexpr int kExit = 210;
  if (message.title != LoadResString(kExit)) return std::nullopt;
  return message.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

Answer ChosenBox::Show(const screen::Message& message) {
  const Answer chosen = choose ? choose(message) : message.defaultAnswer;
  kept_.Queue(chosen);
  return kept_.Show(message);
}

std::string ChosenFile::Ask(const Request&) {
  asked = true;
  return path;
}

Theatre::Theatre(bool painted) {
  application_.Start();
  stage_.Open();
  stage_.Window().setUpdatesEnabled(painted);
}

bool Theatre::Perform(Step& step, const Chooser& choose) {
  step.boxes.clear();
  step.answers.clear();
  box_.choose = choose;
  file_.path = step.file;
  file_.asked = false;
  trouble_.clear();
  try {
    for (const std::string& line : step.lines) {
      drive::Command command{1, {}, line};
      command.name = drive::TakeWord(command.rest);
      drive::PlayCommand(play_, command);
    }
  } catch (const std::exception& failure) {
    trouble_ = failure.what();
  }
  step.asked = file_.asked;
  for (const auto& shown : kept_.Take()) {
    step.boxes.push_back(shown.message);
    step.answers.push_back(shown.answer);
  }
  out_.str({});
  step.printed = printer_.Take();
  tables_.Take();
  return trouble_.empty();
}

}  // namespace walks
