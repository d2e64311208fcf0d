#pragma once

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drive/failure.h"
#include "drive/record_fields.h"
#include "drive/text.h"
#include "screen/ports.h"
#include "session/exposure_session.h"
#include "session/global_bas.h"

namespace drive {

inline constexpr std::string_view kRecord = "session.";

// One call: where the arguments come from, and what is told after it.
class Call {
 public:
  Call(ExposureSession& record, screen::MessageBox& messageBox, std::vector<std::string> words)
      : s(record), messageBox_(messageBox), words_(std::move(words)) {}

  ExposureSession& s;

  const std::string& Text(std::size_t i) const { return words_[i]; }
  double Number(std::size_t i) { return Ref(i); }
  int Int(std::size_t i) const { return IntOf(words_[i]); }
  // An argument by reference: a number of its own, or the record's field.
  double& Ref(std::size_t i) {
    if (words_[i].starts_with(kRecord)) {
      double* field = DoubleField(s, words_[i].substr(kRecord.size()));
      if (!field) throw Failure(words_[i] + " is no number of the record");
      return *field;
    }
    return numbers_.emplace_back(NumberOf(words_[i]));
  }
  std::optional<double> Optional(std::size_t i) {
    return words_[i] == "empty" ? std::nullopt : std::optional(Number(i));
  }
  GlobalBAS::Notify Notify() {
    return [this](const GlobalBAS::Complaint& complaint) {
      messageBox_.Show({complaint.text, complaint.title, screen::Icon::Exclamation,
                        screen::Buttons::Ok, screen::Answer::Ok, complaint.advice});
    };
  }

  void Tell(double value) { Word(NumberText(value)); }
  void Tell(const std::optional<double>& value) { Word(value ? NumberText(*value) : "empty"); }
  void Tell(const std::string& text) { Word(Quoted(text)); }
  void Tell(int value) { Word(IntText(value)); }
  void Tell(bool value) { Word(value ? "1" : "0"); }
  std::string Told() const { return told_.empty() ? "done" : told_; }

 private:
  void Word(const std::string& word) { told_ += (told_.empty() ? "" : " ") + word; }

  screen::MessageBox& messageBox_;
  std::vector<std::string> words_;
  std::deque<double> numbers_;  // a deque, so that references stay good
  std::string told_;
};

// A routine that scripts can call.
struct Routine {
  std::string_view name;
  std::size_t arguments;
  std::function<void(Call&)> run;
  std::vector<std::string> own = {};  // the record's fields that stand in for arguments left out
};

template <auto F, std::size_t... I>
void CallWith(Call& c, std::index_sequence<I...>) {
  const std::array<double*, sizeof...(I)> arguments = {&c.Ref(I)...};
  c.Tell(F(*arguments[I]...));
  for (const double* argument : arguments) c.Tell(*argument);
}
// A routine on numbers: its value is told, and the arguments as they stand behind it; one that
// takes them by reference may have changed them.
template <auto F, std::size_t count>
void OnNumbers(Call& c) {
  CallWith<F>(c, std::make_index_sequence<count>());
}

template <void (*F)(ExposureSession&)>
void OnTheRecord(Call& c) {
  F(c.s);
}

// The routines of each group.
const std::vector<Routine>& DistributionRoutines();
const std::vector<Routine>& FitRoutines();
const std::vector<Routine>& ComplianceRoutines();
const std::vector<Routine>& MeanRoutines();

}  // namespace drive
