#include "tests/walks/walk.h"

#include "tests/walks/generator.h"
#include "tests/walks/output_watch.h"
#include "tests/walks/theatre.h"

namespace walks {
namespace {

// Looking at every widget after each step would take longer than all the rest.
constexpr std::size_t kWidgetsEvery = 20;
constexpr long kPaintedEvery = 10;

// One run of the program with the oracle beside it.
class Run {
 public:
  Run(const std::string& path, const std::set<std::string>& without, bool painted)
      : without_(without), folder_(path), theatre_(painted), page_(theatre_.Stage()) {
    before_ = Look(theatre_.Stage());
  }

  walks::Folder& Files() { return folder_; }
  Theatre& Stage() { return theatre_; }

  // False when a user could not do it.
  bool Do(Step& step, const Chooser& choose) {
    const bool done = theatre_.Perform(step, choose);
    const bool mismatch = theatre_.Trouble().find("its widget shows") != std::string::npos;
    if (!done && !mismatch) {
      before_ = Look(theatre_.Stage());
      return false;
    }
    outcome_.steps.push_back(step);
    if (mismatch) outcome_.finding = Finding{"widget", theatre_.Trouble()};
    return true;
  }

  void Check(const Step& step, Roads* roads, const Sought& sought, const Spot& spot) {
    const Seen after = Look(theatre_.Stage());
    ++outcome_.visits[after.form];
    Findings findings;
    const Scene scene{step, before_, after, findings};
    model_.Advance(scene);
    const View view{scene, model_, page_};
    if (sought) {
      if (sought(view)) outcome_.finding = Finding{"sought", {}};
    } else {
      CheckAll(view);
      output_.Check(view);
      if (roads && !findings.Any()) roads->Compare(view, spot);
      if (spot.steps % kWidgetsEvery == 0) CheckWidgets(view);
      for (const Finding& finding : findings.All())
        if (!outcome_.finding && !without_.contains(finding.rule)) outcome_.finding = finding;
    }
    outcome_.numbers += findings.Compared();
    before_ = after;
  }

  bool Over() const { return outcome_.finding.has_value(); }
  Outcome Result() const { return outcome_; }

 private:
  const std::set<std::string>& without_;
  walks::Folder folder_;
  Theatre theatre_;
  Page page_;
  Model model_{folder_};
  OutputWatch output_;
  Seen before_;
  Outcome outcome_;
};

// The answers that were given when the step was first played; behind them the default ones.
class Again {
 public:
  explicit Again(const Step& step) : answers_(step.answers) {}
  screen::Answer operator()(const screen::Message& message) {
    const bool known = at_ < answers_.size() && Offers(message.buttons, answers_[at_]);
    const screen::Answer answer = known ? answers_[at_] : message.defaultAnswer;
    ++at_;
    // Behind a Yes or OK about unsaved changes another question comes, and keeps the program there.
    const auto staying = StayingAnswer(message);
    return staying && message.advice.empty() ? *staying : answer;
  }

 private:
  std::vector<screen::Answer> answers_;
  std::size_t at_ = 0;
};

}  // namespace

Outcome Walker::Walk(long seed, std::size_t steps, Roads* roads) {
  Run run(folder_, without_, seed % kPaintedEvery == 0);
  Random random(static_cast<std::uint64_t>(seed));
  Generator generator(run.Stage().Stage(), random, run.Files());
  const Chooser choose = [&](const screen::Message& box) { return generator.Choose(box); };
  std::size_t done = 0;
  for (std::size_t tries = 0; done < steps && tries < 3 * steps && !run.Over(); ++tries) {
    Step step = generator.Next();
    if (!run.Do(step, choose)) continue;
    ++done;
    if (!run.Over()) run.Check(step, roads, {}, {seed, done});
  }
  return run.Result();
}

Outcome Walker::Replay(const std::vector<Step>& steps, const Sought& sought) {
  Run run(folder_, without_, false);
  std::size_t done = 0;
  for (Step step : steps) {
    if (run.Over()) break;
    Again again(step);
    if (!run.Do(step, again)) continue;
    ++done;
    if (!run.Over()) run.Check(step, nullptr, sought, {0, done});
  }
  return run.Result();
}

}  // namespace walks
