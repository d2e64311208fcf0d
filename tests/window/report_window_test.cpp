#include <gtest/gtest.h>

#include <QFontInfo>
#include <QScrollBar>
#include <QtTest/QTest>

#include <fstream>

#include "tests/support/program_session.h"
#include "tests/support/temp_folder.h"
#include "tests/window/toolkit.h"
#include "ui/reading_text.h"
#include "ui/reading_view.h"

// The window in which the log is read, as the toolkit shows it.
namespace {

using navigation::OutputAction;

class ReportWindow : public testing::Test {
 protected:
  ReportWindow() {
    application.Start();
    for (int i = 1; i <= 500; ++i) Append("line " + std::to_string(i));
    Program().Session().LogName = folder_.Path("weld.LOG");
    Toggle();
  }

  start::Program& Program() { return application.Program(); }
  void Append(const std::string& line) const {
    std::ofstream(folder_.Path("weld.LOG"), std::ios::app) << line << "\r\n";
  }
  void Toggle() {
    Program().Output(Program().Shown(), OutputAction::ShowLog);
    application.Window().ShowState();
    qApp->processEvents();
  }
  ui::ReadingView& View() { return *application.Window().findChild<ui::ReadingView*>(); }
  ui::ReadingText& Text() { return *View().findChild<ui::ReadingText*>(); }
  QScrollBar& Bar() { return *Text().verticalScrollBar(); }
  bool Shows(const char* line) {
    const QString wanted = QString::fromLatin1(line);
    return QTest::qWaitFor([&] { return Text().toPlainText().contains(wanted); }, 20000);
  }
  bool ItemOffersToShow() {
    return Program().Offered(OutputAction::ShowLog).caption == "Show <name>.LOG";
  }

  TempFolder folder_;
  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

TEST_F(ReportWindow, ShowsTheEndInLettersOfOneWidth) {
  EXPECT_TRUE(View().isVisible());
  EXPECT_EQ(View().windowTitle().toStdString(), folder_.Path("weld.LOG"));
  EXPECT_GT(Bar().maximum(), 0);
  EXPECT_EQ(Bar().value(), Bar().maximum());
  EXPECT_TRUE(QFontInfo(Text().font()).fixedPitch());
  EXPECT_TRUE(Text().isReadOnly());
}

TEST_F(ReportWindow, HasLettersAsLargeAsTheDesktops) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSize(19);
  QApplication::setFont(large);
  qApp->processEvents();
  EXPECT_EQ(Text().font().pointSize(), 19);
  EXPECT_TRUE(QFontInfo(Text().font()).fixedPitch());
  QApplication::setFont(before);
  qApp->processEvents();
  EXPECT_EQ(Text().font().pointSize(), before.pointSize());
}

TEST_F(ReportWindow, FollowsWhatAnotherProgramAppends) {
  Append("by another");
  EXPECT_TRUE(Shows("by another"));
  EXPECT_EQ(Bar().value(), Bar().maximum());
  Append("once more");
  EXPECT_TRUE(Shows("once more"));
}

TEST_F(ReportWindow, LeavesWhoReadsInTheMiddleThere) {
  Bar().setValue(100);
  Append("by another");
  EXPECT_TRUE(Shows("by another"));
  EXPECT_EQ(Bar().value(), 100);
}

TEST_F(ReportWindow, KeepsWhatIsSelectedForACopy) {
  Text().selectAll();
  const QString before = Text().textCursor().selectedText();
  Append("by another");
  ASSERT_TRUE(Shows("line 500\nby another\n"));
  EXPECT_EQ(Text().textCursor().selectedText(), before);
}

TEST_F(ReportWindow, ClosesByItsButtonByEscAndByItsItem) {
  View().close();
  EXPECT_FALSE(View().isVisible());
  EXPECT_TRUE(ItemOffersToShow());
  Toggle();
  EXPECT_FALSE(ItemOffersToShow());
  QTest::keyClick(&Text(), Qt::Key_Escape);
  EXPECT_FALSE(View().isVisible());
  EXPECT_TRUE(ItemOffersToShow());
  Toggle();
  Toggle();
  EXPECT_FALSE(View().isVisible());
  EXPECT_TRUE(ItemOffersToShow());
}

TEST_F(ReportWindow, FindsByTheKeysOfAReader) {
  QTest::keyClick(&Text(), Qt::Key_F, Qt::ControlModifier);
  auto* field = View().findChild<QWidget*>(QStringLiteral("FindTxB"));
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, QStringLiteral("LINE 2"));
  QTest::keyClick(field, Qt::Key_Return);
  const auto found = [this] { return Text().textCursor().blockNumber() + 1; };
  EXPECT_EQ(Text().textCursor().selectedText(), QStringLiteral("line 2"));
  EXPECT_EQ(found(), 2);
  QTest::keyClick(field, Qt::Key_F3);
  EXPECT_EQ(found(), 20);
  QTest::keyClick(field, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(found(), 2);
}

TEST_F(ReportWindow, DoesNotKeepTheProgramFromEnding) {
  around.box.answers = {screen::Answer::Ok};
  EXPECT_TRUE(application.Window().close());
  EXPECT_TRUE(Program().EndRequested());
  View().close();
  EXPECT_FALSE(View().isVisible());
}

}  // namespace
