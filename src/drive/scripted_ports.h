#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "screen/ports.h"

namespace drive {

// Answers message boxes as the script has queued, or with their default button, and keeps them.
class ScriptedMessageBox final : public screen::MessageBox {
 public:
  struct Shown {
    screen::Message message;
    screen::Answer answer = screen::Answer::Ok;
  };

  void Queue(screen::Answer answer) { queue_.push_back(answer); }
  screen::Answer Show(const screen::Message& message) override;

  // The boxes since the last call.
  std::vector<Shown> Take();
  // What stood below the text of the last box.
  const std::string& Advice() const { return advice_; }
  // Why a queued answer could not be given since the last call; empty when all could.
  std::string TakeTrouble();

 private:
  std::deque<screen::Answer> queue_;
  std::vector<Shown> shown_;
  std::string advice_;
  std::string trouble_;
};

// Answers file dialogs as the script has queued; an unqueued one is cancelled.
class ScriptedFileDialog final : public screen::FileDialog {
 public:
  void Queue(std::string path) { queue_.push_back(std::move(path)); }
  std::string Ask(const Request& request) override;

 private:
  std::deque<std::string> queue_;
};

// Answers the questions about a table as the script has queued, and keeps them. An unqueued one is
// cancelled.
class ScriptedTableDialog final : public screen::TableDialog {
 public:
  struct Shown {
    Question question;
    std::optional<std::size_t> answer;
  };

  // A choice from 1 on; 0 cancels.
  void Queue(int choice) { queue_.push_back(choice); }
  std::optional<std::size_t> Ask(const Question& question) override;

  // The questions since the last call.
  std::vector<Shown> Take();
  // Why a queued answer could not be given since the last call; empty when all could.
  std::string TakeTrouble();

 private:
  std::deque<int> queue_;
  std::vector<Shown> shown_;
  std::string trouble_;
};

// Stands still, so that what a script shows is the same at every playing.
class StandingClock final : public screen::Clock {
 public:
  base::DateTime Now() const override { return {2024, 3, 7, 9, 5, 30}; }
};

// The answer with that name, or Failure.
screen::Answer AnswerByName(const std::string& name);
// The line by which a box is told.
std::string Line(const ScriptedMessageBox::Shown& box);
// The line by which a question about a table is told.
std::string Line(const ScriptedTableDialog::Shown& asked);

}  // namespace drive
