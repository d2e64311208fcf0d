#include "ui/message_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
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

TEST(MessageBox, SaveDontSaveAndCancelAnswerWhatTheySay) {
  const screen::Message question = {"text", "title", screen::Icon::Question,
                                    Buttons::SaveDiscardCancel, Answer::Save};
  EXPECT_EQ(AnswerTo(Qt::Key_Return, question), Answer::Save);
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, question), Answer::Cancel);
  QString caption;
  const auto byKey = AnswerTo(Qt::Key_Shift, question, [&](const QMessageBox& box) {
    caption = box.button(QMessageBox::Discard)->text();
    box.button(QMessageBox::Discard)->click();
  });
  EXPECT_EQ(byKey, Answer::Discard);
  EXPECT_EQ(caption.remove(QLatin1Char('&')), "Don't save");
}

TEST(MessageBox, AsksWhatBecomesOfADocumentInItsOwnWords) {
  const screen::Message question = {"text", "title", screen::Icon::Question,
                                    Buttons::PrintKeepDropCancel, Answer::Print};
  EXPECT_EQ(AnswerTo(Qt::Key_Return, question), Answer::Print);
  EXPECT_EQ(AnswerTo(Qt::Key_Escape, question), Answer::Cancel);
  const auto clicked = [&](QMessageBox::StandardButton button, const char* words) {
    return AnswerTo(Qt::Key_Shift, question, [&](const QMessageBox& box) {
      QString caption = box.button(button)->text();
      EXPECT_EQ(caption.remove(QLatin1Char('&')), QLatin1String(words));
      box.button(button)->click();
    });
  };
  EXPECT_EQ(clicked(QMessageBox::Yes, "Print"), Answer::Print);
  EXPECT_EQ(clicked(QMessageBox::Save, "Keep as PDF"), Answer::Keep);
  EXPECT_EQ(clicked(QMessageBox::Discard, "Drop"), Answer::Drop);
}

// A title bar that is wider than the box would be cut, and with it the name of the field.
TEST(MessageBox, IsAtLeastAsWideAsItsTitle) {
  for (const char* title : {"Geometric Standard Deviation",
                            "Loading  the *.VKR file /home/hygiene/measurements/welders.vkr"}) {
    int width = 0;
    int needed = 0;
    AnswerTo(Qt::Key_Escape, {"x", title, screen::Icon::Exclamation}, [&](const QMessageBox& box) {
      width = box.width();
      QFont font = box.font();
      font.setBold(true);
      needed = QFontMetrics(font).horizontalAdvance(box.windowTitle());
    });
    EXPECT_GT(width, needed + 100) << title;
  }
}

// What the box is about, what is wrong, and what can be entered.
TEST(MessageBox, AComplaintRepeatsTheNameOfTheFieldAsItsHeading) {
  AnswerTo(Qt::Key_Escape,
           {"GM value too large", "Geometric Mean", screen::Icon::Exclamation, Buttons::Ok,
            Answer::Ok, "Allowed: 0.0001 to 10000."},
           [](const QMessageBox& box) {
             EXPECT_EQ(box.text(), "Geometric Mean");
             EXPECT_EQ(box.informativeText(), "GM value too large\n\nAllowed: 0.0001 to 10000.");
             EXPECT_EQ(box.textFormat(), Qt::PlainText);
             const auto* heading = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
             ASSERT_NE(heading, nullptr);
             EXPECT_TRUE(heading->font().bold());
           });
}

TEST(MessageBox, AQuestionKeepsItsTextAndTellsTheRestBelow) {
  AnswerTo(Qt::Key_Escape,
           {"Are you sure?", "Exit", screen::Icon::Question, Buttons::OkCancel, Answer::Ok,
            "Changes of this series are not saved."},
           [](const QMessageBox& box) {
             EXPECT_EQ(box.text(), "Are you sure?");
             EXPECT_EQ(box.informativeText(), "Changes of this series are not saved.");
           });
}

TEST(MessageBox, ShowsAListThatIsLongerThanTheScreenInItsScrollingPart) {
  std::string list = "Nothing was pasted. Not understood:";
  for (int i = 1; i <= 300; ++i) list += "\rLine " + std::to_string(i) + " is empty.";
  list += "\rThe hint.";
  AnswerTo(Qt::Key_Escape, {list, "title"}, [](const QMessageBox& box) {
    EXPECT_TRUE(box.text().endsWith("Line 13 is empty.\n\u2026")) << box.text().toStdString();
    EXPECT_TRUE(box.detailedText().contains("\nLine 300 is empty.\nThe hint."));
    EXPECT_LT(box.height(), 700);
  });
  AnswerTo(Qt::Key_Escape, {"one\rtwo", "title"}, [](const QMessageBox& box) {
    EXPECT_EQ(box.text(), "one\ntwo");
    EXPECT_TRUE(box.detailedText().isEmpty());
  });
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
      {Buttons::YesNoCancel, Box::Yes | Box::No | Box::Cancel},
      {Buttons::SaveDiscardCancel, Box::Save | Box::Discard | Box::Cancel}};
  for (const auto& [buttons, wanted] : boxes) {
    Box::StandardButtons offered;
    const screen::Message message = {"text", "title", screen::Icon::None, buttons, Answer::Ok};
    AnswerTo(Qt::Key_Escape, message, [&](const Box& box) { offered = box.standardButtons(); });
    EXPECT_EQ(offered, wanted) << static_cast<int>(buttons);
  }
}

}  // namespace
