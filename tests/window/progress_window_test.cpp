#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"

// The window of Land's progress in the real toolkit: what it paints while the search runs.
namespace {

// Notes each painting of the progress window, or of a part of it.
class Painter : public QObject {
 public:
  struct Painting {
    bool busy = false;
    std::vector<std::string> texts;
  };
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Paint || !widget) return false;
    const QWidget* window = widget->window();
    if (window->objectName() != QLatin1String("LandHulpForm")) return false;
    steps += widget->objectName() == QLatin1String("Secant");
    Painting painting;
    painting.busy = QGuiApplication::overrideCursor() != nullptr;
    for (const QLineEdit* box : window->findChildren<QLineEdit*>())
      painting.texts.push_back(box->text().toStdString());
    paintings.push_back(painting);
    return false;
  }
  std::vector<Painting> paintings;
  int steps = 0;  // paintings of the label that names the step
};

class ProgressWindow : public testing::Test {
 protected:
  ProgressWindow() {
    application.Start();
    ExposureSession& s = application.Program().Session();
    s.Mode = DataMode::Statistics;
    s.Name = "Welders";
    s.M = 10;
    s.df = 9;
    s.GM = 1;
    s.GSD = 2.7;
    s.OELV = 5;
    s.D = 95;
    s.IdentOk = s.DescOk = s.LimitsOk = true;
    application.Program().Open(navigation::ScreenId::UCL);
    application.Window().ShowState();
    qApp->processEvents();
    qApp->installEventFilter(&painter);
  }
  void ClickLand() {
    screen::Form& form = application.Program().Shown();
    auto* button =
        qobject_cast<QPushButton*>(application.Window().WidgetOf(form, *form.Find("LandCmb")));
    button->click();
    qApp->processEvents();
  }
  // In milliseconds, by a clock that nothing else moves.
  void LetEachStepTake(std::int64_t milliseconds) {
    application.Window().StepPace().now = [now = std::int64_t{1000}, milliseconds]() mutable {
      return now += milliseconds;
    };
  }
  QWidget* Window() {
    return application.Window().findChild<QWidget*>(QStringLiteral("LandHulpForm"));
  }

  Painter painter;
  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

}  // namespace

TEST_F(ProgressWindow, IsPaintedBeforeTheSearchHasAValue) {
  for (int click = 0; click < 2; ++click) {
    painter.paintings.clear();
    ClickLand();
    ASSERT_FALSE(painter.paintings.empty());
    for (const std::string& text : painter.paintings.front().texts) EXPECT_EQ(text, "");
  }
}

// The window names some two hundred steps in the time of one picture on a display.
TEST_F(ProgressWindow, AFastSearchPaintsOnlySixtyOfItsSteps) {
  LetEachStepTake(0);
  ClickLand();
  EXPECT_GT(painter.steps, 10);
  EXPECT_LE(painter.steps, 61);
}

TEST_F(ProgressWindow, ASlowSearchPaintsAllItsSteps) {
  LetEachStepTake(17);
  ClickLand();
  EXPECT_GT(painter.steps, 150);
}

TEST_F(ProgressWindow, PaintsItsFiveValuesWhileTheSearchRuns) {
  LetEachStepTake(17);
  ClickLand();
  ASSERT_GT(painter.paintings.size(), 40u);
  bool all = false;
  for (const Painter::Painting& painting : painter.paintings) {
    EXPECT_TRUE(painting.busy);
    ASSERT_EQ(painting.texts.size(), 5u);
    bool filled = true;
    for (const std::string& text : painting.texts) filled = filled && !text.empty();
    all = all || filled;
  }
  EXPECT_TRUE(all);
}

TEST_F(ProgressWindow, IsGoneAtTheEndAndThePointerIsNormal) {
  ClickLand();
  ASSERT_NE(Window(), nullptr);
  EXPECT_FALSE(Window()->isVisible());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(application.Window().isActiveWindow());
}

TEST_F(ProgressWindow, IsGoneAfterAFaultTooBeforeItsMessageShows) {
  application.Program().Session().GSD = 1;
  ClickLand();
  EXPECT_EQ(around.box.shown.size(), 1u);
  EXPECT_FALSE(painter.paintings.empty());
  EXPECT_FALSE(Window()->isVisible());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ProgressWindow, IsNoPageOfTheWindow) {
  EXPECT_TRUE(Window()->isWindow());
  EXPECT_EQ(Window()->parentWidget(), &application.Window());
  ClickLand();
  EXPECT_EQ(Window()->windowTitle(), "Calculating the Confidence Factor");
  EXPECT_GE(Window()->width(), 454);
  EXPECT_GE(Window()->height(), 151);
}
