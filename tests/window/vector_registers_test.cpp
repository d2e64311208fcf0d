#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPushButton>

#include <optional>

#if defined(__x86_64__)
#include <cpuid.h>
#include <immintrin.h>
#endif

#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"
#include "ui/vector_registers.h"

// What the processor itself says of its vector registers: a calculation within a handler takes ten
// times as long while the toolkit's paintings have left their upper halves in use.
namespace {

#if defined(__x86_64__)

constexpr const char* kNoAnswer = "this processor does not tell which registers are in use";

__attribute__((target("xsave"))) bool UpperHalvesBit() { return (_xgetbv(1) & 4) != 0; }
// A comparison that is always true fills a whole register with ones.
void UseUpperHalves() { asm volatile("vcmpps $15, %%ymm15, %%ymm15, %%ymm15" : : : "xmm15"); }

// Empty where the processor or the system does not tell.
std::optional<bool> UpperHalvesInUse() {
  unsigned a = 0, b = 0, c = 0, d = 0;
  constexpr unsigned kSystemKeepsThem = 1U << 27U;
  constexpr unsigned kTellsUse = 1U << 2U;
  if (!__get_cpuid(1, &a, &b, &c, &d) || (c & kSystemKeepsThem) == 0) return std::nullopt;
  if (!__get_cpuid_count(13, 1, &a, &b, &c, &d) || (a & kTellsUse) == 0) return std::nullopt;
  if (!__builtin_cpu_supports("avx")) return std::nullopt;
  return UpperHalvesBit();
}

#else

constexpr const char* kNoAnswer = "only processors of the x86 family have such registers";
void UseUpperHalves() {}
std::optional<bool> UpperHalvesInUse() { return std::nullopt; }

#endif

class Registers : public testing::Test {
 protected:
  void SetUp() override {
    if (!UpperHalvesInUse()) GTEST_SKIP() << kNoAnswer;
    application.Start();
    qApp->processEvents();
  }
  // Runs `handler` as the click of a button of the window.
  void InHandler(const screen::Handler& handler) {
    screen::Form& form = application.Program().Shown();
    screen::Control& button = *form.Find("CmdContinu");
    button.Click = handler;
    UseUpperHalves();
    qobject_cast<QAbstractButton*>(application.Window().WidgetOf(form, button))->click();
  }

  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

}  // namespace

TEST_F(Registers, AreSeenInUseByThisTest) {
  UseUpperHalves();
  EXPECT_TRUE(*UpperHalvesInUse());
  ui::ClearVectorRegisters();
  EXPECT_FALSE(*UpperHalvesInUse());
}

TEST_F(Registers, AreFreeWhenAHandlerBegins) {
  std::optional<bool> used;
  InHandler([&] { used = UpperHalvesInUse(); });
  EXPECT_EQ(used, false);
}

TEST_F(Registers, AreFreeBehindARepaintWithinAHandler) {
  std::optional<bool> whole;
  std::optional<bool> oneControl;
  std::optional<bool> sideWindow;
  screen::Form& form = application.Program().Shown();
  screen::Form& side = *application.Program().FormByName("LandHulpForm");
  InHandler([&] {
    // A painting need not use the upper halves; one that does is what matters.
    UseUpperHalves();
    form.Refresh();
    whole = UpperHalvesInUse();
    UseUpperHalves();
    form.Find("NameTxB")->Refresh();
    oneControl = UpperHalvesInUse();
    UseUpperHalves();
    side.Refresh();
    sideWindow = UpperHalvesInUse();
  });
  EXPECT_EQ(whole, false);
  EXPECT_EQ(oneControl, false);
  EXPECT_EQ(sideWindow, false);
}

TEST_F(Registers, AreFreeBehindABoxAndADialogWithinAHandler) {
  std::optional<bool> box;
  std::optional<bool> dialog;
  screen::Form& form = application.Program().Shown();
  InHandler([&] {
    UseUpperHalves();
    form.ports.messageBox.Show({"text", "title"});
    box = UpperHalvesInUse();
    UseUpperHalves();
    form.ports.fileDialog.Ask({});
    dialog = UpperHalvesInUse();
  });
  EXPECT_EQ(box, false);
  EXPECT_EQ(dialog, false);
}
