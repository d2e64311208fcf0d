#include "tests/walks/report.h"

#include "tests/walks/shrink.h"

namespace walks {

void Report::Add(long seed, const Outcome& outcome, const Roads& roads) {
  ++walks_;
  done_ += outcome.steps.size();
  numbers_ += outcome.numbers;
  for (const auto& [form, count] : outcome.visits) visits_[form] += count;
  if (!outcome.finding) return;
  const Finding& finding = *outcome.finding;
  if (byRule_[finding.rule]++ >= each_) return;
  out_ << "\nFINDING " << finding.rule << " in walk " << seed << ", step " << outcome.steps.size()
       << ": " << finding.what << "\n";
  if (finding.rule == "two-roads")
    TellTwoRoads(outcome, roads);
  else
    TellOne(outcome);
}

int Report::Tell() const {
  out_ << "\nsteps on each screen:";
  for (const auto& [form, count] : visits_) out_ << " " << form << " " << count;
  out_ << "\n" << walks_ << " walks, " << done_ << " steps, " << numbers_ << " numbers compared";
  for (const auto& [rule, count] : byRule_) out_ << ", " << count << " " << rule;
  out_ << (byRule_.empty() ? ", no finding" : "") << std::endl;
  return byRule_.empty() ? 0 : 1;
}

void Report::TellOne(const Outcome& outcome) {
  const std::string& rule = outcome.finding->rule;
  std::string what;
  const Fails fails = [&](const std::vector<Step>& tried) {
    const Outcome again = walker_.Replay(tried);
    const bool same = again.finding && again.finding->rule == rule;
    if (same) what = again.finding->what;
    return same ? again.steps : std::vector<Step>();
  };
  std::vector<Step> steps = fails(outcome.steps);
  if (steps.empty()) {
    out_ << "It does not come again by itself; all its steps:\n";
    return TellScript(outcome.steps);
  }
  steps = Shrunk(steps, fails);
  out_ << "Shrunk to " << steps.size() << " steps: " << what << "\n";
  TellScript(steps);
}

// Either road is shrunk to what still leads to its side of the difference.
void Report::TellTwoRoads(const Outcome& outcome, const Roads& roads) {
  const Roads::Sight& sight = roads.Difference();
  const Roads::Shown& other = roads.Other();
  std::vector<Step> road = outcome.steps;
  out_ << "One road:\n";
  TellScript(ShrunkRoad(road, sight, sight.text));
  road = walker_.Walk(other.spot.seed, other.spot.steps, nullptr).steps;
  out_ << "The other, from walk " << other.spot.seed << ":\n";
  TellScript(ShrunkRoad(road, sight, other.text));
}

std::vector<Step> Report::ShrunkRoad(const std::vector<Step>& steps, const Roads::Sight& sight,
                                     const std::string& text) {
  const Sought arrives = [&](const View& view) {
    for (const Roads::Sight& seen : Roads::SightsOf(view))
      if (seen.key == sight.key && seen.control == sight.control && seen.text == text) return true;
    return false;
  };
  return Shrunk(steps, [&](const std::vector<Step>& tried) {
    const Outcome again = walker_.Replay(tried, arrives);
    return again.finding ? again.steps : std::vector<Step>();
  });
}

void Report::TellScript(const std::vector<Step>& steps) {
  const Folder fresh(walker_.FolderPath());
  out_ << "# cd " << fresh.Path() << ", then valkorin-drive with this script\n"
       << ScriptOf(steps) << std::flush;
}

}  // namespace walks
