#pragma once

#include <gtest/gtest.h>

#include <QApplication>

#include <memory>

#include "ui/application.h"

// The one toolkit of a test program, drawing in memory where no display is named. It ends with the
// last test: behind main, what it leans on may be gone before it.
class Toolkit final : public testing::Environment {
 public:
  void SetUp() override {
    static int argc = 1;
    static char name[] = "window_tests";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc, argv);
    ui::PrepareToolkit();
  }
  void TearDown() override { application_.reset(); }

 private:
  std::unique_ptr<QApplication> application_;
};

inline testing::Environment* const toolkit = testing::AddGlobalTestEnvironment(new Toolkit);
