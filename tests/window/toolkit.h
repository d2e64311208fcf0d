#pragma once

#include <gtest/gtest.h>

#include <QApplication>

#include "ui/application.h"

// The one toolkit of a test program, drawing in memory where no display is named.
inline QApplication& Toolkit() {
  static int argc = 1;
  static char name[] = "window_tests";
  static char* argv[] = {name, nullptr};
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication toolkit(argc, argv);
  static const bool prepared = [] {
    ui::PrepareToolkit();
    return true;
  }();
  EXPECT_TRUE(prepared);
  return toolkit;
}
