#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>

#include <algorithm>
#include <string>
#include <vector>

#include "compliance/en689.h"
#include "compliance/tests_on_record.h"
#include "session/global_bas.h"
#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"

// The compliance screen in the real toolkit: what the boxes of the EN 689 test show while it
// searches, and how much each test paints. How long the user waits is measured by bench/window.cpp.
namespace {

using Texts = std::vector<std::string>;

// Notes the text of a box whenever it is painted.
class Painter : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (qobject_cast<QMainWindow*>(watched)) ++windows;
    const auto* box = qobject_cast<const QLineEdit*>(watched);
    if (!box) return false;
    if (box->objectName() == QLatin1String("PercExTxB_1")) Note(limits, *box);
    if (box->objectName() == QLatin1String("PercExTxB_2")) Note(fractions, *box);
    return false;
  }
  Texts limits, fractions;
  int windows = 0;  // paintings of the whole window

 private:
  static void Note(Texts& texts, const QLineEdit& box) {
    texts.push_back(box.text().toStdString());
  }
};

class ComplianceWindow : public testing::Test {
 protected:
  ComplianceWindow() { application.Start(); }

  ExposureSession& Record() { return application.Program().Session(); }

  void Show(double M, double GM, double GSD, double OELV, double U = 95, double D = 70) {
    ExposureSession& s = Record();
    s.Mode = DataMode::Statistics;
    s.Name = "Welders";
    s.M = M;
    s.df = M - 1;
    s.GM = GM;
    s.GSD = GSD;
    s.OELV = OELV;
    s.U = U;
    s.D = D;
    s.IdentOk = s.DescOk = s.LimitsOk = true;
    application.Program().Open(navigation::ScreenId::PercEx);
    application.Window().ShowState();
    qApp->processEvents();
  }
  void Click(const char* name) {
    screen::Form& form = application.Program().Shown();
    qobject_cast<QAbstractButton*>(application.Window().WidgetOf(form, *form.Find(name)))->click();
    qApp->processEvents();
  }
  // As on a machine so fast that a search takes no time.
  void StopTheClock() {
    application.Window().StepPace().now = [] { return std::int64_t{1000}; };
  }

  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

// Each text of `wanted` comes in `seen`, in this order.
bool InOrder(const Texts& wanted, const Texts& seen) {
  auto from = seen.begin();
  for (const std::string& text : wanted) {
    from = std::find(from, seen.end(), text);
    if (from == seen.end()) return false;
  }
  return true;
}

}  // namespace

TEST_F(ComplianceWindow, TheSearchesOfTheEN689TestPaintTheirCandidates) {
  Show(10, 0.3, 2, 1);
  Texts limits;
  Texts fractions;
  ExposureSession copy = Record();
  compliance::En689Test(copy, 1.7369655941662063, [&](compliance::TestBox box, double value) {
    (box == compliance::TestBox::Fraction ? fractions : limits)
        .push_back(GlobalBAS::Shown(copy, value));
  });
  Painter painter;
  qApp->installEventFilter(&painter);
  Click("TuggleCmb");
  EXPECT_GE(painter.limits.size(), limits.size());
  EXPECT_GE(painter.fractions.size(), fractions.size());
  EXPECT_TRUE(InOrder(limits, painter.limits)) << testing::PrintToString(painter.limits);
  EXPECT_TRUE(InOrder(fractions, painter.fractions)) << testing::PrintToString(painter.fractions);
}

// Where a search has over a thousand candidates, painting them all would take longer than it.
TEST_F(ComplianceWindow, AVeryLongSearchPaintsSomeOfItsCandidatesAndItsLast) {
  Show(2, 4367.7418110640838, 155.10860695839361, 183335087.35356015, 68.710356701452767, 0.01);
  StopTheClock();
  Painter painter;
  qApp->installEventFilter(&painter);
  Click("TuggleCmb");
  EXPECT_GE(painter.limits.size(), 60u);
  EXPECT_LE(painter.limits.size(), 64u);
  EXPECT_EQ(painter.limits.back(), GlobalBAS::Shown(Record(), Record().UTL));
}

// What a click costs is its paintings: the searches themselves take less time than one of them.
TEST_F(ComplianceWindow, NoTestPaintsTheWindowMoreThanAFewTimes) {
  const double samples[][6] = {
      {10, 0.3, 2, 1, 95, 70},
      {2000, 0.3, 2, 1, 95, 70},
      {2, 1, 1000, 100, 99.99, 99.9},
      {2, 4367.7418110640838, 155.10860695839361, 183335087.35356015, 68.710356701452767, 0.01}};
  StopTheClock();
  for (const auto& [M, GM, GSD, OELV, U, D] : samples) {
    Show(M, GM, GSD, OELV, U, D);
    for (const char* button : {"LeidelCmb", "TuggleCmb", "WilksCmb", "SampSizeCkb"}) {
      Painter painter;
      qApp->installEventFilter(&painter);
      Click(button);
      EXPECT_LE(painter.windows, 3) << button << ", M " << M << ", GSD " << GSD;
      EXPECT_LE(painter.limits.size() + painter.fractions.size(), 70u)
          << button << ", M " << M << ", GSD " << GSD;
    }
  }
}
