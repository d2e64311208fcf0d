#include "screen/form.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "tests/screen/recording_ports.h"

namespace {

TEST(EventBoundary, AHandlerWithoutAFaultShowsNothing) {
  recording::Ports ports;
  bool ran = false;
  screen::Guarded(ports.ports, [&] { ran = true; });
  EXPECT_TRUE(ran);
  EXPECT_TRUE(ports.messageBox.shown.empty());
}

TEST(EventBoundary, AnEventWithoutAHandlerDoesNothing) {
  recording::Ports ports;
  screen::Guarded(ports.ports, nullptr);
  EXPECT_TRUE(ports.messageBox.shown.empty());
}

// The user must learn what failed, and go on working.
TEST(EventBoundary, AFaultShowsOneMessageThatNamesWhatFailed) {
  recording::Ports ports;
  screen::Guarded(ports.ports, [] { Divide(1, 0); });
  ASSERT_EQ(ports.messageBox.shown.size(), 1u);
  const screen::Message& message = ports.messageBox.shown[0];
  EXPECT_NE(message.text.find("division by zero"), std::string::npos) << message.text;
  EXPECT_EQ(message.title, "VALKORIN");
  EXPECT_EQ(message.icon, screen::Icon::Exclamation);
  EXPECT_EQ(message.buttons, screen::Buttons::Ok);
}

TEST(EventBoundary, AFaultEndsTheHandlerAndKeepsWhatItHadStored) {
  recording::Ports ports;
  double stored = 0;
  screen::Guarded(ports.ports, [&] {
    stored = 1;
    stored = Log(0);
  });
  EXPECT_EQ(stored, 1);
  screen::Guarded(ports.ports, [&] { stored = 2; });
  EXPECT_EQ(stored, 2);
}

TEST(EventBoundary, AnyOtherFailureIsToldAsWell) {
  recording::Ports ports;
  screen::Guarded(ports.ports, [] { throw std::bad_alloc(); });
  EXPECT_EQ(ports.messageBox.shown.size(), 1u);
}

TEST(Screen, FindsItsControlsByNameWithTheirIndex) {
  recording::Ports ports;
  screen::Form form("Form", ports.ports);
  screen::Control label(form, screen::Kind::Label, "DimLbl(2)");
  EXPECT_EQ(form.Find("DimLbl(2)"), &label);
  EXPECT_EQ(form.Find("DimLbl"), nullptr);
}

TEST(Screen, AControlIsRepaintedAtOnceWithoutTheRestOfItsScreen) {
  recording::Ports ports;
  screen::Form form("LimitsForm", ports.ports);
  screen::Control label(form, screen::Kind::Label, "Label");
  label.Refresh();
  EXPECT_EQ(ports.surface.repainted, std::vector<std::string>{"LimitsForm.Label"});
  form.Refresh();
  EXPECT_EQ(ports.surface.repainted.back(), "LimitsForm");
}

TEST(Screen, ComplainsWithAnExclamationAndOneButton) {
  recording::Ports ports;
  screen::Form form("Form", ports.ports);
  form.Complain("text", "title");
  ASSERT_EQ(ports.messageBox.shown.size(), 1u);
  EXPECT_EQ(ports.messageBox.shown[0].text, "text");
  EXPECT_EQ(ports.messageBox.shown[0].title, "title");
  EXPECT_EQ(ports.messageBox.shown[0].icon, screen::Icon::Exclamation);
  EXPECT_EQ(ports.messageBox.shown[0].buttons, screen::Buttons::Ok);
}

}  // namespace
