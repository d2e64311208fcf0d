#include <gtest/gtest.h>

#include <QElapsedTimer>
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
    double milliseconds = 0;
    bool busy = false;
    std::vector<std::string> texts;
  };
  explicit Painter(QElapsedTimer& clock) : clock_(clock) {}
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Paint || !widget) return false;
    const QWidget* window = widget->window();
    if (window->objectName() != QLatin1String("LandHulpForm")) return false;
    Painting painting;
    painting.milliseconds = static_cast<double>(clock_.nsecsElapsed()) / 1e6;
    painting.busy = QGuiApplication::overrideCursor() != nullptr;
    for (const QLineEdit* box : window->findChildren<QLineEdit*>())
      painting.texts.push_back(box->text().toStdString());
    paintings.push_back(painting);
    return false;
  }
  std::vector<Painting> paintings;

 private:
  QElapsedTimer& clock_;
};

class ProgressWindow : public testing::Test {
 protected:
  ProgressWindow() {
    application.Start();
    ExposureSession& s = application.Program().Session();
    s.Mode = "D";
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
    clock.start();
    button->click();
    qApp->processEvents();
  }
  QWidget* Window() {
    return application.Window().findChild<QWidget*>(QStringLiteral("LandHulpForm"));
  }

  QElapsedTimer clock;
  Painter painter{clock};
  support::RecordingPorts around;
  ui::Application application{{around.box, around.dialog, around.clock, around.printer}};
};

}  // namespace

// The best of a few, since the machine may be busy with other work.
TEST_F(ProgressWindow, IsPaintedWithinATenthOfASecondAndBeforeTheSearchHasAValue) {
  double first = 1e9;
  for (int click = 0; click < 5; ++click) {
    painter.paintings.clear();
    ClickLand();
    ASSERT_FALSE(painter.paintings.empty());
    first = std::min(first, painter.paintings.front().milliseconds);
    for (const std::string& text : painter.paintings.front().texts) EXPECT_EQ(text, "");
  }
  EXPECT_LT(first, 100);
}

TEST_F(ProgressWindow, PaintsItsFiveValuesWhileTheSearchRuns) {
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
  application.Program().Session().LnGSD = 0;
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
