#include "ui/message_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>

#include <functional>
#include <utility>

#include "tests/window/toolkit.h"

// The real message boxes, which scripts answer without showing them.
namespace {

using screen::Answer;
using screen::Buttons;

// What the box answers to a key; `look` sees it before.
Answer AnswerTo(
    Qt::Key key, const screen::Message& message,
    const std::function<void(const QMessageBox&)>& look = [](const QMessageBox&) {}) {
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
    QTest::keyClick(box, key);
  });
  return ui::MessageBox().Show(message);
}

Answer AnswerTo(Qt::Key key, Buttons buttons, Answer defaultAnswer) {
  return AnswerTo(key, {"text", "title", screen::Icon::Question, buttons, defaultAnswer});
}

TEST(MessageBox, EscapeIsTheAnswerThatChangesNothing) {
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, Buttons::Ok, Answer::Ok), Answer::Ok);
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, Buttons::OkCancel, Answer::Ok), Answer::Cancel);
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, Buttons::YesNo, Answer::Yes), Answer::No);
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, Buttons::YesNoCancel, Answer::No), Answer::Cancel);
}

TEST(MessageBox, EnterIsTheDefaultAnswer) {
  for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel})
    EXPECT_EQ(AnswerTo(Qt::Key_Return, Buttons::YesNoCancel, answer), answer);
  EXPECT_EQ(AnswerTo(Qt::Key_Return, Buttons::YesNo, Answer::No), Answer::No);
  EXPECT_EQ(AnswerTo(Qt::Key_Return, Buttons::OkCancel, Answer::Ok), Answer::Ok);
}

TEST(MessageBox, OffersExactlyItsButtons) {
  using Box = QMessageBox;
  const std::pair<Buttons, Box::StandardButtons> boxes[] = {
      {Buttons::Ok, Box::Ok},
      {Buttons::OkCancel, Box::Ok | Box::Cancel},
      {Buttons::YesNo, Box::Yes | Box::No},
      {Buttons::YesNoCancel, Box::Yes | Box::No | Box::Cancel}};
  for (const auto& [buttons, wanted] : boxes) {
    Box::StandardButtons offered;
    const screen::Message message = {"text", "title", screen::Icon::None, buttons, Answer::Ok};
    AnswerTo(Qt::Key_Escape, message, [&](const Box& box) { offered = box.standardButtons(); });
    EXPECT_EQ(offered, wanted) << static_cast<int>(buttons);
  }
}

}  // namespace
