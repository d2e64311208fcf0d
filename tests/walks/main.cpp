// valkorin-walk [--first SEED] [--walks N] [--steps N] [--folder PATH] [--all]: random walks over
// the program in its window, each by its seed. The first finding is shrunk and told as a session
// script, and ends the run; with --all every walk is played, and of each rule the first finding is
// told.

#include <QApplication>

#include <clocale>
#include <filesystem>
#include <iostream>
#include <set>
#include <string>

#include "tests/walks/report.h"
#include "tests/walks/walk.h"

namespace {

struct Options {
  long first = 1;
  long walks = 10;
  std::size_t steps = 300;
  std::string folder = "walks";
  int each = 1;
  bool all = false;
  std::set<std::string> without;
};

Options Read(const QStringList& words) {
  Options options;
  for (qsizetype i = 1; i < words.size(); ++i) {
    const bool value = i + 1 < words.size();
    if (words[i] == QLatin1String("--all")) options.all = true;
    if (!value) continue;
    if (words[i] == QLatin1String("--first")) options.first = words[++i].toLong();
    if (words[i] == QLatin1String("--walks")) options.walks = words[++i].toLong();
    if (words[i] == QLatin1String("--steps")) options.steps = words[++i].toULong();
    if (words[i] == QLatin1String("--without")) options.without.insert(words[++i].toStdString());
    if (words[i] == QLatin1String("--each")) options.each = words[++i].toInt();
    if (words[i] == QLatin1String("--folder")) options.folder = words[++i].toStdString();
  }
  options.folder = std::filesystem::absolute(options.folder);
  return options;
}

int PlayAll(const Options& options) {
  walks::Walker walker(options.folder, options.without);
  walks::Report report(walker, options.each, std::cout);
  walks::Roads roads;
  std::cout << "walks " << options.first << " to " << options.first + options.walks - 1 << ", of "
            << options.steps << " steps each" << std::endl;
  for (long seed = options.first; seed < options.first + options.walks; ++seed) {
    const walks::Outcome outcome = walker.Walk(seed, options.steps, &roads);
    report.Add(seed, outcome, roads);
    if (outcome.finding && !options.all) break;
  }
  return report.Tell();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  return PlayAll(Read(QApplication::arguments()));
}
