// The scroll bars of the plot under the user's mouse, which scripts move in one step.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"

namespace {

// The program in its window, with a series on the plot screen and the lower limit being picked.
struct Desktop : support::RecordingPorts {
  Desktop() {
    dialog.answers.push_back(
        support::WriteTemporary("series.vkr", "0.2\n0.3\n0.5\n0.8\n1.1\n1.7\n2.6\n4\n"));
    application.Start();
    Menu("menuopen");
    application.Program().Shown().strip->Choose("plot");
    application.Window().ShowState();
    Menu("MenuLowLim");
    QApplication::processEvents();
  }
  void Menu(const char* name) {
    screen::Form& shown = application.Program().Shown();
    application.Window().ActionOf(shown, *shown.Find(name))->trigger();
  }
  QScrollBar& Bar() {
    screen::Form& shown = application.Program().Shown();
    return *qobject_cast<QScrollBar*>(
        application.Window().WidgetOf(shown, *shown.Find("VScLowLimit")));
  }

  ui::Application application{{box, dialog, clock, printer, tables}};
};

QRect Handle(const QScrollBar& bar) {
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.orientation = bar.orientation();
  option.minimum = bar.minimum();
  option.maximum = bar.maximum();
  option.sliderPosition = bar.sliderPosition();
  option.sliderValue = bar.value();
  option.singleStep = bar.singleStep();
  option.pageStep = bar.pageStep();
  return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                     &bar);
}

void Send(QScrollBar& bar, QEvent::Type type, QPoint at) {
  const bool move = type == QEvent::MouseMove;
  QMouseEvent event(type, QPointF(at), bar.mapToGlobal(QPointF(at)),
                    move ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&bar, &event);
}

// The box takes the release of the button; the bar must not stay pressed and go on scrolling. It
// stands where the limit is that took the place of the refused one: at its foot.
TEST(LimitBar, ThatMeetsAMessageIsLetGo) {
  Desktop desktop;
  QScrollBar& bar = desktop.Bar();
  ASSERT_TRUE(bar.isVisible());
  const QRect handle = Handle(bar);
  Send(bar, QEvent::MouseButtonPress, handle.center());
  ASSERT_TRUE(bar.isSliderDown());
  Send(bar, QEvent::MouseMove, QPoint(handle.center().x(), 0));
  EXPECT_EQ(bar.value(), 100);
  EXPECT_EQ(desktop.box.shown.size(), 1U);
  QApplication::processEvents();
  EXPECT_FALSE(bar.isSliderDown());
  EXPECT_EQ(desktop.box.shown.size(), 1U);
}

}  // namespace
