#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <chrono>
#include <cstring>
#include <filesystem>

#include "bench/calculations.h"
#include "bench/desktop.h"
#include "bench/raw_series.h"

// How long the user waits, measured on the real window: from the start of the process to the
// first screen, from the choice of a file to its screen, and from a tab to its screen.
namespace {

using bench::Desktop;
using bench::Paint;
using workflow::ScreenId;

constexpr const char* kStartOnly = "--start-only";

// The child of StartToFirstScreen: the program's own start, up to its first painted screen.
int StartOnly(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  bench::SilentMessageBox messageBox;
  bench::OneFile fileDialog;
  bench::StandingClock clock;
  bench::NoPrinter printer;
  bench::SilentTableDialog tableDialog;
  ui::Application application({messageBox, fileDialog, clock, printer, tableDialog});
  application.Start();
  Paint(application);
  _exit(application.Window().isVisible() ? 0 : 1);
}

void StartToFirstScreen(benchmark::State& state) {
  for (auto _ : state) {
    std::string self = "/proc/self/exe";
    std::string option = kStartOnly;
    char* arguments[] = {self.data(), option.data(), nullptr};
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = -1;
    if (posix_spawn(&child, self.c_str(), nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(child, &status, 0) != child || status != 0) {
      state.SkipWithError("the program did not start");
      return;
    }
    state.SetIterationTime(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
  }
}
BENCHMARK(StartToFirstScreen)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(40);

void OpenFileToItsScreen(benchmark::State& state) {
  const bench::RawSeriesFile file(static_cast<int>(state.range(0)));
  Desktop desktop;
  for (auto _ : state) {
    desktop.Open(file.Path());
    state.PauseTiming();
    desktop.Menu("Menuclose");
    state.ResumeTiming();
  }
}
BENCHMARK(OpenFileToItsScreen)->Arg(40)->Arg(2000)->Unit(benchmark::kMillisecond);

// Rows as a spreadsheet offers them: a header, a date, the outcome with a decimal comma, its unit.
QString SpreadsheetRows(int rows) {
  QString text = QStringLiteral("Date\tResult\tUnit\r\n");
  for (int i = 1; i <= rows; ++i)
    text += QStringLiteral("12-03-2024\t%1,%2\tmg/m3\r\n").arg(i % 7).arg(1 + i * 7919 % 9973);
  return text;
}

// From the menu item over the clipboard, the reading, the sort and the statistics to the painted
// table, whose rows are all replaced.
void PasteColumn(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const bench::RawSeriesFile file(rows);
  Desktop desktop;
  desktop.Open(file.Path());
  QGuiApplication::clipboard()->setText(SpreadsheetRows(rows));
  auto& grid = static_cast<screen::Grid&>(*desktop.application.Program().Shown().Find("DBGridVkr"));
  for (auto _ : state) {
    state.PauseTiming();
    grid.currentRow = 0;
    ++grid.revision;
    desktop.application.Window().ShowState();
    Paint(desktop.application);
    state.ResumeTiming();
    desktop.Menu("MenuPaste");
    if (grid.currentRow != rows) {
      state.SkipWithError("the rows were not pasted over");
      break;
    }
  }
}
BENCHMARK(PasteColumn)->Arg(40)->Arg(2000)->Unit(benchmark::kMillisecond);

// Each round comes from another screen, so that the window changes its page as it does for a tab.
void Activate(benchmark::State& state, ScreenId screen) {
  const bench::RawSeriesFile file(static_cast<int>(state.range(0)));
  Desktop desktop;
  desktop.Open(file.Path());
  desktop.application.Program().Session().OELV = 5;
  desktop.application.Program().Session().LimitsOk = true;
  const ScreenId other = screen == ScreenId::Descript ? ScreenId::Grenzen : ScreenId::Descript;
  desktop.Show(screen);
  for (auto _ : state) {
    state.PauseTiming();
    desktop.Show(other);
    state.ResumeTiming();
    desktop.Show(screen);
  }
}
BENCHMARK_CAPTURE(Activate, BasisForm, ScreenId::Basis)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, DataCtrlForm, ScreenId::DataCtrl)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, DescriptForm, ScreenId::Descript)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, PlotForm, ScreenId::Plot)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, GrenzenForm, ScreenId::Grenzen)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);

// One step of a limit that is dragged: line, test of fit, and the picture painted.
void DragLimit(benchmark::State& state) {
  const bench::RawSeriesFile file(static_cast<int>(state.range(0)));
  Desktop desktop;
  desktop.Open(file.Path());
  desktop.Show(ScreenId::Plot);
  desktop.Menu("MenuLowLim");
  auto* bar = desktop.application.Window().findChild<QScrollBar*>("VScLowLimit");
  const double first = desktop.application.Program().Session().LOQ;
  int step = 0;
  for (auto _ : state) {
    bar->setValue(60 + ++step % 30);
    Paint(desktop.application);
  }
  if (desktop.application.Program().Session().LOQ == first)
    state.SkipWithError("the limit did not move");
}
BENCHMARK(DragLimit)->Arg(40)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, PercExForm, ScreenId::PercEx)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, UCLForm, ScreenId::UCL)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Activate, TwoSampCompForm, ScreenId::TwoSamp)
    ->Arg(40)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);

// From the menu item over all results and the pages to the written file.
void ReportAsPdf(benchmark::State& state) {
  const bench::RawSeriesFile file(static_cast<int>(state.range(0)));
  Desktop desktop;
  desktop.Open(file.Path());
  ExposureSession& record = desktop.application.Program().Session();
  record.OELV = 5;
  record.LimitsOk = true;
  desktop.Show(ScreenId::Descript);
  desktop.fileDialog.path = file.Path() + ".pdf";
  for (auto _ : state) desktop.Menu("MenuDocument");
  if (!std::filesystem::remove(desktop.fileDialog.path))
    state.SkipWithError("no report was written");
}
BENCHMARK(ReportAsPdf)->Arg(40)->Arg(2000)->Unit(benchmark::kMillisecond);

// One press of a test's button with everything that it paints.
void TestInItsWindow(benchmark::State& state, const char* menu, void (*change)(ExposureSession&)) {
  const bench::RawSeriesFile file(40);
  Desktop desktop;
  desktop.Open(file.Path());
  ExposureSession& record = desktop.application.Program().Session();
  record.OELV = 5;
  record.LimitsOk = true;
  change(record);
  desktop.Show(ScreenId::PercEx);
  for (auto _ : state) desktop.Menu(menu);
}

void AsOpened(ExposureSession&) {}

// Of the sessions tried, the one whose searches show the most candidates, over a thousand.
void LongSearch(ExposureSession& record) {
  record.M = 2;
  record.df = 1;
  record.GM = 4367.7418110640838;
  record.GSD = 155.10860695839361;
  record.OELV = 183335087.35356015;
  record.U = 68.710356701452767;
  record.D = 0.01;
}
BENCHMARK_CAPTURE(TestInItsWindow, Leidel, "MenuLeid", AsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TestInItsWindow, Wilks, "MenuWilks", AsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TestInItsWindow, EN689, "MenuTugg", AsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TestInItsWindow, EN689LongSearch, "MenuTugg", LongSearch)
    ->Unit(benchmark::kMillisecond);

// A press of Land's button with everything that it paints, its progress window included.
void LandInItsWindow(benchmark::State& state) {
  Desktop desktop;
  ExposureSession& record = desktop.Record();
  const ExposureSession sample = bench::Known(static_cast<double>(state.range(0)), 2, 1);
  record.Mode = sample.Mode;
  record.Name = "Welders";
  record.M = sample.M;
  record.df = sample.df;
  record.GM = sample.GM;
  record.GSD = sample.GSD;
  record.OELV = sample.OELV;
  record.D = sample.D;
  record.IdentOk = record.DescOk = record.LimitsOk = true;
  desktop.Show(ScreenId::UCL);
  for (auto _ : state) desktop.Menu("MenuLand");
}
BENCHMARK(LandInItsWindow)
    ->Arg(3)
    ->Arg(10)
    ->Arg(40)
    ->Arg(300)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  // As users measure it, without the time of a real display.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 2 && std::strcmp(argv[1], kStartOnly) == 0) return StartOnly(argc, argv);
  QApplication toolkit(argc, argv);
  ui::PrepareToolkit();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
