#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTabBar>

#include <memory>
#include <string>

#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"
#include "ui/readable_colour.h"
#include "ui/undo_history.h"

// What the toolkit makes of closed tabs, of the band and of many steps.
namespace {

// The program in its window, with a series on the raw data screen.
struct Desk : support::RecordingPorts {
  Desk() {
    dialog.answers.push_back(support::WriteTemporary("series.vkr", "1\n2\n3\n4\n5\n"));
    application.Start();
    screen::Form& shown = application.Program().Shown();
    application.Window().ActionOf(shown, *shown.Find("menuopen"))->trigger();
  }
  void Settle() {
    application.Program().TellState();
    application.Window().ShowState();
    QApplication::processEvents();
  }
  screen::Grid& Grid() {
    return static_cast<screen::Grid&>(*application.Program().Shown().Find("DBGridVkr"));
  }
  ui::Application application{{box, dialog, clock, printer, tables}};
};

TEST(Strip, AClosedTabIsGreyWithItsReasonAsItsTipAndIsSpokenAsClosed) {
  Desk desk;
  QTabBar& strip = *desk.application.Window().Strip();
  const QColor grey =
      ui::QuietOn(QPalette().color(QPalette::Window), QPalette().color(QPalette::WindowText));
  for (const bool gap : {false, true, false}) {
    desk.Grid().Write(1, 2, gap ? "" : "2.5");
    desk.Settle();
    ASSERT_EQ(strip.count(), 8);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&strip);
    for (int i = 2; i < strip.count(); ++i) {
      SCOPED_TRACE(strip.tabText(i).toStdString());
      EXPECT_EQ(strip.tabTextColor(i), gap ? grey : QColor());
      EXPECT_EQ(strip.tabToolTip(i).startsWith(QStringLiteral("Row 2 is empty.")), gap);
      EXPECT_TRUE(strip.isTabEnabled(i)) << "a click is to say why";
      EXPECT_EQ(spoken->child(i)->text(QAccessible::Name).endsWith(QStringLiteral(", closed")),
                gap);
    }
    EXPECT_FALSE(strip.tabTextColor(0).isValid());
  }
}

TEST(LiveLabel, StandsOnABandOfItsOwnColourInAFrame) {
  Desk desk;
  screen::Form& raw = desk.application.Program().Shown();
  screen::Control& line = *raw.Find("StatusLbl");
  auto& label = *qobject_cast<QLabel*>(desk.application.Window().WidgetOf(raw, line));
  line.colour = screen::Colour{255, 204, 77};
  desk.application.Window().ShowState();
  EXPECT_TRUE(label.autoFillBackground());
  EXPECT_EQ(label.palette().color(QPalette::Window), QColor(255, 204, 77));
  EXPECT_GE(ui::Contrast(label.palette().color(QPalette::WindowText), QColor(255, 204, 77)), 4.5);
  EXPECT_EQ(label.frameShape(), QFrame::Box);
  line.colour.reset();
  desk.application.Window().ShowState();
  EXPECT_FALSE(label.autoFillBackground());
  EXPECT_EQ(label.frameShape(), QFrame::NoFrame);
}

class Count final : public screen::Step {
 public:
  Count(int& value, int from, int to) : value_(value), from_(from), to_(to) {}
  const std::string& Words() const override { return words_; }
  void Undo() override { value_ = from_; }
  void Redo() override { value_ = to_; }
  bool Absorb(const screen::Step&) override { return false; }
  bool ChangesNothing() const override { return false; }

 private:
  int& value_;
  int from_;
  int to_;
  std::string words_ = "count " + std::to_string(to_);
};

TEST(UndoHistory, HasNoLimit) {
  constexpr int kMany = 5000;
  ui::UndoHistory history;
  int value = 0;
  for (int i = 0; i < kMany; ++i) {
    value = i + 1;
    history.Push(std::make_unique<Count>(value, i, i + 1));
    ASSERT_EQ(value, i + 1) << "what is put there is done already";
  }
  for (int i = kMany; i > 0; --i) {
    ASSERT_EQ(history.ToUndo(), "count " + std::to_string(i));
    history.Undo();
    ASSERT_EQ(value, i - 1);
  }
  EXPECT_EQ(history.ToUndo(), "");
  history.Redo();
  EXPECT_EQ(value, 1);
  history.Clear();
  EXPECT_EQ(history.ToUndo() + history.ToRedo(), "");
}

}  // namespace
