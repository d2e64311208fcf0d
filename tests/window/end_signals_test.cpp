#include "ui/end_signals.h"

#include <QTimer>

#include <csignal>

#include "tests/window/toolkit.h"

// What the system sends at the end of a session.
namespace {

class EndSignal : public testing::TestWithParam<int> {};

TEST_P(EndSignal, IsAnsweredInTheEventLoopWhichThenEnds) {
  int asked = 0;
  const ui::EndSignals requests([&asked] { ++asked; });
  QTimer::singleShot(0, [signal = GetParam()] { std::raise(signal); });
  QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(asked, 1);
}

INSTANTIATE_TEST_SUITE_P(All, EndSignal, testing::Values(SIGTERM, SIGHUP, SIGINT));

}  // namespace
